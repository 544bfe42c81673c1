// Saves a picture of the chart as a JPEG file.
#pragma once

#include <QPixmap>
#include <QString>

class QWidget;

// Asks for a name and saves the picture under it, or under the first free name that the naming rule makes of it.
// A step that fails ends the save in silence, with neither a temporary file nor half a picture left.
void exportPicture(const QPixmap& picture, const QString& converter, QWidget* parent);
