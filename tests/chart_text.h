// Charts as lines of text, so that whole charts can be written down and compared at sight.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "chart/generate.h"

// The date "day.month.year".
inline PickedDate dateOf(const std::string& date) {
    const auto dot = date.find('.'), lastDot = date.rfind('.');
    return {std::stoi(date) - 1, std::stoi(date.substr(dot + 1)) - 1,
            std::stoi(date.substr(lastDot + 1)) - firstYear};
}

inline BirthEntry birth(const std::string& date, int hour = 13, int minute = 1) {
    return {u" JOHN SMITH ", dateOf(date), hour, minute};
}

inline ChartModel cast(const BirthEntry& entry) {
    ChartModel chart;
    EXPECT_TRUE(generateChart(entry, chart).has_value());
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

// What a label shows of a cell.
inline std::string shownIn(const ChartCell& cell, const CellField& field) {
    if (field.flag != nullptr) return cell.*field.flag ? std::string{field.text.text()} : "";
    return std::string{(cell.*field.caption).text()};
}

// Palace and stem, and then everything else that stands in the cell.
inline std::string cellLine(const ChartModel& chart, CellIndex cell) {
    std::string line;
    for (const CellField& field : cellFields) addLabel(line, field.name, shownIn(chart.cell(cell), field));
    return line;
}

// Charts worked out by hand, one after another in one run of the program: what was entered, lunar month, Life
// and Body Palace, element and year stem, then the cells.
struct HandChart {
    BirthEntry entry;
    std::string values;
    std::array<std::string_view, cellCount> cells;
};

// clang-format off
inline const std::array<HandChart, 4> handCharts{{
    {birth("5.3.1985"), "5 March 1985: 1 Wei You Wood Yi",
     {"Health, Wu, Zi Wei/Yin, Tian Fu, Tian Gui, Yin Sha, Qing Yang, Hua ke",
      "Wealth, Ji, Mao, TianFu=Tai Yin, Wen Chang, Lu Cun, Hua Ji",
      "Children, Geng, Chen, TianFu=Tan Lang, Di Kong, Zuo Fu, Tuo Luo, Tian Guan",
      "Marriage, Xin, Si, TianFu=Ju Men, Tian Wu",
      "Siblings, Ren, Wu, MajorStars=Lian Zhen, TianFu=Tian Xiang, Di Jie, Ba Zuo, En Guang",
      "Life Palace, Wood/Gui, Wei, TianFu=Tian Liang, Hua Quan",
      "Parents, Jia, Shen, TianFu=Qi Sha, San Tai, Jie Shen, TianYueTwo=Tian Yue, TianFutwo=Tian Fu",
      "Fortune, Yi, Body=* Body, You, MajorStars=Tian Tong, Feng Gao, Tian Xing",
      "Property, Bing, Xu, MajorStars=Wu Qu, You Bi, Tian Yue",
      "Career, Ding, Hai, MajorStars=Tai Yang, WenQi=Wen Qu",
      "Friends, Wu, Zi, TianFu=Po Jun, Tian Kui",
      "Travel, Ji, Chou, MajorStars=Tian Ji, Tai Fu, Tian Yao, Hua Lu"}},
    {birth("29.2.1992", 0, 0), "29 February 1992: 1 Yin Yin Metal Ren",  // midnight: cast for 1 March
     {"Life Palace, Metal/Ren, Body=* Body, Yin, Feng Gao, Yin Sha",
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
    {birth("31.8.1987", 18, 30), "31 August 1987: 7 Hai Si Metal Ding",  // a 31st: Zi Wei stays as in the chart before
     {"Property, Ren, Yin, Di Kong, Jie Shen, Tian Wu, Yin Sha, TianYueTwo=Tian Yue, Tian Guan",
      "Career, Gui, Mao, MajorStars=Lian Zhen, TianFu=Po Jun, Tai Fu, Tian Xing",
      "Friends, Jia, Chen, You Bi, San Tai",
      "Travel, Yi, Body=* Body, Si, Tian Fu, Qing Yang",
      "Health, Bing, Wu, MajorStars=Tian Tong, TianFu=Tai Yin, En Guang, Tian Gui, Lu Cun, Tian Kui, Hua Lu, Hua Quan",
      "Wealth, Ding, Wei, MajorStars=Wu Qu, TianFu=Tan Lang, Tian Yao, Tuo Luo",
      "Children, Wu, Shen, MajorStars=Tai Yang, TianFu=Ju Men, Di Jie, Hua Ji",
      "Marriage, Ji, You, TianFu=Tian Xiang",
      "Siblings, Geng, Xu, MajorStars=Tian Ji, TianFu=Tian Liang, Zuo Fu, Ba Zuo, Hua ke",
      "Life Palace, Metal/Xin, Zi Wei/Hai, TianFu=Qi Sha, Feng Gao, Tian Yue, TianFutwo=Tian Fu",
      "Parents, Ren, Zi",
      "Fortune, Gui, Chou, Wen Chang, WenQi=Wen Qu"}},
    {birth("17.5.1996", 23, 30), "17 May 1996: 7 Shen Shen Fire Bing",  // a date without a number: the month of the chart before
     {"Travel, Geng, Yin, MajorStars=Tian Ji, TianFu=Tai Yin, Feng Gao, San Tai, Jie Shen, Tian Wu, Yin Sha, TianYueTwo=Tian Yue, Hua Quan",
      "Health, Xin, Zi Wei/Mao, TianFu=Tan Lang, Tian Xing",
      "Wealth, Ren, Chen, TianFu=Ju Men, WenQi=Wen Qu, You Bi, Qing Yang",
      "Children, Gui, Si, TianFu=Tian Xiang, Lu Cun, Tian Guan",
      "Marriage, Jia, Wu, TianFu=Tian Liang, Tai Fu, Tuo Luo, Tian Kui",
      "Siblings, Yi, Wei, MajorStars=Lian Zhen, TianFu=Qi Sha, Tian Yao, Tian Gui, Hua Ji",
      "Life Palace, Fire/Bing, Body=* Body, Shen",
      "Parents, Ding, You",
      "Fortune, Wu, Xu, MajorStars=Tian Tong, Wen Chang, Zuo Fu, Hua Lu, Hua ke",
      "Property, Ji, Hai, MajorStars=Wu Qu, TianFu=Po Jun, Di Jie, Di Kong, Tian Yue",
      "Career, Geng, Zi, MajorStars=Tai Yang, Ba Zuo, TianFutwo=Tian Fu",
      "Friends, Xin, Chou, Tian Fu, En Guang"}},
}};
// clang-format on
