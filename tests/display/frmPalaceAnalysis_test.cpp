// The analysis window, opened from the chart as a person opens it, and what it puts on paper.

#include "display/frmPalaceAnalysis.h"

#include <QPrintDialog>
#include <QPrinter>

#include "display/analysis_printer.h"
#include "files/chart_file.h"
#include "form_driver.h"
#include "interpret/composer.h"
#include "style/controls.h"

namespace {

// Checks the text of the introduction and the runs, and the style of each run.
void expectRuns(const QTextEdit& text, std::vector<TextRun> runs, double enlarged = 1) {
    runs.insert(runs.begin(), introRun());
    QString whole;
    for (const auto& [words, style] : runs) {
        QTextCursor cursor{text.document()};
        cursor.setPosition(static_cast<int>(whole.size()) + 1);
        whole += latinLines(words);
        const QColor colour{style.colour.red, style.colour.green, style.colour.blue};
        EXPECT_EQ(cursor.charFormat().fontWeight() == QFont::Bold, style.bold) << words;
        EXPECT_DOUBLE_EQ(cursor.charFormat().fontPointSize(), style.size * enlarged) << words;
        EXPECT_EQ(cursor.charFormat().foreground().color(), colour) << words;
    }
    EXPECT_EQ(text.toPlainText(), whole);
}

class Analysis : public Program {
  protected:
    Analysis() { showChart(); }

    // Opens the analysis of all palaces and closes it when `act` is done.
    static void open(const std::function<void(QTextEdit&)>& act) {
        const auto actAndClose = [&](QWidget& window) {
            act(*window.findChild<QTextEdit*>("RTB"));
            QTest::keyClick(&window, Qt::Key_Escape);
        };
        EXPECT_EQ(withModals([] { click("cmdShowAll"); }, actAndClose), 1);
    }

    // Prints through the dialog to a file.
    void print() const {
        const auto accept = [&](QWidget& window) {
            auto& dialog = dynamic_cast<QPrintDialog&>(window);
            const bool isSelected = find<QTextEdit>("RTB")->textCursor().hasSelection();
            EXPECT_EQ(dialog.printRange() == QPrintDialog::Selection, isSelected);
            auto* printers = dialog.findChild<QComboBox*>("printers");
            printers->setCurrentIndex(printers->findText("Print to File (PDF)"));
            for (auto* button : dialog.findChildren<QPushButton*>())
                if (button->text().startsWith("&Options")) button->click();
            static const QRegularExpression pageNumbers{"[pP]age|from|^to$|printRange|reverse"};
            for (const auto* control : dialog.findChildren<QWidget*>(pageNumbers))
                EXPECT_FALSE(control->isVisible()) << control->objectName().toStdString();
            dialog.findChild<QLineEdit*>("filename")->setText(QString::fromStdString(pdf_));
            dialog.accept();
        };
        EXPECT_EQ(withModals([] { click("cmdPrint"); }, accept), 1);
    }

    // What is on the paper or, with "-bbox", where it is, without the date of printing.
    QString paper(const QString& option = "-raw") const {
        QProcess reader;
        reader.start("pdftotext", {option, QString::fromStdString(pdf_), "-"});
        EXPECT_TRUE(reader.waitForFinished());
        return QString::fromUtf8(reader.readAllStandardOutput()).section("<doc>", -1);
    }

    const ChartModel chart_ = cast(handCharts[0].entry);
    const std::string pdf_ = folder_ + "/paper.pdf";
};

TEST_F(Analysis, OfAPalaceIsOpenedOnceByAKeyThatIsHeldDownAndReadUntilTheNextPress) {
    const auto hold = [](QWidget& window) {
        QKeyEvent repeat{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true};
        for (int count = 0; count < 3; ++count) QApplication::sendEvent(window.windowHandle(), &repeat);
        EXPECT_TRUE(window.isVisible());
    };
    const auto pressAndHold = [&] {
        find("lblCover(7)")->setFocus();
        QTest::keyClick(find("frmMdi")->windowHandle(), Qt::Key_Return);
        hold(*find("frmMdi"));
    };
    const auto holdAndRead = [&](QWidget& analysis) {
        hold(analysis);
        auto* text = analysis.findChild<QTextEdit*>("RTB");
        expectRuns(*text, composePalaceAnalysis(chart_, 7));
        EXPECT_TRUE(text->isReadOnly());
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_P}) QTest::keyClick(text, key, Qt::ControlModifier);
        QTest::keyClick(&analysis, Qt::Key_Return);
    };
    EXPECT_EQ(withModals(pressAndHold, holdAndRead), 1);
}

