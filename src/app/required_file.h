// The file that the program can't do without.
#pragma once

#include <QString>

// The picture converter in the application's own folder.
QString converterPath();

// Whether the converter is there, told by its name alone; if not, says so to the person.
bool requiredFileIsPresent();
