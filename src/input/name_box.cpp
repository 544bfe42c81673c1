#include "input/name_box.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <memory>

#include "input/name_filter.h"

namespace {

bool hasText(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front() >= QLatin1Char(' ') &&
           event.text().front() != QChar{0x7F};
}

}  // namespace

NameBox::NameBox(QWidget* parent) : QLineEdit(parent) {}

QString NameBox::filtered(const QString& text, bool& rejectedAny) const {
    const FilteredName name =
        filterName({reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
    rejectedAny = name.rejectedAny;
    return QString::fromStdU16String(name.accepted);
}

// Ctrl makes a key a command of the box, Alt or Meta a command of the window, whose letter must not be typed
// here. AltGr, which is reported as Ctrl and Alt together on some systems, writes characters.
void NameBox::keyPressEvent(QKeyEvent* event) {
    const auto held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool writes = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
    if (event->matches(QKeySequence::Paste)) {
        insertFiltered(QGuiApplication::clipboard()->mimeData());
    } else if (!hasText(*event) || held == Qt::ControlModifier) {
        QLineEdit::keyPressEvent(event);
    } else if (writes) {
        typeFiltered(event);
    } else {
        event->ignore();
    }
}

void NameBox::typeFiltered(QKeyEvent* event) {
    bool rejectedAny = false;
    const QString text = filtered(event->text(), rejectedAny);
    if (!text.isEmpty()) {
        QKeyEvent accepted{event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat()};
        QLineEdit::keyPressEvent(&accepted);
    }
    event->accept();
    if (rejectedAny) emit rejected();
}

void NameBox::insertFiltered(const QMimeData* source) {
    if (source == nullptr || !source->hasText()) return;
    bool rejectedAny = false;
    const QString text = filtered(source->text(), rejectedAny);
    if (!text.isEmpty()) insert(text);
    if (rejectedAny) emit rejected();
}

void NameBox::inputMethodEvent(QInputMethodEvent* event) {
    bool rejectedAny = false;
    QInputMethodEvent accepted{event->preeditString(), event->attributes()};
    accepted.setCommitString(filtered(event->commitString(), rejectedAny), event->replacementStart(),
                             event->replacementLength());
    QLineEdit::inputMethodEvent(&accepted);
    event->accept();
    if (rejectedAny) emit rejected();
}

// The middle button pastes what is selected elsewhere.
void NameBox::mouseReleaseEvent(QMouseEvent* event) {
    const QClipboard* clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    insertFiltered(clipboard->mimeData(QClipboard::Selection));
}

// What is dropped goes in where it is dropped. Text dragged within the box is in it already.
void NameBox::dropEvent(QDropEvent* event) {
    if (event->source() == this) {
        QLineEdit::dropEvent(event);
        return;
    }
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setFocus(Qt::OtherFocusReason);
    insertFiltered(event->mimeData());
}

void NameBox::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu{createStandardContextMenu()};
    for (QAction* action : menu->actions()) {
        if (action->text().section(QLatin1Char('\t'), 0, 0) != QLineEdit::tr("&Paste")) continue;
        action->disconnect(this);
        connect(action, &QAction::triggered, this,
                [this] { insertFiltered(QGuiApplication::clipboard()->mimeData()); });
    }
    menu->exec(event->globalPos());
}
