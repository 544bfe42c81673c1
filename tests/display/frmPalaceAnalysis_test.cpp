// The analysis window, opened from the chart as a person opens it, and what it puts on paper.

#include <QPrintDialog>
#include <QPrinter>

#include "display/analysis_printer.h"
#include "form_driver.h"
#include "interpret/composer.h"

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

// Sends an event to a window at a time of the display's clock, in milliseconds.
template <class Event>
void sendAt(quint64 time, QWidget& window, Event event) {
    event.setTimestamp(time);
    QApplication::sendEvent(window.windowHandle(), &event);
}

void sendKeyAt(quint64 time, QEvent::Type type, QWidget& window, int key = Qt::Key_Enter, bool held = false) {
    sendAt(time, window, QKeyEvent{type, key, Qt::NoModifier, {}, held});
}

struct Analysis : Program {
    Analysis() { showChart(); }

    // Runs `act` on the text of the analysis of all palaces.
    static void open(const std::function<void(QTextEdit&)>& act) {
        withOne(clicking("cmdShowAll"), [&](QWidget&) { act(*find<QTextEdit>("RTB")); });
    }

    void printToFile() const {
        withOne(clicking("cmdPrint"), [&](QWidget& window) {
            auto& dialog = dynamic_cast<QPrintDialog&>(window);
            const bool selected = find<QTextEdit>("RTB")->textCursor().hasSelection();
            EXPECT_NE(find("printAll")->isEnabled(), selected);
            EXPECT_EQ(QFileInfo{find<QLineEdit>("filename")->text()}.fileName(), "Palace Lantern.pdf");
            find<QComboBox>("printers")->setCurrentText("Print to File (PDF)");
            dialog.printer()->setPageLayout(QPrinter{}.pageLayout());  // as printers do
            for (auto* button : dialog.findChildren<QPushButton*>())
                if (button->text().startsWith("&Options")) button->click();
            static const QRegularExpression pageNumbers{"[pP]age|from|^to$|printRange|reverse"};
            for (const auto* control : dialog.findChildren<QWidget*>(pageNumbers))
                EXPECT_FALSE(control->isVisible()) << control->objectName().toStdString();
            find<QLineEdit>("filename")->setText(pdf_);
            dialog.accept();
        });
    }

    // What is on the paper or, with "-bbox", where, without the date of printing.
    QString paper(const QString& option = "-raw") const {
        EXPECT_EQ(QProcess::execute("pdftotext", {option, pdf_, in("paper.txt").c_str()}), 0);
        return QString::fromStdString(read("paper.txt")).section("<doc>", -1);
    }

    const QString pdf_ = in("paper.pdf").c_str();
};

TEST_F(Analysis, OfAPalaceIsOpenedOnceByAKeyThatIsHeldDownAndReadUntilTheNextPress) {
    const auto hold = [](QWidget& window) {
        sendKeyAt(0, QEvent::KeyPress, window, Qt::Key_Enter, true);
        for (const quint64 time : {5000U, 5030U}) {  // as the X server reports it
            sendKeyAt(time, QEvent::KeyRelease, window);
            sendKeyAt(time + 1, QEvent::KeyPress, window);
        }
        EXPECT_TRUE(window.isVisible());
    };
    // Released late; without a time, while assistive technology listens; or without the release being seen.
    for (const auto& [time, seen] : {std::pair{5200U, true}, {0U, true}, {0U, false}}) {
        const auto pressAndHold = [&] {
            find("lblCover(7)")->setFocus();
            sendKeyAt(1000, QEvent::KeyPress, *find("frmMdi"));
            hold(*find("frmMdi"));
        };
        withOne(pressAndHold, [&, time = time, seen = seen](QWidget& analysis) {
            hold(analysis);
            expectRuns(*find<QTextEdit>("RTB"), composePalaceAnalysis(cast(handBirth), 7));
            EXPECT_TRUE(find<QTextEdit>("RTB")->isReadOnly());
            EXPECT_FALSE(find("cmdSave")->isVisible() || find("cmdPrint")->isVisible());
            press("Ctrl+S Ctrl+P");
            sendKeyAt(time, seen ? QEvent::KeyRelease : QEvent::KeyPress, analysis,
                      seen ? Qt::Key_Enter : Qt::Key_Shift);
            sendKeyAt(time * 2, QEvent::KeyPress, analysis, Qt::Key_Enter, !seen);
            EXPECT_FALSE(analysis.isVisible());
        });
    }
}

