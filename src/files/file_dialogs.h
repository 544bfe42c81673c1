// The dialogs that ask for files. Each returns the chosen path, or an empty text where it was cancelled. A
// name that won't do is refused in words, and the dialog stays with the name in it.
#pragma once

#include <QString>

class QWidget;

// A file that is there.
QString askForChartFile(QWidget* parent);

// A file that can be written; asks before one is overwritten.
QString askWhereToSaveChart(QWidget* parent);

// A file in a folder that takes new ones; not refused if taken, because the naming rule looks for a free one.
QString askForPictureName(QWidget* parent);
