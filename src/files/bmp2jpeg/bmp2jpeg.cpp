#include "files/bmp2jpeg/bmp2jpeg.h"

#include <turbojpeg.h>

#include <QFile>
#include <algorithm>
#include <memory>
#include <type_traits>

#include "bmp2jpeg_export.h"
#include "files/saved_files.h"

namespace {

struct Destroy {
    void operator()(void* compressor) const { tjDestroy(compressor); }
    void operator()(unsigned char* bytes) const { tjFree(bytes); }
};
using Compressor = std::unique_ptr<std::remove_pointer_t<tjhandle>, Destroy>;
using Bytes = std::unique_ptr<unsigned char, Destroy>;

}  // namespace

BMP2JPEG_EXPORT int BmpToJpeg(const char* bmpPath, const char* jpegPath, int quality) noexcept {
    if (bmpPath == nullptr || jpegPath == nullptr) return 0;
    int width = 0, height = 0, format = TJPF_UNKNOWN;
    const Bytes pixels{tjLoadImage(bmpPath, &width, 1, &height, &format, 0)};
    const Compressor compressor{tjInitCompress()};
    if (!pixels || !compressor) return 0;
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    // Without chroma subsampling, so that thin coloured strokes stay sharp.
    const int failed = tjCompress2(compressor.get(), pixels.get(), width, 0, height, format, &bytes, &size,
                                   TJSAMP_444, std::clamp(quality, 1, 100), TJFLAG_ACCURATEDCT);
    const Bytes jpeg{bytes};
    const std::string_view written{reinterpret_cast<const char*>(jpeg.get()), size};
    return failed == 0 && writeFile(QFile::decodeName(jpegPath), written) ? 1 : 0;
}
