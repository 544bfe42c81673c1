// The lunar month table: the Chinese calendar in China's civil time. Each row is a solar year and lists the
// dates on which a lunar month number begins. A leap month has the number of the month before it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "calendar/picked_date.h"

namespace lunar_table {

enum Month : std::int8_t { Jan = 1, Feb, Mar, Apr, May, Jun, Jul, Aug, Sep, Oct, Nov, Dec };

// From this day of the solar month on, the lunar month has this number. A number of 0 marks an unused place.
struct Begin {
    std::int8_t day;
    Month month;
    std::int8_t number;
};

// The days first..last of this solar month have no number. A first day of 0 marks an unused place.
struct Gap {
    std::int8_t first;
    std::int8_t last;
    Month month;
};

struct Row {
    std::int16_t year;
    std::array<Begin, 14> begins;
    std::array<Gap, 2> gaps;
};

// Intentional: unlike in the usual calendar, the numbers are 1 and 2 from 23 March to 20 May 1993, 5 and 6
// from 5 October to 2 December 1994, and none in the gaps, the last column. A date that does not exist has
// the number of the month's last day or, in February 1976 and 1995, that of 1 March.
// clang-format off
inline constexpr std::array<Row, yearCount> rows{{
    {1970, {{{1, Jan, 11}, {8, Jan, 12}, {6, Feb, 1}, {8, Mar, 2}, {6, Apr, 3}, {5, May, 4}, {4, Jun, 5}, {3, Jul, 6}, {2, Aug, 7}, {1, Sep, 8}, {30, Sep, 9}, {30, Oct, 10}, {29, Nov, 11}, {28, Dec, 12}}}, {}},
    {1971, {{{1, Jan, 12}, {27, Jan, 1}, {25, Feb, 2}, {27, Mar, 3}, {25, Apr, 4}, {24, May, 5}, {22, Jul, 6}, {21, Aug, 7}, {19, Sep, 8}, {19, Oct, 9}, {18, Nov, 10}, {18, Dec, 11}}}, {}},
    {1972, {{{1, Jan, 11}, {16, Jan, 12}, {15, Feb, 1}, {15, Mar, 2}, {14, Apr, 3}, {13, May, 4}, {11, Jun, 5}, {11, Jul, 6}, {9, Aug, 7}, {8, Sep, 8}, {7, Oct, 9}, {6, Nov, 10}, {6, Dec, 11}}}, {}},
    {1973, {{{1, Jan, 11}, {4, Jan, 12}, {3, Feb, 1}, {5, Mar, 2}, {3, Apr, 3}, {3, May, 4}, {1, Jun, 5}, {30, Jun, 6}, {30, Jul, 7}, {28, Aug, 8}, {26, Sep, 9}, {26, Oct, 10}, {25, Nov, 11}, {24, Dec, 12}}}, {}},
    {1974, {{{1, Jan, 12}, {23, Jan, 1}, {22, Feb, 2}, {24, Mar, 3}, {22, Apr, 4}, {22, May, 4}, {20, Jun, 5}, {19, Jul, 6}, {18, Aug, 7}, {16, Sep, 8}, {15, Oct, 9}, {14, Nov, 10}, {14, Dec, 11}}}, {{{1, 21, May}}}},
    {1975, {{{1, Jan, 11}, {12, Jan, 12}, {11, Feb, 1}, {13, Mar, 2}, {12, Apr, 3}, {11, May, 4}, {10, Jun, 5}, {10, Jul, 6}, {7, Aug, 7}, {6, Sep, 8}, {5, Oct, 9}, {3, Nov, 10}, {3, Dec, 11}}}, {{{9, 9, Jul}}}},
    {1976, {{{1, Jan, 12}, {31, Jan, 1}, {30, Feb, 2}, {31, Mar, 3}, {29, Apr, 4}, {29, May, 5}, {27, Jun, 6}, {27, Jul, 7}, {25, Aug, 8}, {23, Oct, 9}, {21, Nov, 10}, {21, Dec, 11}}}, {}},
    {1977, {{{1, Jan, 11}, {19, Jan, 12}, {18, Feb, 1}, {20, Mar, 2}, {18, Apr, 3}, {18, May, 4}, {17, Jun, 5}, {16, Jul, 6}, {15, Aug, 7}, {13, Sep, 8}, {13, Oct, 9}, {11, Nov, 10}, {11, Dec, 11}}}, {}},
    {1978, {{{1, Jan, 11}, {9, Jan, 12}, {7, Feb, 1}, {9, Mar, 2}, {7, Apr, 3}, {7, May, 4}, {6, Jun, 5}, {5, Jul, 6}, {4, Aug, 7}, {3, Sep, 8}, {2, Oct, 9}, {1, Nov, 10}, {30, Nov, 11}, {30, Dec, 12}}}, {}},
    {1979, {{{1, Jan, 12}, {28, Jan, 1}, {27, Feb, 2}, {28, Mar, 3}, {26, Apr, 4}, {26, May, 5}, {24, Jun, 6}, {23, Aug, 7}, {21, Sep, 8}, {21, Oct, 9}, {20, Nov, 10}, {19, Dec, 11}}}, {}},
    {1980, {{{1, Jan, 11}, {18, Jan, 12}, {16, Feb, 1}, {17, Mar, 2}, {15, Apr, 3}, {14, May, 4}, {13, Jun, 5}, {12, Jul, 6}, {11, Aug, 7}, {9, Sep, 8}, {9, Oct, 9}, {8, Nov, 10}, {7, Dec, 11}}}, {}},
    {1981, {{{1, Jan, 11}, {6, Jan, 12}, {5, Feb, 1}, {6, Mar, 2}, {5, Apr, 3}, {4, May, 4}, {2, Jun, 5}, {2, Jul, 6}, {31, Jul, 7}, {29, Aug, 8}, {28, Sep, 9}, {28, Oct, 10}, {26, Nov, 11}, {26, Dec, 12}}}, {}},
    {1982, {{{1, Jan, 12}, {25, Jan, 1}, {24, Feb, 2}, {25, Mar, 3}, {24, Apr, 4}, {21, Jun, 5}, {21, Jul, 6}, {19, Aug, 7}, {17, Sep, 8}, {18, Oct, 9}, {15, Nov, 10}, {15, Dec, 11}}}, {{{17, 17, Oct}}}},
    {1983, {{{1, Jan, 11}, {14, Jan, 12}, {13, Feb, 1}, {15, Mar, 2}, {13, Apr, 3}, {14, May, 4}, {11, Jun, 5}, {10, Jul, 6}, {9, Aug, 7}, {7, Sep, 8}, {6, Oct, 9}, {5, Nov, 10}, {4, Dec, 11}}}, {{{13, 13, May}}}},
    {1984, {{{1, Jan, 11}, {3, Jan, 12}, {2, Feb, 1}, {3, Mar, 2}, {1, Apr, 3}, {1, May, 4}, {31, May, 5}, {29, Jun, 6}, {28, Jul, 7}, {27, Aug, 8}, {25, Sep, 9}, {24, Oct, 10}, {22, Dec, 11}}}, {}},
    {1985, {{{1, Jan, 11}, {21, Jan, 12}, {20, Feb, 1}, {21, Mar, 2}, {20, Apr, 3}, {20, May, 4}, {19, Jun, 5}, {18, Jul, 6}, {16, Aug, 7}, {15, Sep, 8}, {14, Oct, 9}, {12, Nov, 10}, {12, Dec, 11}}}, {{{18, 18, Jun}}}},
    {1986, {{{1, Jan, 11}, {10, Jan, 12}, {9, Feb, 1}, {10, Mar, 2}, {9, Apr, 3}, {9, May, 4}, {7, Jun, 5}, {7, Jul, 6}, {6, Aug, 7}, {4, Sep, 8}, {4, Oct, 9}, {2, Nov, 10}, {2, Dec, 11}, {31, Dec, 12}}}, {}},
    {1987, {{{1, Jan, 12}, {29, Jan, 1}, {28, Feb, 2}, {29, Mar, 3}, {28, Apr, 4}, {27, May, 5}, {26, Jun, 6}, {24, Aug, 7}, {23, Sep, 8}, {23, Oct, 9}, {21, Nov, 10}, {21, Dec, 11}}}, {}},
    {1988, {{{1, Jan, 11}, {19, Jan, 12}, {17, Feb, 1}, {18, Mar, 2}, {16, Apr, 3}, {16, May, 4}, {14, Jun, 5}, {14, Jul, 6}, {12, Aug, 7}, {11, Sep, 8}, {11, Oct, 9}, {9, Nov, 10}, {9, Dec, 11}}}, {}},
    {1989, {{{1, Jan, 11}, {8, Jan, 12}, {6, Feb, 1}, {8, Mar, 2}, {6, Apr, 3}, {5, May, 4}, {4, Jun, 5}, {3, Jul, 6}, {2, Aug, 7}, {31, Aug, 8}, {30, Sep, 9}, {29, Oct, 10}, {28, Nov, 11}, {28, Dec, 12}}}, {}},
    {1990, {{{1, Jan, 12}, {27, Jan, 1}, {25, Feb, 2}, {27, Mar, 3}, {26, Apr, 4}, {24, May, 5}, {22, Jul, 6}, {20, Aug, 7}, {19, Sep, 8}, {18, Oct, 9}, {17, Nov, 10}, {17, Dec, 11}}}, {{{25, 25, Apr}}}},
    {1991, {{{1, Jan, 11}, {16, Jan, 12}, {15, Feb, 1}, {16, Mar, 2}, {15, Apr, 3}, {14, May, 4}, {12, Jun, 5}, {12, Jul, 6}, {10, Aug, 7}, {8, Sep, 8}, {8, Oct, 9}, {6, Nov, 10}, {6, Dec, 11}}}, {}},
    {1992, {{{1, Jan, 11}, {5, Jan, 12}, {4, Feb, 1}, {4, Mar, 2}, {3, Apr, 3}, {3, May, 4}, {1, Jun, 5}, {30, Jun, 6}, {30, Jul, 7}, {28, Aug, 8}, {26, Sep, 9}, {26, Oct, 10}, {24, Nov, 11}, {24, Dec, 12}}}, {}},
    {1993, {{{1, Jan, 12}, {23, Jan, 1}, {21, Feb, 2}, {23, Mar, 1}, {22, Apr, 2}, {21, May, 4}, {20, Jun, 5}, {19, Jul, 6}, {18, Aug, 7}, {16, Sep, 8}, {15, Oct, 9}, {14, Nov, 10}, {13, Dec, 11}}}, {}},
    {1994, {{{1, Jan, 11}, {13, Jan, 12}, {10, Feb, 1}, {12, Mar, 2}, {11, Apr, 3}, {11, May, 4}, {9, Jun, 5}, {9, Jul, 6}, {7, Aug, 7}, {6, Sep, 8}, {5, Oct, 5}, {3, Nov, 6}, {3, Dec, 11}}}, {{{12, 12, Jan}}}},
    {1995, {{{1, Jan, 12}, {31, Jan, 1}, {29, Feb, 2}, {31, Mar, 3}, {30, Apr, 4}, {29, May, 5}, {28, Jun, 6}, {27, Jul, 7}, {26, Aug, 8}, {24, Oct, 9}, {22, Nov, 10}, {22, Dec, 11}}}, {}},
    {1996, {{{1, Jan, 11}, {20, Jan, 12}, {20, Feb, 1}, {19, Mar, 2}, {18, Apr, 3}, {18, May, 4}, {16, Jun, 5}, {16, Jul, 6}, {14, Aug, 7}, {13, Sep, 8}, {12, Oct, 9}, {11, Nov, 10}, {11, Dec, 11}}}, {{{19, 19, Feb}, {17, 17, May}}}},
    {1997, {{{1, Jan, 11}, {9, Jan, 12}, {7, Feb, 1}, {9, Mar, 2}, {7, Apr, 3}, {7, May, 4}, {5, Jun, 5}, {5, Jul, 6}, {3, Aug, 7}, {2, Sep, 8}, {2, Oct, 9}, {31, Oct, 10}, {30, Nov, 11}, {30, Dec, 12}}}, {}},
    {1998, {{{1, Jan, 12}, {28, Jan, 1}, {27, Feb, 2}, {28, Mar, 3}, {26, Apr, 4}, {26, May, 5}, {23, Jul, 6}, {22, Aug, 7}, {21, Sep, 8}, {20, Oct, 9}, {19, Nov, 10}, {19, Dec, 11}}}, {}},
    {1999, {{{1, Jan, 11}, {17, Jan, 12}, {16, Feb, 1}, {18, Mar, 2}, {16, Apr, 3}, {15, May, 4}, {14, Jun, 5}, {13, Jul, 6}, {11, Aug, 7}, {10, Sep, 8}, {9, Oct, 9}, {8, Nov, 10}, {8, Dec, 11}}}, {}},
    {2000, {{{1, Jan, 11}, {7, Jan, 12}, {5, Feb, 1}, {6, Mar, 2}, {5, Apr, 3}, {4, May, 4}, {2, Jun, 5}, {2, Jul, 6}, {31, Jul, 7}, {29, Aug, 8}, {28, Sep, 9}, {27, Oct, 10}, {26, Nov, 11}, {26, Dec, 12}}}, {}},
    {2001, {{{1, Jan, 12}, {24, Jan, 1}, {23, Feb, 2}, {25, Mar, 3}, {23, Apr, 4}, {21, Jun, 5}, {21, Jul, 6}, {19, Aug, 7}, {17, Sep, 8}, {17, Oct, 9}, {15, Nov, 10}, {15, Dec, 11}}}, {}},
    {2002, {{{1, Jan, 11}, {13, Jan, 12}, {12, Feb, 1}, {14, Mar, 2}, {13, Apr, 3}, {12, May, 4}, {11, Jun, 5}, {10, Jul, 6}, {9, Aug, 7}, {7, Sep, 8}, {6, Oct, 9}, {5, Nov, 10}, {4, Dec, 11}}}, {}},
    {2003, {{{1, Jan, 11}, {3, Jan, 12}, {1, Feb, 1}, {3, Mar, 2}, {2, Apr, 3}, {1, May, 4}, {31, May, 5}, {30, Jun, 6}, {29, Jul, 7}, {28, Aug, 8}, {26, Sep, 9}, {25, Oct, 10}, {24, Nov, 11}, {23, Dec, 12}}}, {}},
    {2004, {{{1, Jan, 12}, {22, Jan, 1}, {20, Feb, 2}, {19, Apr, 3}, {19, May, 4}, {18, Jun, 5}, {17, Jul, 6}, {16, Aug, 7}, {14, Sep, 8}, {14, Oct, 9}, {12, Nov, 10}, {12, Dec, 11}}}, {}},
    {2005, {{{1, Jan, 11}, {10, Jan, 12}, {9, Feb, 1}, {10, Mar, 2}, {9, Apr, 3}, {8, May, 4}, {7, Jun, 5}, {6, Jul, 6}, {5, Aug, 7}, {4, Sep, 8}, {3, Oct, 9}, {2, Nov, 10}, {1, Dec, 11}, {31, Dec, 12}}}, {}},
    {2006, {{{1, Jan, 12}, {29, Jan, 1}, {28, Feb, 2}, {29, Mar, 3}, {28, Apr, 4}, {27, May, 5}, {26, Jun, 6}, {25, Jul, 7}, {22, Sep, 8}, {22, Oct, 9}, {21, Nov, 10}, {20, Dec, 11}}}, {}},
    {2007, {{{1, Jan, 11}, {19, Jan, 12}, {18, Feb, 1}, {19, Mar, 2}, {17, Apr, 3}, {17, May, 4}, {15, Jun, 5}, {14, Jul, 6}, {13, Aug, 7}, {11, Sep, 8}, {11, Oct, 9}, {10, Nov, 10}, {10, Dec, 11}}}, {}},
    {2008, {{{1, Jan, 11}, {8, Jan, 12}, {7, Feb, 1}, {8, Mar, 2}, {6, Apr, 3}, {5, May, 4}, {4, Jun, 5}, {3, Jul, 6}, {1, Aug, 7}, {31, Aug, 8}, {29, Sep, 9}, {29, Oct, 10}, {28, Nov, 11}, {27, Dec, 12}}}, {}},
    {2009, {{{1, Jan, 12}, {26, Jan, 1}, {25, Feb, 2}, {27, Mar, 3}, {25, Apr, 4}, {24, May, 5}, {22, Jul, 6}, {20, Aug, 7}, {19, Sep, 8}, {18, Oct, 9}, {17, Nov, 10}, {16, Dec, 11}}}, {}},
    {2010, {{{1, Jan, 11}, {15, Jan, 12}, {14, Feb, 1}, {16, Mar, 2}, {14, Apr, 3}, {14, May, 4}, {12, Jun, 5}, {12, Jul, 6}, {10, Aug, 7}, {8, Sep, 8}, {8, Oct, 9}, {6, Nov, 10}, {6, Dec, 11}}}, {}},
    {2011, {{{1, Jan, 11}, {4, Jan, 12}, {3, Feb, 1}, {5, Mar, 2}, {3, Apr, 3}, {3, May, 4}, {2, Jun, 5}, {1, Jul, 6}, {31, Jul, 7}, {29, Aug, 8}, {27, Sep, 9}, {27, Oct, 10}, {25, Nov, 11}, {25, Dec, 12}}}, {}},
    {2012, {{{1, Jan, 12}, {23, Jan, 1}, {22, Feb, 2}, {22, Mar, 3}, {21, Apr, 4}, {19, Jun, 5}, {19, Jul, 6}, {17, Aug, 7}, {16, Sep, 8}, {15, Oct, 9}, {14, Nov, 10}, {13, Dec, 11}}}, {}},
}};
// clang-format on

consteval bool datesAscend() {
    int year = firstYear;
    for (const Row& row : rows) {
        if (row.year != year++) return false;
        int last = 0;
        for (const auto& [day, month, number] : row.begins) {
            const int date = month * 32 + day;
            if (number != 0 && date <= std::exchange(last, date)) return false;
        }
    }
    return true;
}
static_assert(datesAscend());

}  // namespace lunar_table
