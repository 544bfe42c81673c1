#include "scene.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <turbojpeg.h>
#include <unistd.h>

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWidget>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "files/picture_export.h"

namespace fs = std::filesystem;

void expect(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error{"expected " + what};
}

Files filesIn(const fs::path& folder) {
    Files files;
    for (const auto& entry : fs::directory_iterator{folder}) {
        std::ifstream file{entry.path(), std::ios::binary};
        files[entry.path().filename()] = {std::istreambuf_iterator<char>{file}, {}};
    }
    return files;
}

void clear(const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator{folder}) fs::remove_all(entry);
}

ChartInput firstChart() { return {u"ANN", 1985, "June", 14}; }
ChartInput secondChart() { return {u"BENEDICT OF THE LONG NAME", 2001, "September", 9}; }

bool isWholeJpeg(const std::string& bytes) {
    const tjhandle decoder = tjInitDecompress();
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    int width = 0, height = 0, sampling = 0, colours = 0;
    bool whole = tjDecompressHeader3(decoder, data, bytes.size(), &width, &height, &sampling, &colours) == 0;
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width * height) * 3);
    // A picture that ends too early is decoded with a warning, which counts as an error here.
    whole = whole && tjDecompress2(decoder, data, bytes.size(), pixels.data(), width, 0, height, TJPF_RGB,
                                   TJFLAG_STOPONWARNING) == 0;
    tjDestroy(decoder);
    return whole;
}

std::unique_ptr<QApplication> startToolkit() {
    static int count = 1;
    static char name[] = "save_faults";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(count, arguments);
}

namespace {

QPixmap stripes(int width, int height) {
    QPixmap picture{width, height};
    picture.fill(Qt::white);
    QPainter painter{&picture};
    for (int x = 0; x < width; x += 3) {
        painter.setPen(QColor::fromHsv(x % 360, 255, 200));
        painter.drawLine(x, 0, width - x, height);
    }
    return picture;
}

}  // namespace

void savePicture(const fs::path& path, const fs::path& converter, int width, int height) {
    bool said = false;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, [&said] {
        said = true;
        if (QWidget* message = QApplication::activeModalWidget()) message->close();
    });
    watcher.start(0);  // runs only if a message waits for an answer
    savePictureAs(stripes(width, height), QString::fromStdString(path), QString::fromStdString(converter),
                  nullptr);
    expect(!said, "nothing to be said");
}

bool onePictureMoreAtMost(const Files& before, const Files& after) {
    for (const auto& [name, bytes] : before) {
        expect(after.contains(name) && after.at(name) == bytes, name + " to be as before");
    }
    for (const auto& [name, bytes] : after) {
        expect(before.contains(name) || (name.ends_with(".jpg") && isWholeJpeg(bytes)),
               "no such file: " + name);
    }
    expect(after.size() <= before.size() + 1, "one picture more at the most");
    return after.size() > before.size();
}

void refuseNamelessFiles() {
    constexpr auto namelessOnly = static_cast<unsigned>(O_TMPFILE & ~O_DIRECTORY);
    const unsigned flags = offsetof(seccomp_data, args) + 2 * sizeof(seccomp_data::args[0]);
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, flags),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, namelessOnly, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{static_cast<unsigned short>(std::size(rules)), rules};
    expect(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
               prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0,
           "a filter for system calls");
    expect(::open("/tmp", O_TMPFILE | O_WRONLY, 0600) < 0 && errno == EOPNOTSUPP, "no nameless file");
}

int startProcess(const std::function<void()>& work) {
    std::fflush(nullptr);
    const int process = ::fork();
    expect(process >= 0, "another process");
    if (process > 0) return process;
    try {
        work();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        ::_exit(1);
    }
    ::_exit(0);
}

bool endedWell(int process) {
    int status = 0;
    return ::waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
