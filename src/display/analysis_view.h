// How a person set up the analysis window. It is kept from one analysis to the next.
#pragma once

#include <QSize>

struct AnalysisView {
    int textSize = 100;  // in per cent of the runs' own
    QSize size;          // of the window, in pixels; invalid until a person resizes it
};
