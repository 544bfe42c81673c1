// The rows of the table of figures, one a line, the columns parted by tabs.
#pragma once

#include <cstdio>

inline const char* verdict(bool reached) { return reached ? "ok" : "short"; }

// A figure beside that of the bare program; the ratio of the two is to be within the reach.
inline void printRatio(const char* figure, const char* unit, double ours, double bare, double reach) {
    std::printf("%s\t%.2f %s\t%.2f %s\t%.2f\t%.2f\t%s\n", figure, ours, unit, bare, unit, ours / bare, reach,
                verdict(ours / bare <= reach));
    std::fflush(stdout);
}

// A figure that stands alone and is to stay under the limit.
inline void printFigure(const char* figure, const char* unit, double ours, double limit) {
    std::printf("%s\t%.3f %s\t-\t-\t< %g %s\t%s\n", figure, ours, unit, limit, unit, verdict(ours < limit));
    std::fflush(stdout);
}
