#include "input/drop_down_list.h"

#include <QAbstractItemView>
#include <QProxyStyle>
#include <QStyleOptionComboBox>

namespace {

// The desktop's own style may lay all entries over the box, which for the years is more than a screen holds.
class DropDownStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

}  // namespace

DropDownList::DropDownList(QString widestEntry) : widestEntry_(std::move(widestEntry)) {
    setMaxVisibleItems(16);
}

QSize DropDownList::sizeHint() const {
    constexpr int spare = 2;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize words = fontMetrics().size(Qt::TextSingleLine, widestEntry_) + QSize{spare, spare};
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, words, this);
}

// The style is made only when it is first needed, for that takes a while.
void DropDownList::showPopup() {
    if (style_ == nullptr) {
        style_ = new DropDownStyle;
        style_->setParent(this);
        setStyle(style_);
        view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);  // the other style had none
    }
    QComboBox::showPopup();
}
