// The chart file: four lines of shifted text in Latin-1 that hold the birth data, from which the chart is
// cast again. Hour and minute are not kept.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "chart/chart_model.h"

// The most that is read of a line, in bytes: as much as the name box can hold.
inline constexpr std::size_t longestLine = 32767;

// The bytes of a chart file: name, day, month name and year, each encoded and ended by CR LF. Characters that
// Latin-1 does not have become "?".
std::string chartFileBytes(const ChartInput& input);

// Writes the chart file whole or not at all: a file of that name that was there before stays as it was unless
// the new one is complete. Returns whether it was written.
bool writeChartFile(const std::filesystem::path& path, const ChartInput& input);

// Whether the name's last three characters are "plf", in small letters; a dot is not asked for.
bool hasChartFileEnding(std::string_view name);

// The decoded values of a chart file, in Latin-1; empty where the file has no such line.
struct ChartFileValues {
    std::string name;
    std::string day;
    std::string month;
    std::string year;
};

// Reads a chart file. Lines end in CR LF, LF or CR. A line longer than longestLine is cut there and is the
// last one read. A file that can't be read, or is no regular file, yields empty values.
ChartFileValues readChartFile(const std::filesystem::path& path);
