// The least that the toolkit can do: plain windows with plain controls, for comparison.
#pragma once

#include <QMainWindow>
#include <QRect>
#include <QString>
#include <memory>
#include <vector>

// A main window with as many plain controls of each kind as the input form has.
std::unique_ptr<QMainWindow> plainForm();

// A label's text as it is seen, and its place in the window.
struct PlainLabel {
    QString text;
    QRect place;
};

// A window of plain labels.
std::unique_ptr<QWidget> plainLabels(const std::vector<PlainLabel>& labels);
