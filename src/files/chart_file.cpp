#include "files/chart_file.h"

#include <fstream>
#include <istream>

#include "files/line_shift.h"
#include "files/whole_file.h"

namespace {

constexpr std::size_t lineCount = 5;

std::string latin1(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t character : text) bytes += character <= 0xFF ? static_cast<char>(character) : '?';
    return bytes;
}

// Reads one line, takes its end away, and returns whether there may be another one.
bool readLine(std::streambuf& source, std::string& line) {
    constexpr int end = std::char_traits<char>::eof();
    for (int code = source.sbumpc(); code != end; code = source.sbumpc()) {
        if (code == '\n') return true;
        if (code == '\r') {
            if (source.sgetc() == '\n') source.sbumpc();
            return true;
        }
        if (line.size() == longestLine) return false;
        line += static_cast<char>(code);
    }
    return false;
}

// Five lines are read, and the fifth is never used: the place stays free for a later form of the file.
std::array<std::string, lineCount> readLines(std::istream& file) {
    std::array<std::string, lineCount> slots;
    for (std::string& slot : slots) {
        if (!readLine(*file.rdbuf(), slot)) break;
    }
    return slots;
}

}  // namespace

std::string chartFileBytes(const ChartInput& input) {
    std::string bytes;
    for (const std::string& line : {latin1(input.name), std::to_string(input.day), std::string{input.month},
                                    std::to_string(input.year)}) {
        bytes += EncodeLine(line) + "\r\n";
    }
    return bytes;
}

bool writeChartFile(const std::filesystem::path& path, const ChartInput& input) {
    WholeFile file{path};
    return file.write(chartFileBytes(input)) && file.commit();
}

bool hasChartFileEnding(std::string_view name) { return name.ends_with("plf"); }

ChartFileValues readChartFile(const std::filesystem::path& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) return {};
    std::ifstream file{path, std::ios::binary};
    if (!file) return {};
    const auto slots = readLines(file);
    return {DecodeLine(slots[0]), DecodeLine(slots[1]), DecodeLine(slots[2]), DecodeLine(slots[3])};
}
