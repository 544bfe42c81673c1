// The analysis window, opened from the chart as a person opens it, and what it puts on paper.

#include "display/frmPalaceAnalysis.h"

#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QTextEdit>

#include "form_driver.h"
#include "interpret/composer.h"

namespace {

QTextEdit& textOf(QWidget& window) { return *window.findChild<QTextEdit*>("RTB"_q); }

QString buttonsOf(QWidget& window) {
    QStringList shown;
    for (const auto* button : window.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->isEnabled()) shown += button->objectName();
    }
    return shown.join(" "_q);
}

// Checks the text of the introduction and the runs, and the style of each run at its first and last letter.
void expectRuns(const QTextEdit& text, std::vector<TextRun> runs) {
    runs.insert(runs.begin(), introRun());
    QString whole;
    for (const auto& [words, style] : runs) {
        const qsizetype start = whole.size();
        whole += QString::fromStdString(words).replace("\r\n"_q, "\n"_q);
        for (const qsizetype letter : {start + 1, whole.trimmed().size()}) {
            if (letter <= start) continue;  // of a run without letters
            QTextCursor cursor{text.document()};
            cursor.setPosition(static_cast<int>(letter));
            const QTextCharFormat format = cursor.charFormat();
            EXPECT_EQ(format.fontWeight() == QFont::Bold, style.bold) << words;
            EXPECT_EQ(format.fontPointSize(), style.size) << words;
            const QColor colour{style.colour.red, style.colour.green, style.colour.blue};
            EXPECT_EQ(format.foreground().color(), colour) << words;
        }
    }
    EXPECT_EQ(text.toPlainText(), whole);
}

class Analysis : public Program {
  protected:
    Analysis() { showChart(); }

    // Prints the whole analysis, or what `select` selects, through the dialog to a file; returns the paper's
    // text.
    QString printed(const std::function<void(QTextCursor&)>& select, QPrintDialog::PrintRange range) {
        const QString pdf = QString::fromStdString(folder_ + "/paper.pdf");
        const auto print = [] { click("cmdPrint"_q); };
        const auto cancel = [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
        const auto accept = [&](QWidget& window) {
            auto& dialog = dynamic_cast<QPrintDialog&>(window);
            EXPECT_EQ(dialog.printRange(), range);
            EXPECT_FALSE(dialog.testOption(QPrintDialog::PrintPageRange));
            auto* printers = dialog.findChild<QComboBox*>("printers"_q);
            printers->setCurrentIndex(printers->findText("Print to File (PDF)"_q));
            dialog.findChild<QLineEdit*>("filename"_q)->setText(pdf);
            dialog.accept();
        };
        withModals([] { click("cmdShowAll"_q); },
                   [&](QWidget& window) {
                       QTextCursor cursor = textOf(window).textCursor();
                       select(cursor);
                       textOf(window).setTextCursor(cursor);
                       EXPECT_EQ(withModals(print, cancel), 1);
                       EXPECT_FALSE(QFile::exists(pdf));
                       EXPECT_EQ(withModals(print, accept), 1);
                       EXPECT_TRUE(window.isVisible());
                       click("cmdOk"_q);
                   });
        QProcess reader;
        reader.start("pdftotext"_q, {"-layout"_q, pdf, "-"_q});
        EXPECT_TRUE(reader.waitForFinished());
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

    const ChartModel chart_ = cast(handCharts[0].entry);
};

TEST_F(Analysis, OfAPalaceHoldsItsRunsAndOnlyCloses) {
    for (int round = 0; round < 2; ++round) {
        const auto check = [this](QWidget& window) {
            expectRuns(textOf(window), composePalaceAnalysis(chart_, 7));
            EXPECT_TRUE(textOf(window).isReadOnly());
            EXPECT_EQ(textOf(window).textCursor().position(), 0);
            EXPECT_EQ(buttonsOf(window), "cmdOk"_q);
            QTest::keyClick(&window, Qt::Key_Escape);
        };
        EXPECT_EQ(withModals([] { click("lblCover(7)"_q); }, check), 1);
        EXPECT_TRUE(QTest::qWaitFor([] { return find("lblCover(7)"_q)->hasFocus(); }));
    }
}

TEST_F(Analysis, OfAllPalacesCanBeSavedAndPrinted) {
    const auto check = [this](QWidget& window) {
        expectRuns(textOf(window), composeAllPalaces(chart_));
        EXPECT_EQ(buttonsOf(window), "cmdSave cmdPrint cmdOk"_q);
        EXPECT_EQ(messagesOf([] { click("cmdSave"_q); }, folder_ + "/chart"), QStringList{});
        EXPECT_TRUE(window.isVisible());
        click("cmdOk"_q);
    };
    EXPECT_EQ(withModals([] { click("cmdShowAll"_q); }, check), 1);
    EXPECT_EQ(names(), Names{"chart.txt"});
    EXPECT_TRUE(
        read(folder_ + "/chart.txt").starts_with("\x9F\xA4\x9D\xA3\x75\xA8\xA2\x9E\xA9\x9D\r\n\x8A\r\n"));
}

TEST_F(Analysis, IsPrintedWholeWithNoHeadingPartedFromItsText) {
    const QString paper = printed([](QTextCursor&) {}, QPrintDialog::AllPages);
    EXPECT_EQ(paper.count("Details about the Star present in this house :-"_q), cellCount);
    EXPECT_EQ(paper.count("Palace :- "_q), cellCount + 1);
    const QStringList pages = paper.split(QChar::FormFeed, Qt::SkipEmptyParts);
    EXPECT_GE(pages.size(), 3);
    for (const QString& page : pages) EXPECT_FALSE(page.trimmed().endsWith(":-"_q)) << page.toStdString();
}

TEST_F(Analysis, IsPrintedAsFarAsItIsSelected) {
    const auto select = [](QTextCursor& cursor) {
        cursor = cursor.document()->find("Body Palace :- "_q);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    };
    const QString paper = printed(select, QPrintDialog::Selection).simplified();
    EXPECT_TRUE(paper.startsWith("Body Palace :- Also known as the Shen Gong."_q)) << paper.toStdString();
    EXPECT_TRUE(paper.endsWith("life after 50 years of age."_q)) << paper.toStdString();
}

}  // namespace
