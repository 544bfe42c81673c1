// What differs between systems.
#pragma once

#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>

// Whether the program knows the positions of its windows and of the pointer on the screen, and may activate a
// window. Under Wayland only the compositor does.
inline bool placesAreKnown() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

inline bool isWindows() { return QDir::separator() == QLatin1Char('\\'); }

// Whether the file name has a character that Windows forbids; false on other systems.
inline bool hasForbiddenCharacter(const QString& fileName) {
    static const QRegularExpression forbidden{QStringLiteral("[<>:\"|?*]")};
    return isWindows() && fileName.contains(forbidden);
}
