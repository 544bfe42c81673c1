// Saves a picture of the chart as a JPEG file.
#pragma once

#include <QPixmap>
#include <QString>

class QWidget;

// Asks for a name and saves the picture under it; without a name nothing happens.
void exportPicture(const QPixmap& picture, const QString& converter, QWidget* parent);

// Saves the picture under the chosen path, or under the first free name that the naming rule makes of it.
// A step that fails ends the save in silence, with neither a temporary file nor half a picture left.
void savePictureAs(const QPixmap& picture, const QString& chosenPath, const QString& converter,
                   QWidget* parent);
