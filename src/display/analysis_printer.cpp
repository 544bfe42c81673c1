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

namespace {

constexpr QMarginsF paperMargins{20, 18, 20, 18};  // millimetres

void keepParagraphsWhole(QTextDocument& document) {
    QTextCursor all{&document};
    all.select(QTextCursor::Document);
    QTextBlockFormat format;
    format.setNonBreakableLines(true);
    all.mergeBlockFormat(format);
}

int pageOf(const QTextBlock& block) {
    const QTextDocument* document = block.document();
    const QRectF place = document->documentLayout()->blockBoundingRect(block);
    return static_cast<int>(place.top() / document->pageSize().height());
}

bool isEmpty(const QTextBlock& block) { return block.text().trimmed().isEmpty(); }

QTextBlock nextWithText(QTextBlock block) {
    do {
        block = block.next();
    } while (block.isValid() && isEmpty(block));
    return block;
}

// The details line ends in ":-" as the headings do, but its text follows as a paragraph of its own.
bool announcesNext(const QTextBlock& block) { return block.text().trimmed().endsWith(QStringLiteral(":-")); }

void keepAnnouncementsWithTheirText(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!announcesNext(block)) continue;
        const QTextBlock next = nextWithText(block);
        if (!next.isValid() || pageOf(next) == pageOf(block)) continue;
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor{block}.setBlockFormat(format);
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
    keepParagraphsWhole(*paper);
    paper->setDocumentMargin(0);
    paper->documentLayout()->setPaintDevice(&printer);
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    paper->setPageSize(page.size());
    keepAnnouncementsWithTheirText(*paper);
    QPainter painter;
    if (!painter.begin(&printer)) return;
    for (int number = 0; number < paper->pageCount(); ++number) {
        if (number > 0 && !printer.newPage()) return;
        const QRectF view{0, number * page.height(), page.width(), page.height()};
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
