#include "input/drop_down_list.h"

#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>

namespace {

// QListView of Qt 6.4 tells a screen reader that its current entry has the focus even while it is not shown,
// as when a person types into the closed list.
class EntryView : public QListView {
  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        isVisible() ? QListView::currentChanged(current, previous)
                    : QAbstractItemView::currentChanged(current, previous);
    }
};

}  // namespace

DropDownList::DropDownList() {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
}

// QComboBox of Qt 6.4 drops down on Enter on some desktops. Its view is made when it is first needed, for
// that takes a while.
void DropDownList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return event->ignore();
    if (view_ == nullptr) setView(view_ = new EntryView);
    QComboBox::keyPressEvent(event);
}

void DropDownList::wheelEvent(QWheelEvent* event) {
    hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}
