#include "files/chart_file.h"

#include <algorithm>

namespace {

std::string shifted(std::string_view text, int shift) {
    std::string result;
    for (const char character : text) {
        const int code = static_cast<unsigned char>(character) + shift;
        if (code >= 0 && code <= 255) result += static_cast<char>(code);
    }
    return result;
}

std::string latin1(std::u16string_view text) {
    std::string bytes;
    for (const char16_t character : text) bytes += character <= 0xFF ? static_cast<char>(character) : '?';
    return bytes;
}

// Removes the first line from the bytes and returns it decoded.
std::string nextLine(std::string_view& bytes) {
    const std::string_view line = bytes.substr(0, bytes.find_first_of("\r\n"));
    bytes.remove_prefix(line.size());
    const std::size_t lineEnd = bytes.starts_with("\r\n") ? 2 : 1;
    bytes.remove_prefix(std::min(lineEnd, bytes.size()));
    return DecodeLine(line);
}

}  // namespace

std::string EncodeLine(std::string_view text) { return shifted(text, 85); }
std::string DecodeLine(std::string_view text) { return shifted(text, -85); }

std::string chartFileBytes(const ChartInput& input) {
    std::string bytes;
    for (const std::string& line : {latin1(input.name), std::to_string(input.day), std::string{input.month},
                                    std::to_string(input.year)}) {
        bytes += EncodeLine(line) + "\r\n";
    }
    return bytes;
}

bool hasChartFileEnding(std::string_view name) { return name.ends_with("plf"); }

ChartFileValues chartFileValues(std::string_view bytes) {
    return {nextLine(bytes), nextLine(bytes), nextLine(bytes), nextLine(bytes)};
}
