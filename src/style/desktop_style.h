// The desktop's style with the few answers that the program wants otherwise, everywhere.
#pragma once

#include <QProxyStyle>

class DesktopStyle : public QProxyStyle {
    Q_OBJECT
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};
