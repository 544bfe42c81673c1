// The layout of the square of cells, and the scale at which the chart is drawn.
#pragma once

#include <QRect>
#include <QSize>
#include <array>

#include "chart/cell_index.h"
#include "display/label_places.h"

// In twips at scale 1.
inline constexpr int cellWidth = 3600;
inline constexpr int cellHeight = 2160;
inline constexpr int hintHeight = 300;

// Column and row of a cell on the square of four by four, from the top left.
// clang-format off
constexpr QPoint gridPlace(CellIndex cell) {
    constexpr std::array<QPoint, cellCount> places{{
        {0, 3}, {0, 2}, {0, 1}, {0, 0},  // Yin, Mao, Chen, Si: up the left side
        {1, 0}, {2, 0}, {3, 0},          // Wu, Wei, Shen: along the top
        {3, 1}, {3, 2}, {3, 3},          // You, Xu, Hai: down the right side
        {2, 3}, {1, 3},                  // Zi, Chou: back along the bottom
    }};
    return places[cell.index()];
}
// clang-format on

// The next cell in the direction of the step, which is one column or one row, skipping the centre block; at
// the edge of the square, the same cell.
CellIndex neighbour(CellIndex cell, QPoint step);

// The scale, given by the pixel size of the minor stars' names: whole pixels, so that text stays crisp.
class ChartScale {
  public:
    explicit constexpr ChartScale(int minorPixels) : minorPixels_(minorPixels) {}

    // The largest scale at which the chart and its hint line fit into the room, with text that is legible at
    // this device pixel ratio. If there is none, a legible scale at which the chart scrolls.
    static ChartScale largestFor(const QSize& room, double devicePixelRatio);

    int pixels(int twips) const;            // a length or a place, in pixels
    int fontPixels(int pixelSize) const;    // a font's size, in pixels
    QRect cellFrame(CellIndex cell) const;  // one pixel into the next cells, so that borders coincide
    QRect centreFrame() const;
    QSize squareSize() const;
    QSize chartSize() const;  // the square and the hint line, with their margins
    int margin() const { return pixels(60); }

    friend bool operator==(const ChartScale&, const ChartScale&) = default;

  private:
    int minorPixels_;
};

inline constexpr ChartScale naturalScale{lookOf(LabelKind::minor).pixelSize};
