#include "style/mark.h"

#include <QIcon>
#include <QPainter>

Mark::Mark(int size) {
    setFixedSize(size, size);
    setAccessibleName(QStringLiteral("Lantern"));
}

void Mark::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    windowIcon().paint(&painter, rect());
}
