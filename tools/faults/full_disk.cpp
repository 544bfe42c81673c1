// A disk that fills up in the middle of a save: what was there stays, and nothing is left behind. A limit on
// the size of files stops a save at any byte; a small file system that is filled up stops it at any page or
// name.

#include <dlfcn.h>
#include <sys/resource.h>

#include <QApplication>
#include <QImage>
#include <array>
#include <csignal>
#include <fstream>

#include "faults.h"

namespace fs = std::filesystem;

namespace {

constexpr int pictureWidth = 220, pictureHeight = 90;
constexpr std::size_t pageSize = 4096;

// No file of this process grows beyond the limit while this lives.
class SizeLimit {
  public:
    explicit SizeLimit(std::size_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        expect(setrlimit(RLIMIT_FSIZE, &limit) == 0, "a limit for files");
    }
    ~SizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;

  private:
    rlimit before_{};
};

// Takes all the room of a file system but so many bytes, or all the files that it can have but so many.
void leaveBytes(const fs::path& ballast, std::size_t room) {
    fs::create_directories(ballast);
    const fs::path file = ballast / "bytes";
    std::ofstream filling{file, std::ios::binary};
    while (filling.write(std::string(pageSize, '-').data(), pageSize).flush()) {
    }
    expect(fs::file_size(file) < (std::size_t{64} << 20), "a small file system");
    fs::resize_file(file, fs::file_size(file) - room);
}

void leaveNames(const fs::path& ballast, std::size_t room) {
    fs::create_directories(ballast);
    std::size_t count = 0;
    while (std::ofstream{ballast / std::to_string(count)}) ++count;
    for (; room > 0; --room) fs::remove(ballast / std::to_string(--count));
}

struct Filling {
    void (*leave)(const fs::path& ballast, std::size_t room);
    std::size_t step;
};
constexpr std::array<Filling, 2> fillings{{{leaveBytes, pageSize}, {leaveNames, 1}}};

struct Tally {
    int saved = 0;
    int failed = 0;

    void add(bool done) { ++(done ? saved : failed); }
    std::string text() const {
        expect(saved > 0 && failed > 0, "some saves to fail and some to succeed");
        return std::to_string(failed) + " saves failed, " + std::to_string(saved) + " succeeded";
    }
};

fs::path chartIn(const Setting& setting) { return setting.folder / "chart.plf"; }

void lay(const Setting& setting, bool replacing) {
    clear(setting.folder);
    if (replacing) expect(writeChartFile(chartIn(setting), firstChart()), "an earlier chart file");
}

bool saveChart(const Setting& setting) { return writeChartFile(chartIn(setting), secondChart()); }

// Expects the folder to be as before where the chart was not saved, and otherwise to hold it alone.
bool checkedChart(const Setting& setting, const Files& before, bool saved) {
    const Files whole{{"chart.plf", chartFileBytes(secondChart())}};
    expect(filesIn(setting.folder) == (saved ? whole : before),
           saved ? "the new chart" : "all to be as before");
    return saved;
}

// A person's own files, of the names that a picture and its bitmap would have liked.
Files layPictures(const Setting& setting) {
    clear(setting.folder);
    for (const char* name : {"chart.jpg", "chart.bmp", "chart_001.bmp"})
        std::ofstream{setting.folder / name} << name;
    return filesIn(setting.folder);
}

void savePictureIn(const Setting& setting) {
    savePicture(setting.folder / "chart.jpg", setting.converter, pictureWidth, pictureHeight);
}

}  // namespace

std::string chartOnLimit(const Setting& setting) {
    Tally tally;
    const std::size_t size = chartFileBytes(secondChart()).size();
    for (const bool replacing : {false, true}) {
        for (std::size_t bytes = 0; bytes <= size; ++bytes) {
            lay(setting, replacing);
            const Files before = filesIn(setting.folder);
            bool saved = false;
            {
                const SizeLimit limit{bytes};
                saved = saveChart(setting);
            }
            expect(saved == (bytes == size), "the last byte to count");
            tally.add(checkedChart(setting, before, saved));
        }
    }
    return tally.text();
}

std::string pictureOnLimit(const Setting& setting) {
    Tally tally;
    const auto toolkit = startToolkit();
    for (std::size_t bytes = 0; tally.saved < 10; bytes += bytes < 100 ? 1 : 211) {
        const Files before = layPictures(setting);
        {
            const SizeLimit limit{bytes};
            savePictureIn(setting);
        }
        tally.add(onePictureMoreAtMost(before, filesIn(setting.folder)));
    }
    return tally.text();
}

std::string jpegOnLimit(const Setting& setting) {
    using BmpToJpeg = int (*)(const char*, const char*, int);
    void* module = ::dlopen(setting.converter.c_str(), RTLD_NOW);
    const auto convert =
        reinterpret_cast<BmpToJpeg>(module == nullptr ? nullptr : ::dlsym(module, "BmpToJpeg"));
    expect(convert != nullptr, "the converter");
    const fs::path bitmap = setting.folder / "chart.bmp", picture = setting.folder / "chart.jpg";
    QImage image{32, 16, QImage::Format_RGB32};
    for (int i = 0; i < 32 * 16; ++i) image.setPixel(i % 32, i / 32, static_cast<QRgb>(i * 40503));
    expect(image.save(QString::fromStdString(bitmap), "BMP"), "a bitmap");

    Tally tally;
    for (std::size_t bytes = 0; tally.saved < 10; ++bytes) {
        const Files before = filesIn(setting.folder);
        bool done = false;
        {
            const SizeLimit limit{bytes};
            done = convert(bitmap.c_str(), picture.c_str(), 100) == 1;
        }
        expect(onePictureMoreAtMost(before, filesIn(setting.folder)) == done,
               "a picture just when it is said");
        fs::remove(picture);
        tally.add(done);
    }
    return tally.text();
}

std::string chartOnFullDisk(const Setting& setting) {
    Tally tally;
    const fs::path ballast = setting.folder.parent_path() / "ballast";
    for (const Filling& filling : fillings) {
        for (std::size_t room = 0; room < 12; ++room) {
            lay(setting, room % 2 == 0);
            const Files before = filesIn(setting.folder);
            filling.leave(ballast, room / 2 * filling.step);
            const bool saved = saveChart(setting);
            tally.add(checkedChart(setting, before, saved));
            fs::remove_all(ballast);
        }
    }
    return tally.text();
}

std::string pictureOnFullDisk(const Setting& setting) {
    Tally tally;
    const auto toolkit = startToolkit();
    const fs::path ballast = setting.folder.parent_path() / "ballast";
    for (const Filling& filling : fillings) {
        for (std::size_t room = 0; room < 40; ++room) {
            const Files before = layPictures(setting);
            filling.leave(ballast, room * filling.step);
            savePictureIn(setting);
            tally.add(onePictureMoreAtMost(before, filesIn(setting.folder)));
            fs::remove_all(ballast);
        }
    }
    return tally.text();
}
