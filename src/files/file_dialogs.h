// The dialogs that ask for files. Each returns the chosen path, or an empty text where it was cancelled.
#pragma once

#include <QString>

class QWidget;

QString askForChartFile(QWidget* parent);  // one that exists
QString askWhereToSaveChart(
    QWidget* parent);  // asks before overwriting; the folder exists and can be written
QString askForPictureName(
    QWidget* parent);  // of any name: the naming rule sees to it that nothing is overwritten
