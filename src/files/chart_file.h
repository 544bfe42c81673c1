// The chart file: four lines of shifted text in Latin-1 that hold the birth data, from which the chart is
// cast again. Hour and minute are not kept.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "chart/chart_model.h"

// How many bytes of a chart file are read: four lines, each as long as the longest name that the name box
// takes.
inline constexpr std::size_t longestChartFile = std::size_t{4} * (32767 + 2);

// The shift that every line of a chart file passes through, so that the file is not plain text: each code
// plus 85, or less 85; codes that can't be shifted are left out. An encoded line holds no code below 85, and
// so no line end.
std::string EncodeLine(std::string_view text);
std::string DecodeLine(std::string_view text);

// The bytes of a chart file: name, day, month name and year, each encoded and ended by CR LF. Characters that
// Latin-1 does not have become "?".
std::string chartFileBytes(const ChartInput& input);

// Whether the name's last three characters are "plf", in small letters; a dot is not asked for.
bool hasChartFileEnding(std::string_view name);

// The decoded values of a chart file, in Latin-1; empty where the file has no such line.
struct ChartFileValues {
    std::string name;
    std::string day;
    std::string month;
    std::string year;
};

// Takes the values from the bytes of a chart file. Lines end in CR LF, LF or CR; those after the fourth are
// passed over.
ChartFileValues chartFileValues(std::string_view bytes);
