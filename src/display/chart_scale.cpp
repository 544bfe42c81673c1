#include "display/chart_scale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int largestMinorPixels = 60;
constexpr int smallestMinorPixels = 6;
constexpr int scrolledMinorPixels = 7;  // a chart that scrolls anyway need not be at its smallest
constexpr double smallestLegibleDots = 10;

}  // namespace

CellIndex neighbour(CellIndex cell, int columnStep, int rowStep) {
    GridPlace place = gridPlace(cell);
    for (;;) {
        place = {place.column + columnStep, place.row + rowStep};
        if (place.column < 0 || place.column > 3 || place.row < 0 || place.row > 3) return cell;
        for (const CellIndex other : allCells) {
            if (gridPlace(other) == place) return other;
        }
    }
}

ChartScale ChartScale::largestFor(const QSize& room, double devicePixelRatio) {
    const int legible = static_cast<int>(std::ceil(smallestLegibleDots / devicePixelRatio));
    for (int pixels = largestMinorPixels; pixels >= std::max(legible, smallestMinorPixels); --pixels) {
        const QSize size = ChartScale{pixels}.chartSize();
        if (size.width() <= room.width() && size.height() <= room.height()) return ChartScale{pixels};
    }
    return ChartScale{std::max(legible, scrolledMinorPixels)};
}

int ChartScale::pixels(int twips) const {
    return static_cast<int>(
        std::ceil(look::pixels(static_cast<double>(twips) * minorPixels_ / naturalScale.minorPixels())));
}

int ChartScale::fontPixels(int pixelSize) const {
    return pixelSize * minorPixels_ / naturalScale.minorPixels();
}

QRect ChartScale::cellFrame(CellIndex cell) const {
    const GridPlace place = gridPlace(cell);
    const QPoint topLeft{pixels(cellWidth * place.column), pixels(cellHeight * place.row)};
    const QPoint next{pixels(cellWidth * (place.column + 1)), pixels(cellHeight * (place.row + 1))};
    return {topLeft, next};  // one pixel into the neighbour
}

QRect ChartScale::centreFrame() const {
    return {QPoint{pixels(cellWidth), pixels(cellHeight)},
            QPoint{pixels(3 * cellWidth), pixels(3 * cellHeight)}};
}

QSize ChartScale::squareSize() const { return {pixels(4 * cellWidth) + 1, pixels(4 * cellHeight) + 1}; }

QSize ChartScale::chartSize() const {
    return squareSize() + QSize{2 * margin(), 2 * margin() + pixels(hintHeight)};
}
