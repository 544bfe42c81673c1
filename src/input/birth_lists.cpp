#include "input/birth_lists.h"

#include "calendar/picked_date.h"

namespace {

std::vector<std::string> numbers(int first, int count) {
    std::vector<std::string> entries;
    for (int number = first; number < first + count; ++number) entries.push_back(std::to_string(number));
    return entries;
}

}  // namespace

std::vector<std::string> dateEntries() { return numbers(1, dayCount); }
std::vector<std::string> monthEntries() { return {monthNames.begin(), monthNames.end()}; }
std::vector<std::string> yearEntries() { return numbers(firstYear, yearCount); }
std::vector<std::string> hourEntries() { return numbers(0, hourCount); }
std::vector<std::string> minuteEntries() { return numbers(0, minuteCount); }
