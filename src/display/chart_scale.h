// The square on which the cells lie, and the scale at which the chart is drawn.
#pragma once

#include <QRect>
#include <QSize>
#include <array>

#include "chart/cell_index.h"
#include "display/label_places.h"

// In twips (1/1440 inch) at scale 1. Frames reach one pixel into their neighbours, so that borders coincide.
inline constexpr int cellWidth = 3600;
inline constexpr int cellHeight = 2160;
inline constexpr int hintHeight = 300;

// Column and row of a cell on the 4 x 4 square, from the top left.
struct GridPlace {
    int column;
    int row;
    friend constexpr bool operator==(GridPlace, GridPlace) = default;
};
// clang-format off
constexpr GridPlace gridPlace(CellIndex cell) {
    constexpr std::array<GridPlace, cellCount> places{{
        {0, 3}, {0, 2}, {0, 1}, {0, 0},  // Yin, Mao, Chen, Si: up the left side
        {1, 0}, {2, 0}, {3, 0},          // Wu, Wei, Shen: along the top
        {3, 1}, {3, 2}, {3, 3},          // You, Xu, Hai: down the right side
        {2, 3}, {1, 3},                  // Zi, Chou: back along the bottom
    }};
    return places[cell.index()];
}
// clang-format on

// The next cell on the screen in the direction of the step, across the centre block where it lies between; at
// the square's edge, the same cell. Steps are -1, 0 or 1.
CellIndex neighbour(CellIndex cell, int columnStep, int rowStep);

// The scale at which the chart is drawn, told by the size in pixels of the minor stars' names: whole pixels,
// so that text stays crisp at every step.
class ChartScale {
  public:
    explicit constexpr ChartScale(int minorPixels) : minorPixels_(minorPixels) {}

    // The largest scale at which the chart and its hint line fit into the room and the text is still legible
    // at this device pixel ratio. Where there is none, a legible one at which the chart scrolls.
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

inline constexpr ChartScale naturalScale{lookOf(LabelKind::minor).pixelSize};
