// Charts as lines of text, so that whole charts can be written down, compared at sight and digested.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chart/birth_entry.h"
#include "chart/generate.h"

// The lists as they stand on a date "day.month.year".
inline DateLists dateOf(const std::string& date) {
    const auto dot = date.find('.'), lastDot = date.rfind('.');
    return {std::stoi(date) - 1, std::stoi(date.substr(dot + 1)) - 1,
            std::stoi(date.substr(lastDot + 1)) - firstYear};
}

// The halves of "left=right left=right ...".
inline std::vector<std::pair<std::string, std::string>> pairsOf(const char* list) {
    std::istringstream entries{list};
    std::vector<std::pair<std::string, std::string>> pairs;
    for (std::string left, right; std::getline(entries >> std::ws, left, '=') >> right;)
        pairs.emplace_back(left, right);
    return pairs;
}

inline BirthEntry birth(const std::string& date, int hour = 13, int minute = 1) {
    return {u" JOHN SMITH ", dateOf(date), hour, minute};
}

inline ChartModel cast(BirthEntry entry) {
    ChartModel chart;
    EXPECT_EQ(generateChart(entry, chart), Generation::done);
    return chart;
}

// Adds a label's text to a cell's line, after the label's own name where the two do not agree.
inline void addLabel(std::string& line, std::string_view name, std::string text) {
    if (text.empty()) return;
    const auto lineBreak = text.find("\r\n");
    if (lineBreak != std::string::npos) text.replace(lineBreak, 2, "/");
    std::string bare = "lbl" + text;
    std::erase(bare, ' ');
    const bool leads = name == "lblPalace" || name == "lblPalaceSteam" || name == "lblEarthlyBranches";
    line += line.empty() ? "" : ", ";
    if (!leads && bare != name) line += std::string{name.substr(3)} + "=";
    line += text;
}

// Palace, stem and branch, and then everything else that stands in the cell.
inline std::string cellLine(const ChartModel& chart, CellIndex cell) {
    std::string line;
    for (const CaptionField& caption : captionFields) {
        addLabel(line, caption.name, std::string{(chart.cell(cell).*caption.field).text()});
    }
    for (const FlagField& flag : flagFields) {
        if (chart.cell(cell).*flag.field) addLabel(line, flag.name, std::string{flag.text});
    }
    return line;
}

// The 64-bit FNV-1a digest of the text, going on from that of the text before.
inline constexpr std::uint64_t emptyDigest = 0xcbf29ce484222325;
inline std::uint64_t digest(std::string_view text, std::uint64_t before = emptyDigest) {
    for (const char byte : text) before = (before ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return before;
}

// Charts worked out by hand: lunar month, Life and Body Palace, element and year stem, then the cells.
struct HandChart {
    BirthEntry entry;
    std::string values;
    std::array<std::string_view, cellCount> cells;
};

// clang-format off
inline const std::array<HandChart, 2> handCharts{{
    {birth("5.3.1985"), "1 5 7 Wood Yi",
     {"Health, Wu, Zi Wei/Yin, Tian Fu, Tian Gui, Yin Sha, Qing Yang, Hua ke",
      "Wealth, Ji, Mao, TianFu=Tai Yin, Wen Chang, Lu Cun, Hua Ji",
      "Children, Geng, Chen, TianFu=Tan Lang, Di Kong, Zuo Fu, Tuo Luo, Tian Guan",
      "Marriage, Xin, Si, TianFu=Ju Men, Tian Wu",
      "Siblings, Ren, Wu, MajorStars=Lian Zhen, TianFu=Tian Xiang, Di Jie, Ba Zuo, En Guang",
      "Life Palace, Wood/Gui, Wei, TianFu=Tian Liang, Hua Quan",
      "Parents, Jia, Shen, TianFu=Qi Sha, San Tai, Jie Shen, TianYueTwo=Tian Yue, TianFutwo=Tian Fu",
      "Fortune, Yi, You, MajorStars=Tian Tong, Body=* Body, Feng Gao, Tian Xing",
      "Property, Bing, Xu, MajorStars=Wu Qu, You Bi, Tian Yue",
      "Career, Ding, Hai, MajorStars=Tai Yang, WenQi=Wen Qu",
      "Friends, Wu, Zi, TianFu=Po Jun, Tian Kui",
      "Travel, Ji, Chou, MajorStars=Tian Ji, Tai Fu, Tian Yao, Hua Lu"}},
    {birth("29.2.1992", 0, 0), "1 0 0 Metal Ren",  // midnight: cast for 1 March
     {"Life Palace, Metal/Ren, Yin, Body=* Body, Feng Gao, Yin Sha",
      "Parents, Gui, Mao, MajorStars=Lian Zhen, TianFu=Po Jun, Tian Gui, Tian Kui",
      "Fortune, Jia, Chen, WenQi=Wen Qu, Zuo Fu, San Tai, Hua ke",
      "Property, Yi, Si, Tian Fu, Tian Wu, TianYueTwo=Tian Yue",
      "Career, Bing, Wu, MajorStars=Tian Tong, TianFu=Tai Yin, Tai Fu, TianFutwo=Tian Fu",
      "Friends, Ding, Wei, MajorStars=Wu Qu, TianFu=Tan Lang, Hua Ji",
      "Travel, Wu, Shen, MajorStars=Tai Yang, TianFu=Ju Men, Jie Shen",
      "Health, Ji, You, TianFu=Tian Xiang, Tian Xing, En Guang",
      "Wealth, Geng, Xu, MajorStars=Tian Ji, TianFu=Tian Liang, Wen Chang, You Bi, Ba Zuo, Tian Yue, Qing Yang, Hua Lu, Tian Guan",
      "Children, Xin, Zi Wei/Hai, TianFu=Qi Sha, Di Jie, Di Kong, Lu Cun, Hua Quan",
      "Marriage, Ren, Zi, Tuo Luo",
      "Siblings, Gui, Chou, Tian Yao"}},
}};
// clang-format on
