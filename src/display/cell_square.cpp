#include "display/cell_square.h"

#include <QPainter>
#include <algorithm>

#include "style/look.h"

namespace {

// Draws lines that are the same whole number of the screen's dots wide wherever they lie, also where a pixel
// of the desktop's is one dot and a half.
class RulingPen {
  public:
    RulingPen(QPainter& painter, const QRect& sheet)
        : painter_(painter),
          toDots_(painter.deviceTransform()),
          fromDots_(toDots_.inverted()),
          sheet_(dots(sheet)) {}

    // The lines round a rectangle of the desktop's pixels, the last row and column of which they cover.
    void drawFrame(const QRect& frame, const QColor& colour) {
        const QRect outer = dots(frame);
        const int right = std::min(dots(frame.bottomRight()).x(), sheet_.right() + 1 - width());
        const int bottom = std::min(dots(frame.bottomRight()).y(), sheet_.bottom() + 1 - width());
        fill({outer.left(), outer.top(), right + width() - outer.left(), width()}, colour);
        fill({outer.left(), bottom, right + width() - outer.left(), width()}, colour);
        fill({outer.left(), outer.top(), width(), bottom + width() - outer.top()}, colour);
        fill({right, outer.top(), width(), bottom + width() - outer.top()}, colour);
    }

    void drawRule(const QPoint& left, int length, const QColor& colour) {
        const QPoint start = dots(left);
        fill({start, QSize{dots(left + QPoint{length, 0}).x() - start.x(), width()}}, colour);
    }

  private:
    int width() const { return std::max(1, qRound(toDots_.m11())); }
    QPoint dots(const QPoint& point) const { return toDots_.map(QPointF{point}).toPoint(); }
    QRect dots(const QRect& area) const { return toDots_.mapRect(QRectF{area}).toRect(); }
    void fill(const QRect& area, const QColor& colour) {
        painter_.fillRect(fromDots_.mapRect(QRectF{area}), colour);
    }

    QPainter& painter_;
    QTransform toDots_;
    QTransform fromDots_;
    QRect sheet_;
};

}  // namespace

ChartSquare::ChartSquare(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void ChartSquare::setScale(ChartScale scale) {
    scale_ = scale;
    resize(scale.squareSize());
    update();
}

void ChartSquare::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    const QRect centre = scale_.centreFrame();
    painter.fillRect(rect(), look::paper);
    painter.fillRect(centre, look::titlePaper);
    RulingPen pen{painter, rect()};
    for (const CellIndex cell : allCells) pen.drawFrame(scale_.cellFrame(cell), look::line);
    pen.drawRule(centre.topLeft() + QPoint{scale_.pixels(centreRule.left), scale_.pixels(centreRule.top)},
                 scale_.pixels(centreRule.width), look::brown);
}

CellSquare::CellSquare(CellIndex cell, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Square(%1)").arg(cell.value()));
}
