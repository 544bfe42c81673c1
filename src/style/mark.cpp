#include "style/mark.h"

#include <QIcon>
#include <QPainter>

#include "style/look.h"

Mark::Mark(int size) {
    setFixedSize(size, size);
    setAccessibleName(QStringLiteral("Lantern"));
}

void Mark::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    look::productIcon({48, 128, 256}).paint(&painter, rect());
}
