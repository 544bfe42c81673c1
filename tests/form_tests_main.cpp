// Runs the form tests: on the display where there is one, in the toolkit's memory where there is none.

#include <gtest/gtest.h>

#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <utility>

#include "app/prepare_toolkit.h"

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;  // file dialogs remember where they were
    for (const char* kind : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qputenv(kind, settings.path().toUtf8());
    Toolkit toolkit{argc, argv};
    prepareToolkit();
    // A dialog that a test waits for in vain to close fails it within seconds. Events are counted, not time,
    // so that a slow machine is not taken for it.
    QWidget* before = nullptr;
    int ticks = 0;
    QTimer patience;
    patience.callOnTimeout([&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const bool same = std::exchange(before, dialog) == dialog;
        ticks = same && dialog != nullptr ? ticks + 1 : 0;
        if (ticks < 80) return;
        ADD_FAILURE() << "stays open: " << dialog->windowTitle().toStdString();
        dialog->reject();
    });
    patience.start(100);
    return RUN_ALL_TESTS();
}
