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
    // A dialog that stays open fails the test within seconds, counted in ticks for the sake of slow machines.
    QTimer patience;
    patience.callOnTimeout([before = static_cast<QDialog*>(nullptr), ticks = 0]() mutable {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ticks = dialog == std::exchange(before, dialog) && dialog != nullptr ? ticks + 1 : 0;
        if (ticks < 80) return;
        ADD_FAILURE() << "stays open: " << dialog->windowTitle().toStdString();
        dialog->reject();
    });
    patience.start(100);
    return RUN_ALL_TESTS();
}
