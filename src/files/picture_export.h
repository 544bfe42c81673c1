// Saving the chart as a JPEG file.
#pragma once

#include <QPixmap>
#include <QString>

class QWidget;

// Saves the picture at the chosen path, or under the free name that uniquePictureName() makes of it. A
// failure is not reported, and leaves neither a temporary file nor part of a picture.
void savePictureAs(const QPixmap& picture, const QString& chosenPath, const QString& converter,
                   QWidget* parent);
