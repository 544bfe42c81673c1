// Palace Lantern: casts a Zi Wei Dou Shu birth chart for one person and explains it in English.

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <cstdlib>

#include "app/application.h"
#include "app/prepare_toolkit.h"
#include "app/start_rules.h"
#include "style/message.h"

namespace {

// The chart file on the command line, or an empty path. Ends the program after --help, --version or an error.
QString chartFileOf(const QApplication& toolkit) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Casts a Zi Wei Dou Shu birth chart and explains it in plain English."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("A chart file to open."),
                                 QStringLiteral("[file.plf]"));
    parser.process(toolkit);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        std::fputs("palace-lantern: only one chart file can be opened at a time\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    return files.value(0);
}

}  // namespace

int main(int argc, char* argv[]) {
    Toolkit toolkit{argc, argv};
    prepareToolkit();
    const QString file = chartFileOf(toolkit);
    const SingleInstance instance;
    if (instance.anotherIsRunning()) {
        showMessage(nullptr, QMessageBox::Information, QStringLiteral("Application is already running"));
        return 0;
    }
    if (!requiredFileIsPresent()) return 1;
    Application application;
    application.start(file);
    return QApplication::exec();
}