TEST_F(Analysis, OfAllPalacesIsSavedAndAsksBeforeItOverwrites) {
    const std::string bytes = chartFileBytes(chart_.input), own = folder_ + "/chart.txt";
    const QString question = "Palace Lantern|question|%1 already exists.\nDo you want to replace it?";
    const auto saveAll = [&](QTextEdit& text) {
        const auto save = [&](const std::string& path, QMessageBox::StandardButton answer = QMessageBox::No) {
            text.activateWindow();
            EXPECT_TRUE(QTest::qWaitFor([&] { return text.isActiveWindow(); }));
            const auto press = [&] { QTest::keyClick(&text, Qt::Key_S, Qt::ControlModifier); };
            return messagesOf(press, path, answer);
        };
        EXPECT_EQ(save(folder_ + "/chart"), QStringList{});
        EXPECT_EQ(read(own), bytes);
        write(own, "old");
        EXPECT_EQ(save(folder_ + "/chart"), (QStringList{question.arg("chart.txt"), "stays"}));
        EXPECT_EQ(read(own), "old");
        EXPECT_EQ(save(folder_ + "/chart", QMessageBox::Yes), QStringList{question.arg("chart.txt")});
        EXPECT_EQ(read(own), bytes);
        for (const char* name : {"/say \"hi\" now.plf", "/<h1>BIG.plf"})
            EXPECT_EQ(save(folder_ + name), QStringList{});
        EXPECT_EQ(save(folder_ + "/<h1>BIG.plf"), (QStringList{question.arg("<h1>BIG.plf"), "stays"}));
        EXPECT_EQ(names(), (Names{"chart.txt", "say \"hi\" now.plf", "<h1>BIG.plf"}));
        for (const auto& [path, why] : {std::pair{std::string{"/none/chart"}, "The folder does not exist."},
                                        {folder_ + "/" + std::string(256, 'n'), "The name is too long."}})
            EXPECT_EQ(save(path), (QStringList{QString("Palace Lantern|critical|") + why, "stays"}));
    };
    open(saveAll);
}

TEST_F(Analysis, IsReadInAnySizeAndPrintedInItsOwnAsFarAsItIsSelected) {
    QString before;
    const auto changeSize = [&](QTextEdit& text) {
        const auto press = [&](Qt::Key key) { QTest::keyClick(&text, key, Qt::ControlModifier); };
        const auto turn = [&](int times, int angle, Qt::KeyboardModifiers held) {
            QWheelEvent event{{}, {}, {}, {0, angle}, Qt::NoButton, held, Qt::NoScrollPhase, false};
            for (int time = 0; time < times; ++time) QApplication::sendEvent(text.viewport(), &event);
        };
        const auto size = [&] { return text.document()->find("Palace").charFormat().fontPointSize(); };
        print();
        before = paper("-bbox");
        const double own = size();
        press(Qt::Key_Minus);
        EXPECT_DOUBLE_EQ(size(), own * 0.9);
        turn(3, -120, Qt::ControlModifier);
        EXPECT_DOUBLE_EQ(size(), own * 0.8) << "the least";
        turn(8, 120, Qt::ControlModifier);
        turn(1, 120, Qt::NoModifier);
        EXPECT_DOUBLE_EQ(size(), own * 2.5);
        press(Qt::Key_0);
        EXPECT_DOUBLE_EQ(size(), own);
        for (int step = 0; step < 12; ++step) press(Qt::Key_Plus);
    };
    open(changeSize);
    const auto printAgain = [&](QTextEdit& text) {
        expectRuns(text, composeAllPalaces(chart_), 3);
        print();
        EXPECT_TRUE(paper("-bbox") == before) << "also the paper is larger";
        text.setTextCursor(text.document()->find("life after 50 years of age."));
        print();
        EXPECT_EQ(paper().simplified(), "life after 50 years of age.");
    };
    open(printAgain);
}

TEST_F(Analysis, IsPrintedWithinMarginsAndNothingThatBelongsTogetherIsParted) {
    open([this](QTextEdit&) { print(); });
    QStringList pages = paper().split(QChar::FormFeed);
    EXPECT_EQ(pages.takeLast(), "");
    EXPECT_GE(pages.size(), 3);
    for (const QString& page : pages.mid(1)) {
        const QString first = page.section("\n", 0, 0);
        EXPECT_TRUE(first.contains("Palace :- ") || first.contains("Star :- ")) << page.toStdString();
    }
    static const QRegularExpression place{"xMin=\"(.*?)\" yMin=\"(.*?)\""};
    const auto firstWord = place.match(paper("-bbox"));
    EXPECT_NEAR(firstWord.captured(1).toDouble(), 20 * 72 / 25.4, 3);  // millimetres in points
    EXPECT_NEAR(firstWord.captured(2).toDouble(), 18 * 72 / 25.4, 3);
    QString text;
    for (int i = 0; i < 400; ++i) text += "Palace\nDetails :-\n" + QString(i % 3, QChar::LineFeed);
    QPrinter printer;
    printer.setOutputFileName(QString::fromStdString(pdf_));
    printOnPaper(QTextDocument{text + QString(200, QChar::LineFeed)}, printer);
    pages = paper().split(QChar::FormFeed);
    EXPECT_EQ(pages.takeLast(), "");
    EXPECT_GE(pages.size(), 10);
    for (const QString& page : pages) EXPECT_TRUE(page.startsWith("Palace"));
}

}  // namespace
