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

// The chart of a birth, cast after another one or, as at the program's start, after none.
inline ChartModel cast(const BirthEntry& entry, ChartModel chart = {}) {
    EXPECT_TRUE(generateChart(entry, chart).has_value());
    return chart;
}

// What a label shows of a cell.
inline std::string shownIn(const ChartCell& cell, const CellField& field) {
    if (field.flag != nullptr) return cell.*field.flag ? std::string{field.text.text()} : "";
    return std::string{(cell.*field.caption).text()};
}

// Everything that stands in the cell, label after label.
inline std::string cellLine(const ChartModel& chart, CellIndex cell) {
    std::string line;
    for (const CellField& field : cellFields)
        if (const std::string text = shownIn(chart.cell(cell), field); !text.empty()) line += ", " + text;
    return line.substr(2);
}

// A chart worked out by hand.
inline const BirthEntry handBirth = birth("5.3.1985");
inline constexpr std::array<std::string_view, cellCount> handCells{
    "Health, Wu, Zi Wei\r\nYin, Tian Fu, Tian Gui, Yin Sha, Qing Yang, Hua ke",
    "Wealth, Ji, Mao, Tai Yin, Wen Chang, Lu Cun, Hua Ji",
    "Children, Geng, Chen, Tan Lang, Di Kong, Zuo Fu, Tuo Luo, Tian Guan",
    "Marriage, Xin, Si, Ju Men, Tian Wu",
    "Siblings, Ren, Wu, Lian Zhen, Tian Xiang, Di Jie, Ba Zuo, En Guang",
    "Life Palace, Wood\r\nGui, Wei, Tian Liang, Hua Quan",
    "Parents, Jia, Shen, Qi Sha, San Tai, Jie Shen, Tian Yue, Tian Fu",
    "Fortune, Yi, * Body, You, Tian Tong, Feng Gao, Tian Xing",
    "Property, Bing, Xu, Wu Qu, You Bi, Tian Yue",
    "Career, Ding, Hai, Tai Yang, Wen Qu",
    "Friends, Wu, Zi, Po Jun, Tian Kui",
    "Travel, Ji, Chou, Tian Ji, Tai Fu, Tian Yao, Hua Lu"};
