#include "input/input_check.h"

namespace {

bool isPastFebruary(const DateLists& date) {
    return date.monthPosition == 1 && date.dayPosition >= (date.year() % 4 == 0 ? 29 : 28);
}

bool isPastShortMonth(const DateLists& date) {
    const int month = date.monthPosition;
    return (month == 3 || month == 5 || month == 8 || month == 10) && date.dayPosition == 30;
}

}  // namespace

std::optional<InputFailure> checkBirthEntry(const BirthEntry& entry) {
    if (entry.name.empty()) return InputFailure{"Please Enter Your Name !", InputField::txtName};
    if (isPastFebruary(entry.date)) {
        return InputFailure{"Please Enter Correct Date Of Birth !", InputField::cmbDate};
    }
    // The doubled "of" is kept on purpose: it tells the two date messages apart.
    if (isPastShortMonth(entry.date)) {
        return InputFailure{"Please Enter Correct Date Of of Birth !", InputField::cmbDate};
    }
    return std::nullopt;
}
