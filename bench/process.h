// What a bench program asks of its own process.
#pragma once

#include <QApplication>
#include <QFile>
#include <QWidget>

// A line of the process's status that counts memory: "VmRSS:" for what it holds, "VmHWM:" for the most it
// held.
inline double megabytes(const char* line) {
    QFile status{QStringLiteral("/proc/self/status")};
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& text : lines) {
        if (text.startsWith(line)) return text.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

// The control of that object name in any window, or nothing.
template <class Control>
Control* control(const QString& name) {
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->objectName() == name) return qobject_cast<Control*>(widget);
    }
    return nullptr;
}
