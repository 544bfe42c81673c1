#include "files/bmp2jpeg/bmp2jpeg.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>

#include "files/bmp2jpeg/bmp_reader.h"
#include "files/whole_file.h"

namespace bmp2jpeg {
namespace {

using Bytes = std::span<const unsigned char>;

struct CompressorDeleter {
    void operator()(void* handle) const { tjDestroy(handle); }
};
using Compressor = std::unique_ptr<std::remove_pointer_t<tjhandle>, CompressorDeleter>;

struct JpegDeleter {
    void operator()(unsigned char* bytes) const { tjFree(bytes); }
};

struct Jpeg {
    std::unique_ptr<unsigned char, JpegDeleter> bytes;
    unsigned long size = 0;
};

// A JPEG without chroma subsampling, so that thin coloured strokes stay sharp; empty on failure.
Jpeg compress(const Bitmap& bitmap, int quality) {
    Jpeg jpeg;
    const Compressor compressor(tjInitCompress());
    if (!compressor) return jpeg;
    const int flags = TJFLAG_ACCURATEDCT | (bitmap.bottomUp ? TJFLAG_BOTTOMUP : 0);
    unsigned char* bytes = nullptr;
    const int result =
        tjCompress2(compressor.get(), bitmap.pixels.get(), bitmap.width, bitmap.rowBytes, bitmap.height,
                    bitmap.format, &bytes, &jpeg.size, TJSAMP_444, std::clamp(quality, 1, 100), flags);
    jpeg.bytes.reset(bytes);
    if (result != 0) jpeg = {};
    return jpeg;
}

bool writeWhole(const char* path, Bytes bytes) {
    WholeFile file{path};
    return file.write({reinterpret_cast<const char*>(bytes.data()), bytes.size()}) && file.commit();
}

bool convert(const char* bmpPath, const char* jpegPath, int quality) {
    if (bmpPath == nullptr || jpegPath == nullptr) return false;
    const auto bitmap = readBmp(bmpPath);
    if (!bitmap) return false;
    const Jpeg jpeg = compress(*bitmap, quality);
    return jpeg.bytes && writeWhole(jpegPath, {jpeg.bytes.get(), jpeg.size});
}

}  // namespace
}  // namespace bmp2jpeg

int BmpToJpeg(const char* bmpPath, const char* jpegPath, int quality) noexcept {
    try {
        return bmp2jpeg::convert(bmpPath, jpegPath, quality) ? 1 : 0;
    } catch (...) {  // out of memory; the caller may be plain C and must not see an exception
        return 0;
    }
}
