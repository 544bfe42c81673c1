#include "display/analysis_printer.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRadioButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <cmath>
#include <memory>

#include "display/styled_text.h"
#include "style/text.h"

namespace {

constexpr QMarginsF paperMargins{20, 18, 20, 18};  // millimetres

bool isEmpty(const QTextBlock& block) { return block.text().trimmed().isEmpty(); }

// The details line, which belongs to the paragraph above it and never begins a page.
bool isDetailsLine(const QTextBlock& block) { return block.text().trimmed().endsWith(QStringLiteral(":-")); }

QTextBlock previousWithText(QTextBlock block) {
    do {
        block = block.previous();
    } while (block.isValid() && isEmpty(block));
    return block;
}

QRectF placeOf(const QTextBlock& block) {
    return block.document()->documentLayout()->blockBoundingRect(block);
}

bool isSplit(double top, double bottom, double pageHeight) {
    const bool fitsOnPage = bottom - top < pageHeight;
    return fitsOnPage && std::floor(top / pageHeight) != std::floor((bottom - 1) / pageHeight);
}

// QTextDocument breaks pages between any two lines. A paragraph that would be split, or separated from its
// details line, begins the next page instead.
void keepParagraphsWhole(QTextDocument& document) {
    const double pageHeight = document.pageSize().height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (isEmpty(block)) continue;
        const QTextBlock before = previousWithText(block);
        const QTextBlock first = before.isValid() && isDetailsLine(block) ? before : block;
        if (!isSplit(placeOf(first).top(), placeOf(block).bottom(), pageHeight)) continue;
        QTextBlockFormat format = first.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor{first}.setBlockFormat(format);
        document.setPageSize(document.pageSize());  // lays out the whole text again
    }
}

// Empty lines at the end are not printed.
int pagesWithText(const QTextDocument& document) {
    QTextBlock last = document.lastBlock();
    if (isEmpty(last)) last = previousWithText(last);
    return last.isValid() ? static_cast<int>((placeOf(last).bottom() - 1) / document.pageSize().height()) + 1
                          : 0;
}

std::unique_ptr<QTextDocument> printedPart(const std::vector<TextRun>& runs, int start, int end) {
    auto whole = std::make_unique<QTextDocument>();
    fillWithRuns(*whole, runs, 100);
    if (start == end) return whole;
    QTextCursor cursor{whole.get()};
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    auto part = std::make_unique<QTextDocument>();
    QTextCursor{part.get()}.insertFragment(cursor.selection());
    return part;
}

// Page ranges and reverse order are not supported. Qt 6.8 still: QPrintDialog shows their controls whatever
// its options are. As children of a hidden widget they stay hidden.
void hidePageNumbers(QPrintDialog& dialog) {
    const auto* options = dialog.findChild<QWidget*>(QStringLiteral("copiesTab"));
    if (options == nullptr) return;
    auto* hidden = new QWidget{&dialog};
    hidden->hide();
    for (const char* name : {"printRange", "from", "label_3", "to", "pagesRadioButton", "pagesLineEdit",
                             "printCurrentPage", "pageSetLabel", "pageSetCombo", "reverse"}) {
        if (auto* control = options->findChild<QWidget*>(latin(name))) control->setParent(hidden);
    }
}

// A printer chosen in the dialog sets its default margins; only margins that a person has changed are kept.
void replaceDefaultMargins(QPrinter& printer) {
    QPrinter defaults{QPrinter::HighResolution};
    defaults.setPrinterName(printer.printerName());
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const bool changed = layout.margins() != defaults.pageLayout().margins(QPageLayout::Millimeter);
    // If one were smaller than the printer's least, all four would be refused.
    if (!changed) printer.setPageMargins(paperMargins | layout.minimumMargins(), QPageLayout::Millimeter);
}

// On some platforms QPrintDialog proposes only the folder of the file to print to.
void proposeFile(QPrintDialog& dialog, const QString& name) {
    auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
    if (box != nullptr && QFileInfo{box->text()}.isDir())
        box->setText(QDir{box->text()}.filePath(name + QStringLiteral(".pdf")));
}

// Opens the dialog and returns whether to print. The native dialog of Windows, which has no layout, opens
// only where there is a printer; without one, a file dialog asks where to print to.
bool askToPrint(QPrintDialog& dialog, QPrinter& printer) {
    if (dialog.layout() != nullptr || printer.outputFormat() == QPrinter::NativeFormat)
        return dialog.exec() == QDialog::Accepted;
    const QString name = printer.docName() + QStringLiteral(".pdf");
    printer.setOutputFileName(QFileDialog::getSaveFileName(dialog.parentWidget(), QStringLiteral("Print"),
                                                           name, QStringLiteral("PDF (*.pdf)")));
    return !printer.outputFileName().isEmpty();
}

}  // namespace

void printOnPaper(const QTextDocument& text, QPrinter& printer) {
    const std::unique_ptr<QTextDocument> paper{text.clone()};
    paper->setDocumentMargin(0);
    paper->documentLayout()->setPaintDevice(&printer);
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    paper->setPageSize(page.size());
    keepParagraphsWhole(*paper);
    QPainter painter;
    if (!painter.begin(&printer)) return;
    for (int number = 0; number < pagesWithText(*paper); ++number) {
        if (number > 0 && !printer.newPage()) return;
        // One pixel less than the page, which would else include a line at the top of the next one.
        const QRectF view{0, number * page.height(), page.width(), page.height() - 1};
        painter.save();
        painter.translate(0, -view.top());
        paper->drawContents(&painter, view);
        painter.restore();
    }
}

void printAnalysis(const std::vector<TextRun>& runs, int start, int end, QWidget* parent) {
    QPrinter printer{QPrinter::HighResolution};
    printer.setPageMargins(paperMargins, QPageLayout::Millimeter);
    printer.setDocName(QStringLiteral("Palace Lantern"));
    const bool selected = start != end;
    QPrintDialog dialog{&printer, parent};
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, selected);
    dialog.setPrintRange(selected ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
    // With a selection, only the selection can be printed.
    if (auto* all = dialog.findChild<QRadioButton*>(QStringLiteral("printAll"))) all->setEnabled(!selected);
    hidePageNumbers(dialog);
    proposeFile(dialog, printer.docName());
    if (!askToPrint(dialog, printer)) return;
    if (dialog.printRange() == QAbstractPrintDialog::AllPages) end = start;  // chosen in a native dialog
    replaceDefaultMargins(printer);
    printOnPaper(*printedPart(runs, start, end), printer);
}
