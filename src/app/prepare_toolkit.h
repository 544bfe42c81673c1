// The settings of the QApplication.
#pragma once

// Sets name, font, style, icon, event filter, accessibility and the use of Qt's own dialogs. To be called
// once, after the QApplication is constructed.
void prepareToolkit();
