#include "files/bmp2jpeg/bmp_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <utility>

#include "files/bmp2jpeg/unique_fd.h"

namespace bmp2jpeg {
namespace {

using Bytes = std::span<const unsigned char>;

constexpr std::int64_t kMaxSide = 32767;
constexpr std::int64_t kMaxPixels = std::int64_t{1} << 28;
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kHeadersSize = kFileHeaderSize + 40;  // the part which all versions have in common
constexpr std::size_t kMasksSize = 12;
constexpr std::uint32_t kRgb = 0;
constexpr std::uint32_t kBitFields = 3;

struct Header {
    std::uint32_t infoSize;
    std::int64_t width;
    std::int64_t height;
    bool bottomUp;
    unsigned bits;
    std::uint32_t compression;
    std::uint32_t colours;
    std::uint32_t pixelOffset;

    std::size_t paletteOffset() const { return kFileHeaderSize + infoSize; }
    std::int64_t rowBytes() const { return (width * bits + 31) / 32 * 4; }
    std::size_t pixelBytes() const { return static_cast<std::size_t>(rowBytes() * height); }
};

std::uint32_t littleEndian(Bytes bytes, std::size_t offset, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = count; i-- > 0;) {
        value = value << 8 | bytes[offset + i];
    }
    return value;
}

// Fills `out` from the file; false if the file ends before that.
bool readAt(int fd, std::size_t offset, std::span<unsigned char> out) {
    while (!out.empty()) {
        const ssize_t got = ::pread(fd, out.data(), out.size(), static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return false;
        }
        offset += static_cast<std::size_t>(got);
        out = out.subspan(static_cast<std::size_t>(got));
    }
    return true;
}

std::optional<Header> parseHeader(Bytes bytes) {
    if (bytes[0] != 'B' || bytes[1] != 'M' || littleEndian(bytes, 26, 2) != 1) {
        return std::nullopt;
    }
    const std::int64_t height = static_cast<std::int32_t>(littleEndian(bytes, 22, 4));
    Header header{.infoSize = littleEndian(bytes, 14, 4),
                  .width = static_cast<std::int32_t>(littleEndian(bytes, 18, 4)),
                  .height = std::abs(height),
                  .bottomUp = height > 0,
                  .bits = littleEndian(bytes, 28, 2),
                  .compression = littleEndian(bytes, 30, 4),
                  .colours = littleEndian(bytes, 46, 4),
                  .pixelOffset = littleEndian(bytes, 10, 4)};
    if (header.bits != 8) {
        header.colours = 0;  // true colour files may carry a palette as a hint, which is of no use here
    } else if (header.colours == 0) {
        header.colours = 256;
    }
    return header;
}

bool isSupported(const Header& header) {
    constexpr std::array<std::uint32_t, 5> infoSizes{40, 52, 56, 108, 124};
    if (std::ranges::find(infoSizes, header.infoSize) == infoSizes.end()) {
        return false;
    }
    if (header.compression == kBitFields) {
        return header.bits == 32;
    }
    return header.compression == kRgb && (header.bits == 8 || header.bits == 24 || header.bits == 32);
}

// True if everything the header speaks of lies within the file, in its proper order.
bool fits(const Header& header, std::size_t fileSize) {
    if (header.width < 1 || header.width > kMaxSide || header.height < 1 || header.height > kMaxSide ||
        header.width * header.height > kMaxPixels || header.colours > 256) {
        return false;
    }
    const bool looseMasks = header.compression == kBitFields && header.infoSize == 40;
    const std::size_t extra = looseMasks ? kMasksSize : std::size_t{4} * header.colours;
    return header.pixelOffset >= header.paletteOffset() + extra &&
           header.pixelOffset + header.pixelBytes() <= fileSize;
}

// The order of the colour bytes of true colour pixels.
std::optional<TJPF> pixelFormat(int fd, const Header& header) {
    if (header.compression == kRgb) {
        return header.bits == 24 ? TJPF_BGR : TJPF_BGRX;
    }
    std::array<unsigned char, kMasksSize> masks{};
    if (!readAt(fd, kHeadersSize, masks) || littleEndian(masks, 4, 4) != 0x0000FF00) {
        return std::nullopt;
    }
    const std::uint32_t red = littleEndian(masks, 0, 4);
    const std::uint32_t blue = littleEndian(masks, 8, 4);
    if (red == 0x00FF0000 && blue == 0x000000FF) {
        return TJPF_BGRX;
    }
    if (red == 0x000000FF && blue == 0x00FF0000) {
        return TJPF_RGBX;
    }
    return std::nullopt;
}

// Memory that is about to be filled, which for a whole screen's pixels is not worth clearing before.
std::unique_ptr<unsigned char[]> uncleared(std::size_t size) {
    return std::make_unique_for_overwrite<unsigned char[]>(size);
}

// Replaces palette indices by the colours they stand for; false if one points past the palette.
bool expandPalette(int fd, const Header& header, Bitmap& bitmap) {
    std::array<unsigned char, std::size_t{4} * 256> palette{};
    if (!readAt(fd, header.paletteOffset(), std::span(palette).first(std::size_t{4} * header.colours))) {
        return false;
    }
    const auto width = static_cast<std::size_t>(header.width);
    const auto rowBytes = static_cast<std::size_t>(header.rowBytes());
    auto pixels = uncleared(3 * width * static_cast<std::size_t>(header.height));
    auto* out = pixels.get();
    for (std::size_t row = 0; row < header.pixelBytes(); row += rowBytes) {
        for (const unsigned char index : Bytes(bitmap.pixels.get() + row, width)) {
            if (index >= header.colours) {
                return false;
            }
            out = std::copy_n(palette.begin() + std::ptrdiff_t{4} * index, 3, out);
        }
    }
    bitmap.pixels = std::move(pixels);
    bitmap.rowBytes = 3 * bitmap.width;
    return true;
}

std::optional<Bitmap> readPixels(int fd, const Header& header) {
    Bitmap bitmap{.width = static_cast<int>(header.width),
                  .height = static_cast<int>(header.height),
                  .rowBytes = static_cast<int>(header.rowBytes()),
                  .bottomUp = header.bottomUp,
                  .format = TJPF_BGR,
                  .pixels = {}};
    if (header.bits != 8) {
        const auto format = pixelFormat(fd, header);
        if (!format) {
            return std::nullopt;
        }
        bitmap.format = *format;
    }
    bitmap.pixels = uncleared(header.pixelBytes());
    if (!readAt(fd, header.pixelOffset, {bitmap.pixels.get(), header.pixelBytes()}) ||
        (header.bits == 8 && !expandPalette(fd, header, bitmap))) {
        return std::nullopt;
    }
    return bitmap;
}

}  // namespace

std::optional<Bitmap> readBmp(const char* path) {
    // Without O_NONBLOCK, opening a pipe would wait for its other end.
    const UniqueFd file(::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat info {};
    if (!file.valid() || ::fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return std::nullopt;
    }
    std::array<unsigned char, kHeadersSize> bytes{};
    if (!readAt(file.get(), 0, bytes)) {
        return std::nullopt;
    }
    const auto header = parseHeader(bytes);
    if (!header || !isSupported(*header) || !fits(*header, static_cast<std::size_t>(info.st_size))) {
        return std::nullopt;
    }
    return readPixels(file.get(), *header);
}

}  // namespace bmp2jpeg
