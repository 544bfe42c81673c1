#include "files/picture_name.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr int lastCounter = 999;

int lowered(char character) { return std::tolower(static_cast<unsigned char>(character)); }

// The text with each occurrence of the part, in any case of letters, replaced.
std::string replaced(std::string_view text, std::string_view part, std::string_view by) {
    std::string result;
    while (!text.empty()) {
        const bool found = std::ranges::equal(text.substr(0, part.size()), part, {}, lowered, lowered);
        result += found ? by : text.substr(0, 1);
        text.remove_prefix(found ? part.size() : 1);
    }
    return result;
}

// Separators are reduced pair by pair: three become two, which does no harm.
std::string tidyFolder(std::string_view folder, const PictureSurroundings& around) {
    std::string given{folder.empty() ? around.applicationFolder : folder};
    if (!given.ends_with('/')) given += '/';
    return replaced(given, "//", "/");
}

std::string pictureNameFor(std::string_view name, const PictureSurroundings& around) {
    if (name.empty()) return around.clock + std::string{pictureExtension};
    if (name.find('.') == std::string_view::npos) return std::string{name}.append(pictureExtension);
    return replaced(name, ".bmp", pictureExtension);
}

// The name with so many bytes less before its first dot, or a few more where a UTF-8 character would be cut.
std::string shortened(std::string_view name, std::size_t excess) {
    const std::size_t dot = name.find('.');
    std::size_t end = dot - std::min(excess, dot);
    while (end > 0 && (name[end] & 0xC0) == 0x80) --end;
    return std::string{name.substr(0, end)}.append(name.substr(dot));
}

std::string counted(std::string_view name, int counter) {
    const std::string mark = "_" + std::to_string(1000 + counter).substr(1) + ".";
    std::string whole = replaced(name, ".", mark);
    if (whole.size() <= longestFileName) return whole;
    return replaced(shortened(name, whole.size() - longestFileName), ".", mark);
}

}  // namespace

PictureName uniquePictureName(std::string_view folder, std::string_view name,
                              const PictureSurroundings& around) {
    const std::string tidy = tidyFolder(folder, around);
    const std::string wanted = pictureNameFor(name, around);
    for (int counter = 0; counter <= lastCounter; ++counter) {
        const std::string candidate = counter == 0 ? wanted : counted(wanted, counter);
        if (!around.exists(tidy + candidate)) return {tidy, candidate, false};
    }
    return {tidy, wanted, true};
}

std::string bitmapPathFor(const std::string& picturePath) {
    const auto nameStart = picturePath.rfind('/') + 1;  // 0 where there is no folder
    return picturePath.substr(0, nameStart) +
           replaced(picturePath.substr(nameStart), pictureExtension, ".bmp");
}
