// A long day: rounds of fill, generate, open a palace, Show All and back through the real forms, in one process.
// What must not grow is memory, the number of widgets and the time that a round takes.

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include "app/application.h"
#include "calendar/date_lists.h"
#include "paint_watch.h"
#include "style/look.h"

namespace {

constexpr int warmUp = 200;
constexpr double mostGrowth = 1.05;
constexpr double slowest = 1.10;

long residentKilobytes() {
    QFile status{QStringLiteral("/proc/self/status")};
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').front().toLong();
    }
    return 0;
}

template <class Control>
Control* control(const QString& name) {
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->objectName() == name) return qobject_cast<Control*>(widget);
    }
    throw std::runtime_error("no " + name.toStdString());
}

void press(const QString& button) { control<QAbstractButton>(button)->click(); }

// Presses the button and returns when what it opens is painted. The dialogs with the analysis are closed then.
void pressAndAwait(PaintWatch& watch, const QString& button, const char* widget) {
    bool done = false;
    QEventLoop loop;
    const bool dialog = QLatin1String{widget} == QLatin1String{"RTB"};
    watch.await(QString::fromLatin1(widget), 0, [&done, &loop, dialog] {
        done = true;
        if (dialog) press(QStringLiteral("cmdOk"));
        loop.quit();
    });
    press(button);
    if (!done) loop.exec();
}

void select(const char* list, int round, int count) {
    control<QComboBox>(QString::fromLatin1(list))->setCurrentIndex(round % count);
}

void fillForm(int round) {
    control<QLineEdit>(QStringLiteral("txtName"))->setText(QStringLiteral("SOMEBODY"));
    select("cmbDate", round, 28);
    select("cmbMonth", round / 28, monthCount);
    select("cmbYear", round, yearCount);
    select("cmbHour", round, 24);
    select("cmbMinute", round, 60);
}

// Milliseconds.
double playRound(PaintWatch& watch, int round) {
    const double began = monotonicSeconds();
    fillForm(round);
    pressAndAwait(watch, QStringLiteral("cmdGenerateChart"), "gfg");
    pressAndAwait(watch, QStringLiteral("lblCover(%1)").arg(round % 12), "RTB");
    pressAndAwait(watch, QStringLiteral("cmdShowAll"), "RTB");
    pressAndAwait(watch, QStringLiteral("cmdBack"), "frmMain");
    return (monotonicSeconds() - began) * 1e3;
}

double median(std::vector<double>::const_iterator first, std::vector<double>::const_iterator last) {
    std::vector<double> sorted(first, last);
    std::sort(sorted.begin(), sorted.end());
    return sorted[sorted.size() / 2];
}

bool check(const char* what, double early, double late, double most, const char* unit) {
    const bool sound = late <= early * most;
    std::printf("%s: %.2f %s after the first %d rounds, %.2f at the end: %s\n", what, early, unit, warmUp, late,
                sound ? "ok" : "GROWS");
    return sound;
}

bool longDay(int rounds) {
    PaintWatch watch;
    Application application;
    application.start();
    std::vector<double> times;
    long memory = 0;
    qsizetype widgets = 0;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(playRound(watch, round));
        if (round + 1 != warmUp) continue;
        memory = residentKilobytes();
        widgets = QApplication::allWidgets().size();
    }
    const auto early = median(times.begin() + warmUp, times.begin() + 2 * warmUp);
    const auto late = median(times.end() - warmUp, times.end());
    const bool memoryIsSound = check("memory", static_cast<double>(memory) / 1024,
                                     static_cast<double>(residentKilobytes()) / 1024, mostGrowth, "MiB");
    const bool widgetsAreSound = check("widgets", static_cast<double>(widgets),
                                       static_cast<double>(QApplication::allWidgets().size()), 1, "alive");
    return check("a round", early, late, slowest, "ms") && memoryIsSound && widgetsAreSound;
}

}  // namespace

// The number of rounds may be given.
int main(int argc, char* argv[]) {
    QApplication toolkit{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setFont(look::textFont(QApplication::font()));
    QApplication::setWindowIcon(look::productIcon());
    try {
        return longDay(argc > 1 ? std::max(3 * warmUp, std::atoi(argv[1])) : 2000) ? 0 : 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
