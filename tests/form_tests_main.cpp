// Runs the form tests: on the display where there is one, in the toolkit's memory where there is none.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "app/prepare_toolkit.h"

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;  // file dialogs remember where they were
    for (const char* kind : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qputenv(kind, settings.path().toUtf8());
    Toolkit toolkit{argc, argv};
    prepareToolkit();
    return RUN_ALL_TESTS();
}
