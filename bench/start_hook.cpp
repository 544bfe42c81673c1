// Linked into a program, this reports on standard output when the program's first window is painted, what
// that took, and ends the program. The environment can ask for a chart, or a window of labels, to be opened
// first.

#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <cstdio>

#include "paint_watch.h"
#include "process.h"

namespace {

double processorSeconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void report(double painted) {
    const double processor = processorSeconds();
    std::printf("%.6f %.6f %.3f\n", painted, processor, megabytes("VmHWM:"));
    std::fflush(stdout);
    ::_exit(0);
}

// What opens the second window: the program's own button, or the bare program's only one of that name.
void openSecond(PaintWatch& watch, const QString& widget) {
    watch.await(widget, 100, [&watch] { report(watch.lastPainted()); });
    if (auto* name = control<QLineEdit>(QStringLiteral("txtName"))) name->setText(QStringLiteral("SOMEBODY"));
    control<QPushButton>(QStringLiteral("cmdGenerateChart"))->click();
}

void hook() {
    auto* watch = new PaintWatch;
    const QString second = qEnvironmentVariable("BENCH_SECOND");
    watch->await(qEnvironmentVariable("BENCH_FIRST"), 0, [watch, second] {
        if (second.isEmpty()) report(watch->lastPainted());
        openSecond(*watch, second);
    });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(hook)
