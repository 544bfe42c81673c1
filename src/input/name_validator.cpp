#include "input/name_validator.h"

#include "input/name_filter.h"

namespace {

FilteredName filtered(QStringView text) { return filterName(text.toString().toStdU16String()); }

}  // namespace

QValidator::State NameValidator::validate(QString& text, int& cursor) const {
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'))) text.chop(1);
    const auto beforeCursor = filtered(QStringView{text}.left(cursor)).accepted.size();
    const FilteredName name = filtered(text);
    text = QString::fromStdU16String(name.accepted);
    cursor = static_cast<int>(beforeCursor);
    if (name.rejectedAny) emit rejected();
    return Acceptable;
}
