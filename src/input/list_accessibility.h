// How the drop-down lists are told to a screen reader: by the word that stands over them, with the selected
// entry as their value. The toolkit's own way calls a list by the entry that is selected in it.
#pragma once

// For all drop-down lists of the program.
void installListAccessibility();
