#include "input/name_box.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "input/input_check.h"

namespace {

// Ctrl, Alt or Meta make a key press a command. Ctrl and Alt together are AltGr on Windows.
bool isCommand(Qt::KeyboardModifiers modifiers) {
    const auto held = modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return held != Qt::NoModifier && held != (Qt::ControlModifier | Qt::AltModifier);
}

}  // namespace

NameBox::NameBox() {
    connect(this, &QLineEdit::textEdited, this, [this] { edited_ = true; });
    connect(this, &QLineEdit::textChanged, this, &NameBox::filterSetText);
}

void NameBox::setName(const QString& name) {
    const QSignalBlocker blocker{this};
    setText(name);
    lastText_ = name;
}

// Line breaks at the end, which come with a copied line, are removed without a message.
QString NameBox::filtered(QStringView text) {
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'))) text.chop(1);
    QString accepted = QString::fromStdU16String(filterName(text.toString().toStdU16String()));
    if (accepted.size() < text.size()) emit rejected();
    return accepted;
}

// Replaces the selection by what passes the filter; if nothing does, nothing changes.
void NameBox::enter(const QString& text) {
    const QString name = filtered(text);
    if (!name.isEmpty()) insert(name);
}

void NameBox::paste(QClipboard::Mode mode) { enter(QGuiApplication::clipboard()->text(mode)); }

// Assistive technology sets the whole text, even to insert some; only what differs from before is filtered.
void NameBox::filterSetText(const QString& text) {
    const QString before = std::exchange(lastText_, text);
    if (std::exchange(edited_, false)) return;
    const auto head =
        std::mismatch(before.begin(), before.end(), text.begin(), text.end()).second - text.begin();
    const qsizetype rest = std::min(before.size(), text.size()) - head;
    const auto tail =
        std::mismatch(text.rbegin(), text.rbegin() + rest, before.rbegin()).first - text.rbegin();
    const QString entered = filtered(text.sliced(head).chopped(tail));
    const bool refused = entered.isEmpty() && text.size() > head + tail;
    setName(refused ? before : text.first(head) + entered + text.last(tail));
}

// Commands are passed on without their text, because QLineEdit would insert that of some.
void NameBox::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    // The text of Enter, Backspace and similar keys is a control character.
    const bool writes = !text.isEmpty() && text.front().category() != QChar::Other_Control;
    if (event->matches(QKeySequence::Paste)) {
        paste(QClipboard::Clipboard);
    } else if (writes && !isCommand(event->modifiers())) {
        enter(text);
    } else {
        QKeyEvent bare{event->type(), event->key(), event->modifiers()};
        QLineEdit::keyPressEvent(&bare);
        event->setAccepted(bare.isAccepted());
    }
}

// A composition deletes the selection when it begins. If it enters nothing, undo() restores the selection.
void NameBox::inputMethodEvent(QInputMethodEvent* event) {
    const bool composes = !event->preeditString().isEmpty();
    const QString name = filtered(event->commitString());
    const bool refused = name.isEmpty() && !event->commitString().isEmpty();
    replacesSelection_ = name.isEmpty() && (replacesSelection_ || (composes && hasSelectedText()));
    QInputMethodEvent entered{event->preeditString(), event->attributes()};
    if (!refused) entered.setCommitString(name, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&entered);
    event->accept();
    if (!composes && std::exchange(replacesSelection_, false)) undo();
}

// The middle button pastes what is selected elsewhere.
void NameBox::mouseReleaseEvent(QMouseEvent* event) {
    const bool pastes =
        event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection();
    if (!pastes) return QLineEdit::mouseReleaseEvent(event);
    deselect();
    paste(QClipboard::Selection);
}

void NameBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* entry : menu->actions()) {
        if (entry->menu() != nullptr) entry->setVisible(false);  // inserts Unicode control characters
        if (!entry->text().startsWith(QLineEdit::tr("&Paste"))) continue;
        disconnect(entry, &QAction::triggered, nullptr, nullptr);
        connect(entry, &QAction::triggered, this, [this] { paste(QClipboard::Clipboard); });
    }
    menu->popup(event->globalPos());
}

// A dragged file, although it comes with a text, is left to the form.
void NameBox::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) return event->ignore();
    QLineEdit::dragEnterEvent(event);
}

// Text from elsewhere is copied even where a move is proposed: a move would lose what the filter removes.
void NameBox::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QMimeData name;
    name.setText(filtered(event->mimeData()->text()));
    QDropEvent copy{event->position(), Qt::CopyAction, &name, event->buttons(), event->modifiers()};
    if (!name.text().isEmpty()) QLineEdit::dropEvent(&copy);
}
