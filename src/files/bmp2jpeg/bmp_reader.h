// Reads uncompressed BMP files: 8-bit with a palette, 24-bit and 32-bit, stored in either direction.
// A file's own claims are checked against its real size before any memory is set aside for them.

#pragma once

#include <turbojpeg.h>

#include <memory>
#include <optional>

namespace bmp2jpeg {

struct Bitmap {
    int width;
    int height;
    int rowBytes;
    bool bottomUp;
    TJPF format;
    std::unique_ptr<unsigned char[]> pixels;  // height rows of rowBytes each
};

// Gives nothing if the file cannot be read, is not a regular file, is damaged or is of another kind.
std::optional<Bitmap> readBmp(const char* path);

}  // namespace bmp2jpeg
