#include "input/drop_down_list.h"

#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>
#include <utility>

namespace {

// Until Qt 6.8: QListView sends the accessibility focus event of its current entry even while it is hidden,
// for example when a key changes the entry.
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

// Qt 6.8 still: where the desktop lets Enter press buttons, QComboBox opens its list on Enter, which would
// not reach the default button.
void DropDownList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return event->ignore();
    // Not in the constructor: five views would slow the start down.
    if (!std::exchange(hasOwnView_, true)) setView(new EntryView);
    QComboBox::keyPressEvent(event);
}

void DropDownList::wheelEvent(QWheelEvent* event) {
    hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}
