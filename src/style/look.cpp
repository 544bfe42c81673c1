#include "style/look.h"

#include <QFontDatabase>
#include <QIcon>

namespace look {

namespace {

// Only the face that is there, for a look-up of one that is not takes time at every size.
QStringList faces() {
    static const QString verdana = QStringLiteral("Verdana");
    static const QStringList families{QFontDatabase::hasFamily(verdana) ? verdana
                                                                        : QStringLiteral("DejaVu Sans")};
    return families;
}

}  // namespace

QFont textFont(const QFont& like) {
    QFont font = like;
    font.setFamilies(faces());
    return font;
}

// Not hinted sideways, so that a text's width grows with the scale and the places of the labels hold for all.
QFont chartFont(int pixelSize, bool bold) {
    QFont font;
    font.setFamilies(faces());
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

QColor linkColour(const QWidget& on) {
    const QPalette& palette = on.palette();
    const bool darkGround = palette.color(QPalette::Window).lightnessF() < 0.5F;
    if (!darkGround) return blue;
    const QColor link = palette.color(QPalette::Link);
    return link.lightnessF() > 0.6F ? link : palette.color(QPalette::WindowText);
}

QString productName() { return QStringLiteral("Palace Lantern"); }

QIcon productIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48}) {
        icon.addFile(QStringLiteral(":/icons/palace-lantern-%1.png").arg(size), QSize{size, size});
    }
    return icon;
}

}  // namespace look
