#include "display/cell_square.h"

#include <QPainter>

#include "style/look.h"

CellSquare::CellSquare(CellIndex cell, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Square(%1)").arg(cell.value()));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CellSquare::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.fillRect(rect(), look::paper);
    painter.setPen(QPen{look::line, 1});
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
