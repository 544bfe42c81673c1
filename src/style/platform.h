// What the platform tells of windows.
#pragma once

#include <QGuiApplication>

// Whether the program is told the places of its windows and of the pointer on the screen, and may ask for the
// focus. Under Wayland these are the compositor's business.
inline bool placesAreKnown() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}
