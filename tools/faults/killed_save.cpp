// A process that is killed at a random moment while it saves in a loop, 200 times: each file is whole, the
// old one or the new one, and after a moment nothing else is there.

#include <unistd.h>

#include <QApplication>
#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "faults.h"

namespace fs = std::filesystem;

namespace {

constexpr int rounds = 200;
constexpr std::chrono::milliseconds patience{300};  // for what tidies up after a killed program

using Clock = std::chrono::steady_clock;

// Starts the work, waits for its sign that the loop has begun, and kills it within the longest time after
// that.
void killAtRandom(const std::function<void(int sign)>& work, std::chrono::microseconds longest) {
    static std::mt19937 random{1};
    std::array<int, 2> ends{};
    expect(::pipe(ends.data()) == 0, "a pipe");
    const int process = startProcess([&] { work(ends[1]); });
    ::close(ends[1]);
    char sign = 0;
    const bool began = ::read(ends[0], &sign, 1) == 1;
    ::close(ends[0]);
    std::this_thread::sleep_for(std::chrono::microseconds{random() % longest.count()});
    ::kill(process, SIGKILL);
    endedWell(process);
    expect(began, "the saves to begin");
}

void giveSign(int sign) { expect(::write(sign, "!", 1) == 1, "a listener"); }

bool isChart(const std::string& name, const std::string& bytes) {
    return name.ends_with(".plf") &&
           (bytes == chartFileBytes(firstChart()) || bytes == chartFileBytes(secondChart()));
}

bool isPicture(const std::string& name, const std::string& bytes) {
    return name.ends_with(".jpg") && isWholeJpeg(bytes);
}

// The names of the files that should not be there.
template <class Judge>
std::string litterIn(const fs::path& folder, Judge isGood) {
    std::string names;
    for (const auto& [name, bytes] : filesIn(folder)) {
        if (!isGood(name, bytes)) names += " " + name;
    }
    return names;
}

template <class Judge>
std::string remainingLitter(const fs::path& folder, Judge isGood) {
    const auto end = Clock::now() + patience;
    std::string litter = litterIn(folder, isGood);
    while (!litter.empty() && Clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds{3});
        litter = litterIn(folder, isGood);
    }
    return litter;
}

template <class Judge>
std::string killRounds(const Setting& setting, const std::function<void(int)>& work,
                       std::chrono::microseconds longest, Judge isGood) {
    int littered = 0;
    std::string example;
    std::size_t files = 0;
    for (int round = 0; round < rounds; ++round) {
        clear(setting.folder);
        expect(writeChartFile(setting.folder / "chart.plf", firstChart()), "an earlier chart file");
        killAtRandom(work, longest);
        const std::string litter = remainingLitter(setting.folder, isGood);
        expect(fs::exists(setting.folder / "chart.plf"), "the earlier file");
        files += filesIn(setting.folder).size();
        if (litter.empty()) continue;
        ++littered;
        example = litter;
    }
    expect(littered == 0, "no litter; there was some in " + std::to_string(littered) + " of " +
                              std::to_string(rounds) + " rounds, such as" + example);
    return std::to_string(rounds) + " kills, " + std::to_string(files) + " files, all whole";
}

}  // namespace

std::string killedChart(const Setting& setting) {
    const auto work = [&](int sign) {
        giveSign(sign);
        for (int count = 0;; ++count) {
            writeChartFile(setting.folder / "chart.plf", count % 2 == 0 ? secondChart() : firstChart());
            writeChartFile(setting.folder / (std::to_string(count) + ".plf"), firstChart());
        }
    };
    return killRounds(setting, work, std::chrono::milliseconds{4}, isChart);
}

std::string killedPicture(const Setting& setting) {
    const auto work = [&](int sign) {
        const auto toolkit = startToolkit();
        savePicture(setting.folder / "chart.jpg", setting.converter, 10, 10);
        giveSign(sign);
        for (;;) savePicture(setting.folder / "chart.jpg", setting.converter, 900, 700);
    };
    const auto isGood = [](const std::string& name, const std::string& bytes) {
        return isChart(name, bytes) || isPicture(name, bytes);
    };
    return killRounds(setting, work, std::chrono::milliseconds{150}, isGood);
}
