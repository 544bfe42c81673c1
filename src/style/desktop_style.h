// The desktop's style, with the few changes that the program needs on every desktop.
#pragma once

#include <QProxyStyle>

class DesktopStyle : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::polish;

    // Marks what has the focus by a frame that can be seen on the desktop's palette.
    static void drawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette);

    void polish(QPalette& palette) override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
