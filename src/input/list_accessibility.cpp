#include "input/list_accessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <algorithm>
#include <vector>

namespace {

// An entry of a list; pressing it selects it.
class ListEntry : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    ListEntry(QComboBox* list, int index) : list_(list), index_(index) {}

    bool isValid() const override { return index_ < list_->count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(list_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? list_->itemText(index_) : QString{};
    }
    QRect rect() const override {
        return isInSight() ? place().translated(list_->view()->viewport()->mapToGlobal(QPoint{})) : QRect{};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        state.selected = list_->currentIndex() == index_;
        state.offscreen = !isInSight();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override {
        if (action != pressAction() || !list_->isEnabled()) return;
        list_->hidePopup();
        list_->setCurrentIndex(index_);
    }

  private:
    // In the view that drops down.
    QRect place() const {
        const QAbstractItemView* view = list_->view();
        return view->visualRect(view->model()->index(index_, 0));
    }
    bool isInSight() const {
        const QAbstractItemView* view = list_->view();
        return view->isVisible() && view->viewport()->rect().contains(place().center());
    }

    QComboBox* list_;
    int index_;
};

class ListInterface : public QAccessibleWidget {
  public:
    explicit ListInterface(QComboBox* list) : QAccessibleWidget(list, QAccessible::ComboBox) {}
    ~ListInterface() override {
        for (const QAccessible::Id id : entries_) QAccessible::deleteAccessibleInterface(id);
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? list()->currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = list()->view()->isVisible();
        state.collapsed = !state.expanded;
        return state;
    }

    int childCount() const override { return list()->count(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= list()->count()) return nullptr;
        while (static_cast<int>(entries_.size()) < list()->count()) {
            auto* entry = new ListEntry{list(), static_cast<int>(entries_.size())};
            entries_.push_back(QAccessible::registerAccessibleInterface(entry));
        }
        return QAccessible::accessibleInterface(entries_[static_cast<std::size_t>(index)]);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
        const auto found = std::find(entries_.begin(), entries_.end(), id);
        return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
    }

    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == setFocusAction()) {
            list()->setFocus();
        } else if (action == showMenuAction() && list()->isEnabled()) {
            list()->view()->isVisible() ? list()->hidePopup() : list()->showPopup();
        }
    }

  private:
    QComboBox* list() const { return static_cast<QComboBox*>(widget()); }

    mutable std::vector<QAccessible::Id> entries_;  // made when a screen reader first asks for them
};

QAccessibleInterface* createInterface(const QString&, QObject* object) {
    auto* list = qobject_cast<QComboBox*>(object);
    return list == nullptr ? nullptr : new ListInterface{list};
}

}  // namespace

void installListAccessibility() { QAccessible::installFactory(createInterface); }
