// Twenty starts at the same moment after a program that was killed: exactly one has the lock. The lock is
// taken here without windows around it, so that the starts come close together, and many times.

#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <vector>

#include "app/single_instance.h"
#include "faults.h"

namespace {

constexpr int rounds = 500;
constexpr int starts = 20;

struct Pipe {
    Pipe() { expect(::pipe(ends.data()) == 0, "a pipe"); }
    ~Pipe() {
        ::close(ends[0]);
        closeInput();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    void closeInput() {
        if (ends[1] >= 0) ::close(ends[1]);
        ends[1] = -1;
    }
    // Waits for a byte, or for the end.
    char read() const {
        char byte = 0;
        return ::read(ends[0], &byte, 1) == 1 ? byte : '\0';
    }
    std::array<int, 2> ends{};
};

// The lock of a program that was killed while it ran.
void killRunning() {
    const int killed = startProcess([] {
        const SingleInstance instance;
        ::kill(::getpid(), SIGKILL);
    });
    endedWell(killed);
}

// The lock of a program that was killed at a random moment, starting or ending.
void killStarting() {
    static std::mt19937 random{1};
    const int killed = startProcess([] {
        for (;;) const SingleInstance instance;
    });
    std::this_thread::sleep_for(std::chrono::microseconds{500 + random() % 1000});
    ::kill(killed, SIGKILL);
    endedWell(killed);
}

// Returns how many of the starts stay.
int startAtOnce() {
    Pipe go, answers, end;
    std::vector<int> processes;
    for (int i = 0; i < starts; ++i) {
        processes.push_back(startProcess([&] {
            go.closeInput();
            end.closeInput();
            go.read();
            const SingleInstance instance;
            const char answer = instance.anotherIsRunning() ? '-' : '+';
            expect(::write(answers.ends[1], &answer, 1) == 1, "a listener");
            end.read();
        }));
    }
    go.closeInput();
    int staying = 0;
    for (int i = 0; i < starts; ++i) staying += answers.read() == '+' ? 1 : 0;
    end.closeInput();
    for (const int process : processes) expect(endedWell(process), "a start to end well");
    return staying;
}

}  // namespace

std::string twentyLocks(const Setting& setting) {
    std::filesystem::permissions(setting.folder, std::filesystem::perms::owner_all);
    ::setenv("XDG_RUNTIME_DIR", setting.folder.c_str(), 1);
    int none = 0, several = 0;
    for (int round = 0; round < rounds; ++round) {
        round % 2 == 0 ? killRunning() : killStarting();
        const int staying = startAtOnce();
        if (staying == 0) ++none;
        if (staying > 1) ++several;
        if (staying != 1) clear(setting.folder);
    }
    expect(none + several == 0, "exactly one to stay; of " + std::to_string(rounds) +
                                    " rounds of twenty starts, none stayed in " + std::to_string(none) +
                                    " and several in " + std::to_string(several));
    return std::to_string(rounds) + " rounds of twenty starts, one stayed in each";
}
