// What differs between window systems.
#pragma once

#include <QGuiApplication>

// Whether the program knows the positions of its windows and of the pointer on the screen, and may activate a
// window. Under Wayland only the compositor does.
inline bool placesAreKnown() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}
