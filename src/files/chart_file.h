// The chart file: four lines of shifted Latin-1 text with the birth data, from which the chart is cast again.
// Intentional: without hour and minute.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "chart/chart_model.h"

// The most bytes of a chart file that are read: four lines, each as long as a QLineEdit allows.
inline constexpr std::size_t longestChartFile = std::size_t{4} * (32767 + 2);

// Shift each byte by +85 or -85, so that the file is not plain text; bytes that would leave the range 0..255
// are left out. An encoded line has no byte below 85, and so no line break.
std::string EncodeLine(std::string_view text);
std::string DecodeLine(std::string_view text);

// The bytes of a chart file: name, day, month name and year, each encoded and ended by CR LF. Characters
// outside Latin-1 become "?".
std::string chartFileBytes(const ChartInput& input);

// Whether the name ends in "plf", in lower case. Intentional: no dot is required.
bool hasChartFileEnding(std::string_view name);

// The decoded values of a chart file, in Latin-1; empty where a line is missing.
struct ChartFileValues {
    std::string name, day, month, year;
};

// Lines end in CR LF, LF or CR; those after the fourth are ignored.
ChartFileValues chartFileValues(std::string_view bytes);
