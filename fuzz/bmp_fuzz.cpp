// Feeds arbitrary bytes to the picture converter: it must not crash, and must leave a JPEG of the bitmap's
// size just when it says so, with no other file beside it.

#include <sys/mman.h>
#include <turbojpeg.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "files/bmp2jpeg/bmp2jpeg.h"
#include "must.h"

namespace {

namespace fs = std::filesystem;

struct Folder {
    Folder() {
        std::string pattern = fs::temp_directory_path() / "bmp_fuzzXXXXXX";
        must(mkdtemp(pattern.data()) != nullptr);
        path = pattern;
    }
    ~Folder() { fs::remove_all(path); }
    fs::path path;
};

int numberAt(const std::uint8_t* bytes) {
    std::int32_t number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

// The bitmap's width and height stand in its header; a negative height means rows from the top down.
void mustBeOfSize(const fs::path& path, int width, int height) {
    static const tjhandle decompressor = tjInitDecompress();
    std::ifstream file{path, std::ios::binary};
    std::string jpeg{std::istreambuf_iterator<char>{file}, {}};
    int jpegWidth = 0, jpegHeight = 0, sampling = 0, colours = 0;
    must(tjDecompressHeader3(decompressor, reinterpret_cast<unsigned char*>(jpeg.data()), jpeg.size(),
                             &jpegWidth, &jpegHeight, &sampling, &colours) == 0);
    must(jpegWidth == width && jpegHeight == std::abs(height));
    must(sampling == TJSAMP_444);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    static const fs::path jpeg = folder.path / "out.jpg";
    static const int bmp = memfd_create("bmp", MFD_CLOEXEC);
    static const std::string bmpPath = "/proc/self/fd/" + std::to_string(bmp);
    must(ftruncate(bmp, 0) == 0 && pwrite(bmp, data, size, 0) == static_cast<ssize_t>(size));
    const int quality = size > 0 ? data[size - 1] : 0;
    if (BmpToJpeg(bmpPath.c_str(), jpeg.c_str(), quality) == 1) {
        mustBeOfSize(jpeg, numberAt(data + 18), numberAt(data + 22));
        must(fs::remove(jpeg));
    }
    must(fs::is_empty(folder.path));
    return 0;
}
