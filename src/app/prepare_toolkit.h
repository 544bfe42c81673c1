// What the toolkit is told once for the whole program.
#pragma once

// Sets the program's name, its font, colours, icon and style, the toolkit's own dialogs on every desktop, and
// how the chart is told to a screen reader. To be called once, when the QApplication has been made.
void prepareToolkit();