TEST_F(Analysis, OfAPalaceIsNotClosedByTheSecondHalfOfADoubleClick) {
    const auto clickAt = [](quint64 time, QWidget& control) {
        const QPoint inWindow = control.mapTo(control.window(), QPoint{9, 9});
        for (const auto& [type, held] : {std::pair{QEvent::MouseButtonPress, Qt::LeftButton},
                                         {QEvent::MouseButtonRelease, Qt::NoButton}})
            sendAt(time, *control.window(),
                   QMouseEvent{type, inWindow, QPointF{600, 400}, Qt::LeftButton, held, Qt::NoModifier});
    };
    const auto clickPalaceAt = [&](quint64 time) { return [=] { clickAt(time, *find("lblCover(7)")); }; };
    for (const quint64 pause : {100U, 2000U})
        withOne(clickPalaceAt(1000), [&](QWidget& analysis) {
            clickAt(1000 + pause, *find("cmdOk"));
            EXPECT_EQ(analysis.isVisible(), pause == 100);
        });
    EXPECT_EQ(messagesOf(clickPalaceAt(3100)), "") << "soon after the last cmdOk";
    const auto chooseQuickly = [&] {
        // Since Qt 6.8, a menu takes a click only away from where the pointer was as it opened.
        QTest::mouseMove(find("frmMdi")->windowHandle(), {9, 9});
        clickAt(5000, *find("frmDisplay")->findChild<QMenuBar*>());
        clickAt(5100, *find<QMenu>("mnuFile"));  // goes on with its title; its first entry is Show All
    };
    withOne(chooseQuickly, [](QWidget& analysis) {
        choose("frmPalaceAnalysis", "mnuOk");
        EXPECT_FALSE(analysis.isVisible());
    });
}

TEST_F(Analysis, IsReadInAnySizeAndPrintedInItsOwnWithinMarginsAsFarAsItIsSelected) {
    const QString words = "life after 50 years of age.";
    QString before;
    open([&](QTextEdit& text) {
        const auto size = [&] { return text.document()->find("Palace").charFormat().fontPointSize(); };
        const auto turned = [&](int times, int angle, Qt::KeyboardModifiers held = Qt::ControlModifier) {
            QWheelEvent event{{}, {}, {}, {0, angle}, Qt::NoButton, held, Qt::NoScrollPhase, false};
            for (int time = 0; time < times; ++time) QApplication::sendEvent(text.viewport(), &event);
            return size();
        };
        const auto top = [&] { return text.cursorForPosition({0, 2}).blockNumber(); };
        printToFile();
        before = paper("-bbox");
        const QString firstWord = before.section("<word", 1, 1);  // its edges, each in quotation marks
        EXPECT_NEAR(firstWord.section('"', 1, 1).toDouble(), 20 * 72 / 25.4, 3);  // millimetres in points
        EXPECT_NEAR(firstWord.section('"', 7, 7).toDouble(), 18 * 72 / 25.4 + 9.5, 3) << "the line's foot";
        const double own = size();
        EXPECT_EQ(text.textCursor().position() + top(), 0) << "read from its top";
        text.setTextCursor(text.document()->find(words));
        text.verticalScrollBar()->setValue(text.verticalScrollBar()->maximum() * 2 / 3);
        const int topBefore = top();
        press("Ctrl+=", &text);
        EXPECT_DOUBLE_EQ(size(), own * 1.1);
        EXPECT_EQ(top(), topBefore);
        EXPECT_EQ(text.textCursor().selectedText(), words);
        EXPECT_DOUBLE_EQ(turned(3, -40), own) << "by a touchpad";
        EXPECT_DOUBLE_EQ(turned(4, -120), own * 0.8) << "the least";
        turned(8, 120);
        EXPECT_DOUBLE_EQ(turned(1, -120, Qt::NoModifier), own * 2.5) << "the most, and left by Ctrl only";
        press("Ctrl+0 Ctrl+-", &text);
        EXPECT_DOUBLE_EQ(size(), own * 0.9);
        for (int step = 0; step < 12; ++step) press("Ctrl++", &text);
        text.window()->resize(510, 440);
    });
    open([&](QTextEdit& text) {
        EXPECT_EQ(text.window()->size(), QSize(510, 440)) << "as a person left it";
        expectRuns(text, composeAllPalaces(cast(handBirth)), 3);
        printToFile();
        EXPECT_TRUE(paper("-bbox") == before) << "also the paper is larger";
        text.setTextCursor(text.document()->find(words));
        printToFile();
        EXPECT_EQ(paper().simplified(), words);
    });
}

TEST_F(Analysis, IsPrintedWithNothingPartedThatBelongsTogether) {
    QString text;
    for (int i = 0; i < 400; ++i) text += "Palace\nDetails :-\n" + QString(i % 3, QChar::LineFeed);
    QPrinter printer;
    printer.setOutputFileName(pdf_);
    printOnPaper(QTextDocument{text + QString(200, QChar::LineFeed)}, printer);
    const QStringList pages = paper().split("\f");  // the last one ends what comes before it
    EXPECT_GE(pages.size(), 10);
    for (const QString& page : pages) EXPECT_TRUE(page.startsWith("Palace") || &page == &pages.last());
}

}  // namespace
