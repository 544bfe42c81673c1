// Where every label of the chart stands. Places are in twips (1/1440 inch) at the chart's scale 1, those in a
// cell counted from the cell's top left corner, those of the centre from the centre block's.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <array>
#include <span>
#include <string_view>

#include "chart/cell_index.h"

inline constexpr int cellWidth = 3600;
inline constexpr int cellHeight = 2160;
inline constexpr int frameOverlap =
    15;  // frames reach one pixel into their neighbours, so that borders coincide
inline constexpr int hintHeight = 300;

// How a label is written; the sizes are in pixels at scale 1.
struct LabelStyle {
    int pixelSize;
    bool bold;
};

enum class CellStyle { quiet, palace, tianFuGroup, ziWeiGroup, minor, transformation, body };
constexpr LabelStyle styleOf(CellStyle style) {
    switch (style) {
        case CellStyle::quiet:
            return {10, false};
        case CellStyle::palace:
        case CellStyle::tianFuGroup:
        case CellStyle::ziWeiGroup:
            return {12, true};
        case CellStyle::body:
            return {10, true};
        case CellStyle::minor:
        case CellStyle::transformation:
            break;
    }
    return {11, false};
}

// A label that every cell has. The width is the least; a label is wider where its longest text asks for it.
struct CellLabel {
    std::string_view name;
    int left;
    int top;
    int minimumWidth;
    CellStyle style;
    std::string_view longestText;
};

// All 35 labels of a cell.
std::span<const CellLabel> cellLabels();

enum class CentreStyle { name, heading, prompt, value };
constexpr LabelStyle styleOf(CentreStyle style) {
    switch (style) {
        case CentreStyle::name:
            return {20, true};
        case CentreStyle::heading:
            return {14, false};
        case CentreStyle::prompt:
            return {11, false};
        case CentreStyle::value:
            break;
    }
    return {12, true};
}

// A label of the centre block: one that is filled, or a fixed prompt, which has a text.
struct CentreLabel {
    std::string_view name;
    std::string_view prompt;
    int left;
    int top;
    int width;
    int height;
    CentreStyle style;
    bool centred;
};

std::span<const CentreLabel> centreLabels();

// The line between who and when and the rest.
struct CentreRule {
    int left, top, width;
};
inline constexpr CentreRule centreRule{1800, 1800, 3600};

// Column and row of a cell on the 4 x 4 square, from the top left.
struct GridPlace {
    int column;
    int row;
    friend constexpr bool operator==(GridPlace, GridPlace) = default;
};
constexpr GridPlace gridPlace(CellIndex cell) {
    constexpr std::array<GridPlace, cellCount> places{{
        {0, 3},
        {0, 2},
        {0, 1},
        {0, 0},  // Yin, Mao, Chen, Si: up the left side
        {1, 0},
        {2, 0},
        {3, 0},  // Wu, Wei, Shen: along the top
        {3, 1},
        {3, 2},
        {3, 3},  // You, Xu, Hai: down the right side
        {2, 3},
        {1, 3},  // Zi, Chou: back along the bottom
    }};
    return places[cell.index()];
}

// The cell that one step on the screen leads to: the next one in that direction, across the centre where that
// lies between; the same cell at the square's edge. Steps are -1, 0 or 1.
CellIndex neighbour(CellIndex cell, int columnStep, int rowStep);

// The scale at which the chart is drawn, told by the size in pixels of the minor stars' names: whole pixels,
// so that text stays crisp at every step.
class ChartScale {
  public:
    explicit constexpr ChartScale(int minorPixels) : minorPixels_(minorPixels) {}

    // The largest scale at which a chart with its hint line goes into the room, or one at which it scrolls;
    // never one at which the text is too small to be read on a screen of this pixel ratio.
    static ChartScale largestFor(const QSize& room, double devicePixelRatio);

    constexpr int minorPixels() const { return minorPixels_; }
    int pixels(int twips) const;          // a length or a place, in pixels
    int fontPixels(int pixelSize) const;  // a font's size, in pixels
    QRect cellFrame(CellIndex cell) const;
    QRect centreFrame() const;
    QSize squareSize() const;
    QSize chartSize() const;  // the square and the hint line, with their margins
    int margin() const { return pixels(60); }

    friend bool operator==(const ChartScale&, const ChartScale&) = default;

  private:
    int minorPixels_;
};

inline constexpr ChartScale naturalScale{styleOf(CellStyle::minor).pixelSize};
