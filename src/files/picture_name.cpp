#include "files/picture_name.h"

#include <array>
#include <cctype>
#include <cstdio>

namespace {

constexpr int lastCounter = 999;

// Doubled separators are reduced pair by pair, so three of them become two: harmless to the file system.
std::string tidyFolder(std::string_view folder, const PictureSurroundings& around) {
    std::string given{folder.empty() ? std::string_view{around.applicationFolder} : folder};
    if (!given.ends_with(around.separator)) given += around.separator;
    std::string tidy;
    for (std::size_t i = 0; i < given.size(); ++i) {
        tidy += given[i];
        const bool doubled = given[i] == around.separator && given.substr(i + 1, 1) == given.substr(i, 1);
        if (doubled) ++i;
    }
    return tidy;
}

std::string clockName(const ClockTime& time) {
    std::array<char, 96> digits{};
    std::snprintf(digits.data(), digits.size(), "%04d%02d%02d%02d%02d%02d%03d.jpg", time.year, time.month,
                  time.day, time.hour, time.minute, time.second, time.millisecond);
    return digits.data();
}

bool sameButForCase(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(left[i])) !=
            std::tolower(static_cast<unsigned char>(right[i]))) {
            return false;
        }
    }
    return true;
}

std::string withEndingReplaced(std::string_view text, std::string_view ending, std::string_view by) {
    std::string result;
    while (!text.empty()) {
        if (sameButForCase(text.substr(0, ending.size()), ending)) {
            result += by;
            text.remove_prefix(ending.size());
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

std::string pictureNameFor(std::string_view name, const PictureSurroundings& around) {
    if (name.empty()) return clockName(around.now());
    if (name.find('.') == std::string_view::npos) return std::string{name} + ".jpg";
    return withEndingReplaced(name, ".bmp", ".jpg");
}

std::string counted(std::string_view name, int counter) {
    std::array<char, 16> mark{};
    std::snprintf(mark.data(), mark.size(), "_%03d.", counter);
    std::string result;
    for (const char character : name) {
        if (character == '.') {
            result += mark.data();
        } else {
            result += character;
        }
    }
    return result;
}

}  // namespace

PictureName uniquePictureName(std::string_view folder, std::string_view name,
                              const PictureSurroundings& around) {
    const std::string tidy = tidyFolder(folder, around);
    const std::string wanted = pictureNameFor(name, around);
    if (!around.exists(tidy + wanted)) return {tidy, wanted, false};
    for (int counter = 1; counter <= lastCounter; ++counter) {
        const std::string candidate = counted(wanted, counter);
        if (!around.exists(tidy + candidate)) return {tidy, candidate, false};
    }
    return {tidy, wanted, true};
}

std::string bitmapPathFor(const std::string& picturePath, char separator) {
    const auto slash = picturePath.rfind(separator);
    const auto nameStart = slash == std::string::npos ? 0 : slash + 1;
    return picturePath.substr(0, nameStart) +
           withEndingReplaced(picturePath.substr(nameStart), ".jpg", ".bmp");
}
