// What differs between systems.
#pragma once

#include <QDir>
#include <QGuiApplication>

// Whether the program knows the positions of its windows and of the pointer on the screen, and may activate a
// window. Under Wayland only the compositor does.
inline bool placesAreKnown() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

inline bool isWindows() { return QDir::separator() == QLatin1Char('\\'); }

// The length of a file name or path in the unit of the system's limits: UTF-16 on Windows, else bytes.
inline qsizetype lengthInFiles(const QString& name) {
    return isWindows() ? name.size() : QFile::encodeName(name).size();
}
