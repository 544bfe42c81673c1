#include "display/styled_text.h"

#include <QTextCursor>

#include "style/look.h"
#include "style/text.h"

namespace {

QTextCharFormat formatFor(const TextStyle& style, int percent) {
    QTextCharFormat format;
    format.setFontFamilies(look::textFont(QFont{}).families());
    format.setFontPointSize(style.size * percent / 100.0);
    format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
    format.setForeground(look::colourOf(style.colour));
    return format;
}

}  // namespace

void fillWithRuns(QTextDocument& document, const std::vector<TextRun>& runs, int percent) {
    QTextCursor cursor{&document};
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    for (const TextRun& run : runs) cursor.insertText(latinLines(run.text), formatFor(run.style, percent));
    cursor.endEditBlock();
}
