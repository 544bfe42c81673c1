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
            dialog.printer()->setPageLayout(QPrinter{QPrinter::HighResolution}.pageLayout());  // as printers do
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

// Sends an event to a window at a time of the display's clock, in milliseconds.
template <class Event>
void sendAt(quint64 time, QWidget& window, Event event) {
    event.setTimestamp(time);
    QApplication::sendEvent(window.windowHandle(), &event);
}

void pressEnterAt(quint64 time, QWidget& window) {
    sendAt(time, window, QKeyEvent{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r"});
}

TEST_F(Analysis, OfAPalaceIsOpenedOnceByAKeyThatIsHeldDownAndReadUntilTheNextPress) {
    const auto hold = [](QWidget& window) {
        QKeyEvent repeat{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true};
        QApplication::sendEvent(window.windowHandle(), &repeat);
        for (const quint64 time : {5000U, 5030U}) {  // as the X server reports it
            sendAt(time, window, QKeyEvent{QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, "\r"});
            pressEnterAt(time + 1, window);
        }
        EXPECT_TRUE(window.isVisible());
    };
    const auto pressAndHold = [&] {
        find("lblCover(7)")->setFocus();
        pressEnterAt(1000, *find("frmMdi"));
        hold(*find("frmMdi"));
    };
    const auto holdAndRead = [&](QWidget& analysis) {
        hold(analysis);
        auto* text = analysis.findChild<QTextEdit*>("RTB");
        expectRuns(*text, composePalaceAnalysis(chart_, 7));
        EXPECT_TRUE(text->isReadOnly());
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_P}) QTest::keyClick(text, key, Qt::ControlModifier);
        pressEnterAt(5200, analysis);  // late, but soon delivered
        EXPECT_FALSE(analysis.isVisible());
        analysis.close();
    };
    EXPECT_EQ(withModals(pressAndHold, holdAndRead), 1);
}

TEST_F(Analysis, OfAPalaceIsNotClosedByTheSecondHalfOfADoubleClick) {
    const auto clickAt = [](quint64 time, QWidget& control, const QPoint& place) {
        const QPoint inWindow = control.mapTo(control.window(), place);
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            sendAt(time, *control.window(),
                   QMouseEvent{type, inWindow, QPointF{600, 400}, Qt::LeftButton, held, Qt::NoModifier});
        }
    };
    const auto clickOkTwice = [&](QWidget& analysis) {
        clickAt(1100, *find("cmdOk"), {9, 9});
        EXPECT_TRUE(analysis.isVisible());
        clickAt(3000, *find("cmdOk"), {9, 9});
    };
    EXPECT_EQ(withModals([&] { clickAt(1000, *find("lblCover(7)"), {9, 9}); }, clickOkTwice), 1);
    const auto chooseQuickly = [&] {
        auto* menus = find("frmDisplay")->findChild<QMenuBar*>();
        clickAt(5000, *menus, menus->actionGeometry(menus->actions().first()).center());
        clickAt(5100, *find<QMenu>("mnuFile"), {9, 9});  // a menu goes on with its title
    };
    EXPECT_EQ(withModals(chooseQuickly, [](QWidget& analysis) { analysis.close(); }), 1);
}

TEST_F(Analysis, OfAllPalacesIsSavedAndAsksBeforeItOverwrites) {
    const std::string bytes = chartFileBytes(chart_.input), own = folder_ + "/chart.txt";
    const QString question = "Palace Lantern Message|question|%1 already exists.\nDo you want to replace it?";
    const auto saveAll = [&](QTextEdit& text) {
        const auto save = [&](const std::vector<std::string>& typed, bool yes = false) {
            text.activateWindow();
            EXPECT_TRUE(QTest::qWaitFor([&] { return text.isActiveWindow(); }));
            const auto press = [&] { QTest::keyClick(&text, Qt::Key_S, Qt::ControlModifier); };
            return messagesOf(press, typed, yes);
        };
        EXPECT_EQ(save({folder_ + "/chart"}), QStringList{});
        EXPECT_EQ(read(own), bytes);
        write(own, "old");
        EXPECT_EQ(save({folder_ + "/chart"}), (QStringList{question.arg("chart.txt"), "stays"}));
        EXPECT_EQ(read(own), "old");
        EXPECT_EQ(save({folder_ + "/chart"}, true), QStringList{question.arg("chart.txt")});
        EXPECT_EQ(read(own), bytes);
        for (const char* name : {"/say \"hi\" now.plf", "/<h1>BIG.plf"})
            EXPECT_EQ(save({folder_ + name}), QStringList{});
        EXPECT_EQ(save({folder_ + "/<h1>BIG.plf"}), (QStringList{question.arg("<h1>BIG.plf"), "stays"}));
        std::filesystem::create_directories(folder_ + "/sub/name.txt");
        EXPECT_EQ(save({folder_ + "/sub", "in sub"}), QStringList{});
        EXPECT_EQ(read(folder_ + "/sub/in sub.txt"), bytes);
        EXPECT_EQ(names(), (Names{"chart.txt", "say \"hi\" now.plf", "sub", "<h1>BIG.plf"}));
        const auto expectRefusal = [&](const std::string& path, const char* why) {
            EXPECT_EQ(save({path}), (QStringList{QString("Palace Lantern Message|critical|") + why, "stays"}));
        };
        expectRefusal("/none/chart", "The folder does not exist.");
        expectRefusal(folder_ + "/sub/name", "This is the name of a folder.");
        expectRefusal(folder_ + "/" + std::string(256, 'n'), "The name is too long.");
        std::filesystem::permissions(own, std::filesystem::perms::owner_read);
        inClosedFolder([&] {
            expectRefusal(own, "This file is read-only.");
            expectRefusal(folder_ + "/new", "Nothing can be saved in this folder.");
        });
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
        const auto top = [&] { return text.cursorForPosition({0, 2}).blockNumber(); };
        EXPECT_EQ(text.textCursor().position() + top(), 0) << "read from its top";
        text.setTextCursor(text.document()->find("life after 50 years of age."));
        const int anchor = text.textCursor().anchor(), position = text.textCursor().position();
        text.verticalScrollBar()->setValue(text.verticalScrollBar()->maximum() * 2 / 3);
        const int topBefore = top();
        press(Qt::Key_Equal);
        EXPECT_DOUBLE_EQ(size(), own * 1.1);
        EXPECT_EQ(top(), topBefore);
        EXPECT_EQ(text.textCursor().anchor(), anchor);
        EXPECT_EQ(text.textCursor().position(), position);
        turn(3, -40, Qt::ControlModifier);  // as touchpads do
        EXPECT_DOUBLE_EQ(size(), own);
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
        text.window()->resize(510, 440);
    };
    open(changeSize);
    const auto printAgain = [&](QTextEdit& text) {
        EXPECT_EQ(text.window()->size(), QSize(510, 440)) << "as a person left it";
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
