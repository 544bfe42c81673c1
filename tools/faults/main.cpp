// Tries one fault, given by name, in an empty folder of its own, and prints one line about it. With a fourth
// argument "named", no file can be written without a name.
//     save_faults FAULT FOLDER CONVERTER [named]

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <string_view>

#include "faults.h"

namespace {

struct Fault {
    std::string_view name;
    std::string (*tried)(const Setting&);
};

constexpr std::array<Fault, 11> faults{{
    {"chart_on_limit", chartOnLimit},
    {"picture_on_limit", pictureOnLimit},
    {"jpeg_on_limit", jpegOnLimit},
    {"chart_on_full_disk", chartOnFullDisk},
    {"picture_on_full_disk", pictureOnFullDisk},
    {"killed_chart", killedChart},
    {"killed_picture", killedPicture},
    {"no_process_left", noProcessLeft},
    {"read_only_folder", readOnlyFolder},
    {"vanishing_folder", vanishingFolder},
    {"twenty_locks", twentyLocks},
}};

}  // namespace

int main(int argc, char* argv[]) {
    const std::string_view name = argc < 4 ? "" : argv[1];
    const auto* const fault =
        std::find_if(faults.begin(), faults.end(), [&](const Fault& f) { return f.name == name; });
    if (fault == faults.end()) {
        std::fprintf(stderr, "usage: %s FAULT FOLDER CONVERTER [named]\n", argv[0]);
        return 2;
    }
    const bool named = argc > 4 && argv[4] == std::string_view{"named"};
    const std::string title = std::string{name} + (named ? ", named files" : "");
    try {
        if (named) refuseNamelessFiles();
        std::printf("%-34s held: %s\n", title.c_str(), fault->tried({argv[2], argv[3]}).c_str());
        return 0;
    } catch (const std::exception& failure) {
        std::printf("%-34s FAILED: %s\n", title.c_str(), failure.what());
        return 1;
    }
}
