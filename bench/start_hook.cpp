// Linked into a program, this reports on standard output when its first window is painted, the processor time
// and the peak of memory until then, and the peak when the chart is shown, and then ends the program.

#include <QLineEdit>
#include <QPushButton>
#include <cstdio>

#include "measure.h"

namespace {

void hook() {
    auto* watch = new PaintWatch;
    watch->await(QStringLiteral("frmMain"), 0, [watch](double painted) {
        std::printf("%.3f %.3f %.3f ", painted, processorMilliseconds(), memory("VmHWM:"));
        watch->await(QStringLiteral("gfg"), 100, [](double) {
            std::printf("%.3f", memory("VmHWM:"));
            std::fflush(stdout);
            std::_Exit(0);
        });
        if (auto* name = control<QLineEdit>("txtName")) name->setText(QStringLiteral("SOMEBODY"));
        control<QPushButton>("cmdGenerateChart")->click();
    });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(hook)
