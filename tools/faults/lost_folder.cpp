// A folder that can't be written to, and one that vanishes while a save is under way.

#include <unistd.h>

#include <QApplication>
#include <chrono>
#include <random>
#include <thread>

#include "faults.h"

namespace fs = std::filesystem;

namespace {

void savePictureIn(const fs::path& folder, const Setting& setting) {
    savePicture(folder / "chart.jpg", setting.converter, 300, 200);
}

// Removes the folder again and again until nothing is saved into it any more.
void removeAtRandom(const fs::path& folder) {
    static std::mt19937 random{1};
    std::this_thread::sleep_for(std::chrono::microseconds{random() % 10000});
    std::error_code ignored;
    while (fs::exists(folder)) fs::remove_all(folder, ignored);
}

void vanish(const Setting& setting, const std::function<void(const fs::path& folder)>& save) {
    for (int round = 0; round < 100; ++round) {
        const fs::path folder = setting.folder / "here";
        fs::create_directory(folder);
        const int saver = startProcess([&] {
            while (fs::exists(folder)) save(folder);
            save(folder);
        });
        removeAtRandom(folder);
        expect(endedWell(saver), "a save without a folder to end well");
        expect(fs::is_empty(setting.folder), "nothing beside the folder that is gone");
    }
}

}  // namespace

std::string readOnlyFolder(const Setting& setting) {
    expect(::geteuid() != 0, "a user who minds permissions");
    const auto toolkit = startToolkit();
    expect(writeChartFile(setting.folder / "chart.plf", firstChart()), "an earlier chart file");
    savePictureIn(setting.folder, setting);
    const Files before = filesIn(setting.folder);
    expect(before.size() == 2, "an earlier chart file and picture");

    fs::permissions(setting.folder, fs::perms::owner_read | fs::perms::owner_exec);
    const bool replaced = writeChartFile(setting.folder / "chart.plf", secondChart());
    const bool added = writeChartFile(setting.folder / "other.plf", secondChart());
    savePictureIn(setting.folder, setting);
    const Files after = filesIn(setting.folder);
    fs::permissions(setting.folder, fs::perms::owner_all);
    expect(!replaced && !added && after == before, "nothing to be saved into a read-only folder");
    return "2 charts and a picture were not saved";
}

std::string vanishingFolder(const Setting& setting) {
    vanish(setting, [](const fs::path& folder) { writeChartFile(folder / "chart.plf", firstChart()); });
    const auto toolkit = startToolkit();
    vanish(setting, [&](const fs::path& folder) { savePictureIn(folder, setting); });
    return "the folder vanished 200 times, under charts and pictures";
}
