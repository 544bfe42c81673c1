#include "style/controls.h"

#include <QApplication>
#include <QShortcutEvent>

QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString latinLines(std::string_view text) {
    return latin(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

bool mayAct(const QWidget& form) {
    const QWidget* dialog = QApplication::activeModalWidget();
    return form.isVisible() && (dialog == nullptr || dialog == form.window());
}

bool placesAreKnown() { return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland")); }

CommandButton::CommandButton(const char* caption, QWidget* parent) : QPushButton(latin(caption), parent) {
    setAutoDefault(true);
}

bool CommandButton::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
        return QPushButton::event(event);
    click();
    return true;
}

QMenuBar* newMenuBar(QWidget* window) {
    auto* menus = new QMenuBar{window};
    menus->setNativeMenuBar(false);
    menus->setContextMenuPolicy(Qt::PreventContextMenu);
    return menus;
}
