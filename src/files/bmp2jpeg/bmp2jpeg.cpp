#include "files/bmp2jpeg/bmp2jpeg.h"

#include <turbojpeg.h>

#include <QFile>
#include <QScopeGuard>
#include <algorithm>

#include "bmp2jpeg_export.h"
#include "files/saved_files.h"

BMP2JPEG_EXPORT int BmpToJpeg(const char* bmpPath, const char* jpegPath, int quality) noexcept {
    if (bmpPath == nullptr || jpegPath == nullptr) return 0;
    int width = 0, height = 0, format = TJPF_UNKNOWN;
    unsigned char* bytes = nullptr;
    unsigned char* const pixels = tjLoadImage(bmpPath, &width, 1, &height, &format, 0);
    const tjhandle compressor = tjInitCompress();
    const auto guard = qScopeGuard([&] {
        tjFree(bytes);
        tjFree(pixels);
        tjDestroy(compressor);
    });
    if (pixels == nullptr || compressor == nullptr) return 0;
    unsigned long size = 0;
    // Without chroma subsampling, so that thin coloured strokes stay sharp.
    const int failed = tjCompress2(compressor, pixels, width, 0, height, format, &bytes, &size, TJSAMP_444,
                                   std::clamp(quality, 1, 100), TJFLAG_ACCURATEDCT);
    const std::string_view jpeg{reinterpret_cast<const char*>(bytes), size};
    return failed == 0 && writeFile(QFile::decodeName(jpegPath), jpeg) ? 1 : 0;
}
