// Feeds arbitrary bytes to the picture converter: it must not crash, and must leave a JPEG just when it
// says so, with no other file beside it.

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "files/bmp2jpeg/bmp2jpeg.h"

namespace {

namespace fs = std::filesystem;

struct Folder {
    Folder() {
        std::string pattern = fs::temp_directory_path() / "bmp_fuzzXXXXXX";
        if (mkdtemp(pattern.data()) == nullptr) {
            std::abort();
        }
        path = pattern;
    }
    ~Folder() { fs::remove_all(path); }
    fs::path path;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    static const fs::path jpeg = folder.path / "out.jpg";
    static const int bmp = memfd_create("bmp", MFD_CLOEXEC);
    static const std::string bmpPath = "/proc/self/fd/" + std::to_string(bmp);
    if (ftruncate(bmp, 0) != 0 || pwrite(bmp, data, size, 0) != static_cast<ssize_t>(size)) {
        std::abort();
    }
    const int quality = size > 0 ? data[size - 1] : 0;
    const bool done = BmpToJpeg(bmpPath.c_str(), jpeg.c_str(), quality) == 1;
    if (fs::is_empty(folder.path) == done || (done && !fs::remove(jpeg)) || !fs::is_empty(folder.path)) {
        std::abort();
    }
    return 0;
}
