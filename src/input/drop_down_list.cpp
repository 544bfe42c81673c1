#include "input/drop_down_list.h"

#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>

namespace {

// Until Qt 6.8: QListView announces its current entry as focused even while the list is closed, as when a
// person types into the box.
class EntryView : public QListView {
  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        isVisible() ? QListView::currentChanged(current, previous)
                    : QAbstractItemView::currentChanged(current, previous);
    }
};

}  // namespace

DropDownList::DropDownList() {
    setView(new EntryView);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
}

// Qt 6.8 still: QComboBox drops down on Enter where the desktop lets Enter press buttons, and does not cast.
void DropDownList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    enter ? event->ignore() : QComboBox::keyPressEvent(event);
}

void DropDownList::wheelEvent(QWheelEvent* event) {
    hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}
