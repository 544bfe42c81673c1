#include "display/chart_scale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int largestMinorPixels = 60;
constexpr int smallestMinorPixels = 6;
constexpr int scrolledMinorPixels = 7;      // a chart that scrolls need not be at its smallest
constexpr double smallestLegibleDots = 10;  // in device pixels

}  // namespace

CellIndex neighbour(CellIndex cell, QPoint step) {
    constexpr QRect square{0, 0, 4, 4};
    for (QPoint place = gridPlace(cell) + step; square.contains(place); place += step) {
        const auto* other = std::ranges::find(allCells, place, gridPlace);
        if (other != allCells.end()) return *other;
    }
    return cell;
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
        std::ceil(look::pixels(static_cast<double>(twips) * minorPixels_ / naturalScale.minorPixels_)));
}

int ChartScale::fontPixels(int pixelSize) const {
    return pixelSize * minorPixels_ / naturalScale.minorPixels_;
}

QRect ChartScale::cellFrame(CellIndex cell) const {
    const QPoint place = gridPlace(cell);
    return {QPoint{pixels(cellWidth * place.x()), pixels(cellHeight * place.y())},
            QPoint{pixels(cellWidth * (place.x() + 1)), pixels(cellHeight * (place.y() + 1))}};
}

QRect ChartScale::centreFrame() const {
    return {QPoint{pixels(cellWidth), pixels(cellHeight)},
            QPoint{pixels(3 * cellWidth), pixels(3 * cellHeight)}};
}

QSize ChartScale::squareSize() const { return {pixels(4 * cellWidth) + 1, pixels(4 * cellHeight) + 1}; }

QSize ChartScale::chartSize() const {
    return squareSize() + QSize{2 * margin(), 2 * margin() + pixels(hintHeight)};
}
