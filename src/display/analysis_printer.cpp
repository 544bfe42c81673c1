#include "display/analysis_printer.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRadioButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <cmath>

namespace {

constexpr QMarginsF paperMargins{20, 18, 20, 18};  // millimetres

// The details line ends in ":-" as the headings do, but its text follows as a paragraph of its own.
bool announcesNext(const QTextBlock& block) { return block.text().trimmed().endsWith(QStringLiteral(":-")); }

QTextBlock previousWithText(QTextBlock block) {
    do {
        block = block.previous();
    } while (block.isValid() && block.text().trimmed().isEmpty());
    return block;
}

QRectF placeOf(const QTextBlock& block) {
    return block.document()->documentLayout()->blockBoundingRect(block);
}

bool isTorn(double top, double bottom, double pageHeight) {
    const bool fitsOnPage = bottom - top < pageHeight;
    return fitsOnPage && std::floor(top / pageHeight) != std::floor((bottom - 1) / pageHeight);
}

// The toolkit breaks pages between any two lines. A paragraph that would be torn, with the line that
// announces it, begins the next page instead; what comes after moves along.
void keepParagraphsWhole(QTextDocument& document) {
    const double pageHeight = document.pageSize().height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.text().trimmed().isEmpty()) continue;
        const QTextBlock before = previousWithText(block);
        const QTextBlock first = before.isValid() && announcesNext(before) ? before : block;
        if (!isTorn(placeOf(first).top(), placeOf(block).bottom(), pageHeight)) continue;
        QTextBlockFormat format = first.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor{first}.setBlockFormat(format);
        document.setPageSize(document.pageSize());  // lays the whole text out again, to the very end
    }
}

}  // namespace

std::unique_ptr<QTextDocument> printedPart(const QTextEdit& text) {
    auto part = std::make_unique<QTextDocument>();
    part->setDefaultFont(text.document()->defaultFont());
    QTextCursor{part.get()}.insertFragment(text.textCursor().hasSelection()
                                               ? text.textCursor().selection()
                                               : QTextDocumentFragment{text.document()});
    return part;
}

void printOnPaper(const QTextDocument& text, QPrinter& printer) {
    const std::unique_ptr<QTextDocument> paper{text.clone()};
    paper->setDocumentMargin(0);
    paper->documentLayout()->setPaintDevice(&printer);
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    paper->setPageSize(page.size());
    keepParagraphsWhole(*paper);
    QPainter painter;
    if (!painter.begin(&printer)) return;
    for (int number = 0; number < paper->pageCount(); ++number) {
        if (number > 0 && !printer.newPage()) return;
        // One dot less than the page, or a line at the top of the next one would count as part of it.
        const QRectF view{0, number * page.height(), page.width(), page.height() - 1};
        painter.save();
        painter.translate(0, -view.top());
        paper->drawContents(&painter, view);
        painter.restore();
    }
}

void printAnalysis(const QTextEdit& text, QWidget* parent) {
    QPrinter printer{QPrinter::HighResolution};
    printer.setPageMargins(paperMargins, QPageLayout::Millimeter);
    printer.setDocName(QStringLiteral("Palace Lantern"));
    const bool selected = text.textCursor().hasSelection();
    QPrintDialog dialog{&printer, parent};
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, selected);
    dialog.setPrintRange(selected ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
    // What is selected is what is printed, so the dialog must not promise the whole beside it.
    if (auto* all = dialog.findChild<QRadioButton*>(QStringLiteral("printAll"))) all->setEnabled(!selected);
    if (dialog.exec() == QDialog::Accepted) printOnPaper(*printedPart(text), printer);
}
