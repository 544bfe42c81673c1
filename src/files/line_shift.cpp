#include "files/line_shift.h"

namespace {

std::string shifted(std::string_view text, int shift) {
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        const int code = static_cast<unsigned char>(character) + shift;
        if (code >= 0 && code <= 255) result += static_cast<char>(code);
    }
    return result;
}

}  // namespace

std::string EncodeLine(std::string_view text) { return shifted(text, 85); }
std::string DecodeLine(std::string_view text) { return shifted(text, -85); }
