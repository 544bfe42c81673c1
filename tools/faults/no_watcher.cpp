// The process that watches over a picture's temporary file can't be started: the picture is saved all the
// same.

#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>

#include "faults.h"

std::string noProcessLeft(const Setting& setting) {
    expect(::geteuid() != 0, "a user whose processes are counted");
    const int saver = startProcess([&] {
        const auto toolkit = startToolkit();
        const rlimit none{0, 0};
        expect(setrlimit(RLIMIT_NPROC, &none) == 0 && ::fork() < 0, "no process to be started");
        savePicture(setting.folder / "chart.jpg", setting.converter, 300, 200);
    });
    expect(endedWell(saver), "a save to end well without a watcher");
    const Files files = filesIn(setting.folder);
    expect(onePictureMoreAtMost({}, files) && files.contains("chart.jpg"), "the picture and nothing else");
    return "the picture was saved without a watcher";
}
