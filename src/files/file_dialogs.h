// The dialogs that ask for files. Each returns the chosen path, or an empty text where it was cancelled. A
// name that can't be used is refused with a message, after which the dialog is still open with that name.
#pragma once

#include <QString>

class QWidget;

// An existing file.
QString askForChartFile(QWidget* parent);

// A file that can be written; asks whether to replace an existing one.
QString askWhereToSaveChart(QWidget* parent);

// A file in a writable folder. An existing one is not refused, because uniquePictureName() finds a free name.
QString askForPictureName(QWidget* parent);
