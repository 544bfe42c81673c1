// The input form: what goes into it, what it refuses, and what it hands over.

#include "input/frmMain.h"

#include <QAccessible>

#include "files/chart_file.h"
#include "form_driver.h"

namespace {

const QStringList onlyLetters{"Palace Lantern Message|information|Please Enter Only Letters"};
const QString old = "OLD 1 January 2001 13 30";

class InputForm : public Program {
  protected:
    QString press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(name_, key, held);
        return name_->text();
    }

    // Drags to the name box, drops what the pointer tells that it may drop there, and returns whether it may.
    // With Shift, as if the file were to be moved away.
    bool drop(const QMimeData& dragged) {
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter{{5, 5}, offered, &dragged, Qt::LeftButton, Qt::ShiftModifier};
        QApplication::sendEvent(name_, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop{{5, 5}, offered, &dragged, Qt::LeftButton, Qt::ShiftModifier};
        QApplication::sendEvent(dragged.hasUrls() ? form_ : name_, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        return true;
    }

    QWidget* form_ = find("frmMain");
    QLineEdit* name_ = find<QLineEdit>("txtName");
};

TEST_F(InputForm, OpensOnTheFirstEntriesAndTurnsOnlyTheListInFocus) {
    QString entries = entered();
    for (const QString& name : dateAndTime) {
        const auto* list = find<QComboBox>(name);
        entries += " .." + list->itemText(list->count() - 1);
    }
    EXPECT_EQ(entries, " 1 January 1970 0 0 ..31 ..December ..2012 ..23 ..59");
    auto* year = find<QComboBox>("cmbYear");
    for (const int expected : {0, 1}) {
        const QPointF place = year->mapTo(form_, QPoint{5, 5});
        QWheelEvent wheel{place, form_->mapToGlobal(place), {},   {0, -120}, Qt::NoButton,
                          {},    Qt::NoScrollPhase,         false};
        QSpontaneKeyEvent::setSpontaneous(&wheel);  // as if it came from the screen
        qApp->notify(form_->windowHandle(), &wheel);
        EXPECT_EQ(year->currentIndex(), expected);
        year->setFocus();
    }
    form_->resize(1300, 600);
    const auto* details = form_->findChild<QGroupBox*>();
    EXPECT_LT(details->width(), 900) << "where a desktop makes the form as wide as the screen";
    EXPECT_NEAR(details->mapTo(form_, details->rect().center()).x(), 650, 10);
}

using Act = std::function<void()>;

class NameBox : public InputForm {
  protected:
    Act type(const QString& text, Qt::KeyboardModifiers held = Qt::NoModifier) {
        return [=, this] { QTest::sendKeyEvent(QTest::Click, name_, Qt::Key_unknown, text, held); };
    }
    Act compose(const QString& preedit, const QString& text) {
        return [=, this] {
            for (const QString& shown : {preedit, QString{}}) {
                QInputMethodEvent event{shown, {}};
                if (shown.isEmpty()) event.setCommitString(text);
                QApplication::sendEvent(name_, &event);
            }
        };
    }
    Act paste(const QString& text, Qt::Key key = Qt::Key_V, Qt::KeyboardModifier held = Qt::ControlModifier) {
        return [=, this] {
            QGuiApplication::clipboard()->setText(text);
            press(key, held);
        };
    }
    Act pasteByMenu(const QString& text) {
        return [=, this] {
            QGuiApplication::clipboard()->setText(text);
            QContextMenuEvent event{QContextMenuEvent::Mouse, {}, name_->mapToGlobal(QPoint{5, 5})};
            QApplication::sendEvent(name_, &event);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_P);
        };
    }
    Act pasteByMiddleButton(const QString& text) {
        return [=, this] {
            QGuiApplication::clipboard()->setText(text, QClipboard::Selection);
            QTest::mouseClick(name_, Qt::MiddleButton, {}, {2, 5});
        };
    }
    Act dropText(const QString& text) {
        return [=, this] {
            QMimeData dragged;
            dragged.setText(text);
            drop(dragged);
        };
    }
    // As a screen reader sets and inserts text, at the front.
    Act setByBus(const QString& text, bool inserts) {
        return [=, this] {
            auto* bus = QAccessible::queryAccessibleInterface(name_);
            inserts ? bus->editableTextInterface()->insertText(0, text)
                    : bus->setText(QAccessible::Value, text);
        };
    }

    // Text, with the selection in brackets or the cursor as a bar.
    void set(QString marked) {
        const auto from = marked.indexOf('['), to = marked.indexOf(']') - 1, cursor = marked.indexOf('|');
        marked.remove('[').remove(']').remove('|');
        dynamic_cast<frmMain*>(form_)->fillIn({marked.toStdString(), "", "", ""});
        from < 0 ? name_->setCursorPosition(int(cursor)) : name_->setSelection(int(from), int(to - from));
    }
    QString state() const {
        const int from = name_->selectionStart(), cursor = name_->cursorPosition();
        return from < 0 ? name_->text().insert(cursor, '|')
                        : name_->text().insert(name_->selectionEnd(), ']').insert(from, '[');
    }
};

TEST_F(NameBox, FiltersWhatComesInOnEveryWayAndLeavesWhatIsThere) {
    const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    const QStringList quiet;
    const std::tuple<QString, Act, QString, QStringList> rows[]{
        {"[JOHN SMITH]", type("1"), "[JOHN SMITH]", onlyLetters},
        {"[AB]XCD", type("-"), "[AB]XCD", onlyLetters},
        {"AB|CD", type("x"), "ABX|CD", quiet},
        {"AB|CD", type("X"), "ABX|CD", quiet},
        {"O'NEIL|", type("s"), "O'NEILS|", quiet},
        {"O'NEIL|", [this] { press(Qt::Key_Backspace); }, "O'NEI|", quiet},
        {"A|", type("@", altGr), "A|", onlyLetters},
        {"A|", type("q", altGr), "AQ|", quiet},
        {"A|", type("7", Qt::KeypadModifier), "A|", onlyLetters},
        {"[AB]", type("q", Qt::AltModifier), "[AB]", quiet},
        {"[AB]", type("q", Qt::MetaModifier), "[AB]", quiet},
        {"[AB]", type("q", Qt::ControlModifier), "[AB]", quiet},
        {"[AB]", type("1", Qt::ControlModifier | Qt::KeypadModifier), "[AB]", quiet},
        {"[AB]CD", paste("123"), "[AB]CD", onlyLetters},
        {"[AB]CD", paste("a1b"), "AB|CD", onlyLetters},
        {"|SMITH", paste("JOHN\r\n"), "JOHN|SMITH", quiet},
        {"[AB]", paste("x\ny", Qt::Key_Insert, Qt::ShiftModifier), "XY|", onlyLetters},
        {"[AB]C", pasteByMenu("x2"), "X|C", onlyLetters},
        {"|CD", pasteByMiddleButton("x2"), "X|CD", onlyLetters},
        {"[AB]C", compose("", "\u00E9"), "[AB]C", onlyLetters},
        {"[AB]C", compose("'", "\u00E9"), "[AB]C", onlyLetters},
        {"[AB]C", compose("x", "x"), "X|C", quiet},
        {"[AB]C", compose("x", ""), "[AB]C", quiet},
        {"AB|", dropText("x-y"), "XY|AB", onlyLetters},
        {"O'NEIL|", setByBus("m1", true), "MO'NEIL|", onlyLetters},
        {"O'NEIL|", setByBus("x-y", false), "XY|", onlyLetters},
    };
    for (const auto& [before, act, after, messages] : rows) {
        set(before);
        EXPECT_EQ(messagesOf(act), messages) << before.toStdString() << " to " << after.toStdString();
        EXPECT_EQ(state(), after) << before.toStdString();
        form_->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return name_->hasFocus(); }));
    }
}

TEST_F(NameBox, TakesBackWhatWasTypedAndRepeatsBlanks) {
    QWindow* keyboard = form_->windowHandle();
    const auto typeAndUndo = [&] {
        for (const char letter : {'a', 'B', '1', 'c'}) QTest::keyClick(keyboard, letter);
        QCoreApplication::processEvents();
        for (int time = 0; time < 3; ++time) press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(name_->text(), "");
        EXPECT_EQ(press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier), "ABC");
    };
    EXPECT_EQ(messagesOf(typeAndUndo), onlyLetters);
    EXPECT_TRUE(QTest::qWaitFor([this] { return name_->hasFocus(); }));
    name_->clear();
    for (int count = 0; count < 3; ++count) {
        QKeyEvent repeat{QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true};
        QApplication::sendEvent(keyboard, &repeat);
    }
    EXPECT_EQ(name_->text(), "   ");
    QGuiApplication::clipboard()->setText("X");
    EXPECT_EQ(press(Qt::Key_A, Qt::ControlModifier), "   ");
    EXPECT_EQ(press(Qt::Key_X, Qt::ControlModifier), "");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "   ");
}

TEST_F(InputForm, KeepsTheFocusInTheNameBoxAfterMenusAndMessages) {
    QWindow* keyboard = form_->windowHandle();
    QTest::keyClick(keyboard, Qt::Key_Alt);
    QTest::keyClick(keyboard, Qt::Key_A);
    QTest::keyClick(keyboard, Qt::Key_F, Qt::AltModifier);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTest::keyClick(keyboard, Qt::Key_B);
    EXPECT_EQ(name_->text(), "AB");
    const auto type = [&] {
        QTest::keyClick(keyboard, '-');
        QCoreApplication::processEvents();
    };
    const auto typeOnAndConfirm = [](QWidget& message) {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_O}) QTest::keyClick(message.windowHandle(), key);
        QCoreApplication::processEvents();
        EXPECT_TRUE(message.isVisible());
        QTest::keyClick(message.windowHandle(), Qt::Key_Return);
    };
    EXPECT_EQ(withModals(type, typeOnAndConfirm), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return name_->hasFocus(); }));
}

TEST_F(Program, CastsOnEnterAndMovesTheListsAtMidnight) {
    enter("A", "31.12.1999", 0, 0);
    EXPECT_EQ(messagesOf([] { QTest::keyClick(find("txtName"), Qt::Key_Return); }),
              QStringList{"Palace Lantern Message|information|Please Enter Correct Date"});
    EXPECT_EQ(entered(), "A 31 December 1999 0 0");
    enter(" A", "31.12.1998", 0, 0);
    QTest::keyClick(find("cmbMinute"), Qt::Key_Return);
    EXPECT_EQ(entered(), " A 1 January 1999 0 0");
    EXPECT_EQ(find<QLabel>("lblDateOfBirth")->text(), "January/1/1999");
}

TEST_F(InputForm, OpensChartFilesAndIsLeftAsItIsByOthers) {
    const std::string bytes = chartFileBytes({u"O'NEIL <b>", 1985, "March", 5});
    write(folder_ + "/chart.plf", bytes);
    write(folder_ + "/chart.txt", bytes);
    write(folder_ + "/chartplf", bytes.substr(0, bytes.size() - 6));  // without the year
    write(folder_ + "/noname.plf", bytes.substr(bytes.find('\r')));
    std::filesystem::create_symlink("/proc/self/mem", folder_ + "/x.plf");
    const QString shown = "O'NEIL <b> 5 March 1985 13 30", shownWithoutYear = "O'NEIL <b> 5 March 2001 13 30";
    const QStringList quiet, bad{"Palace Lantern Message|critical|Please Check The File."};
    const QStringList missing{"Palace Lantern Message|critical|There is no such file.", "stays"};
    const QStringList noName{"Palace Lantern Message|information|Please Enter Your Name !"};
    const std::tuple<std::vector<std::string>, QStringList, QString> files[]{
        {{}, quiet, old},
        {{folder_ + "/chart.plf"}, quiet, shown},
        {{folder_ + "/chart"}, quiet, shown},
        {{folder_, "chartplf"}, quiet, shownWithoutYear},
        {{folder_ + "/chart.txt"}, bad, old},
        {{folder_ + "/x.plf"}, bad, old},
        {{folder_ + "/missing"}, missing, old},
        {{folder_ + "/noname.plf"}, noName, " 5 March 1985 13 30"},
    };
    for (const auto& [typed, messages, after] : files) {
        enter("OLD", "1.1.2001", 13, 30);
        EXPECT_EQ(messagesOf([] { click("cmdOpen"); }, typed), messages) << after.toStdString();
        EXPECT_EQ(entered(), after);
        EXPECT_EQ(form_->isHidden(), messages.isEmpty() && after != old) << after.toStdString();
        if (form_->isHidden()) click("cmdBack");
    }
    EXPECT_EQ(messagesOf([this] { QTest::keyClick(name_, '1'); }), onlyLetters);
    const auto expectFilter = [](QWidget& window) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(window).nameFilters(), QStringList{"Palace Lantern (*.plf)"});
        window.close();
    };
    EXPECT_TRUE(QTest::qWaitFor([this] { return form_->isActiveWindow(); }));
    EXPECT_EQ(withModals([this] { press(Qt::Key_O, Qt::ControlModifier); }, expectFilter), 1);
}

TEST_F(InputForm, TakesOneDroppedChartFileAndRefusesOtherFiles) {
    const QString path = QString::fromStdString(folder_ + "/chart.plf");
    write(folder_ + "/chart.plf", chartFileBytes({u"NEW", 1985, "March", 5}));
    const QUrl chart = QUrl::fromLocalFile(path), text = QUrl::fromLocalFile(path + ".txt");
    const auto dropAll = [this](const QList<QUrl>& urls) {
        QMimeData dragged;
        dragged.setUrls(urls);
        dragged.setText("x");  // as file managers do
        return drop(dragged);
    };
    enter("", "1.1.2001", 13, 30);
    const auto dropWithAMessage = [&] {
        EXPECT_TRUE(dropAll({chart}));
        click("cmdGenerateChart");
    };
    const auto dropBeforeAMessage = [&](QWidget& message) {
        EXPECT_FALSE(dropAll({chart}));
        message.close();
    };
    EXPECT_EQ(withModals(dropWithAMessage, dropBeforeAMessage), 1);
    for (const QList<QUrl>& urls : {QList{text}, {chart, chart}, {QUrl{"https://host/chart.plf"}}})
        EXPECT_FALSE(dropAll(urls));
    EXPECT_EQ(entered(), " 1 January 2001 13 30");
    EXPECT_TRUE(dropAll({chart}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return form_->isHidden(); }));
    EXPECT_EQ(entered(), "NEW 5 March 1985 13 30");
}

// Two screens, which the toolkit makes in memory where it is told to; the second one is small.
using TwoScreens = Program;

TEST_F(TwoScreens, HoldEachWindowWhereThePersonIs) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.size() < 2) GTEST_SKIP() << "on one screen";
    const auto isOn = [](const QScreen* screen, const QWidget& window) {
        return window.screen() == screen && screen->availableGeometry().contains(window.geometry());
    };
    for (const int to : {1, 0}) {
        QWidget* form = find("frmMain");
        form->move(screens[to]->geometry().center() - QPoint{100, 100});
        form->hide();
        form->show();
        EXPECT_TRUE(isOn(screens[to], *form)) << to;
        showChart();
        QWidget* frame = find("frmMdi");
        EXPECT_TRUE(isOn(screens[to], *frame)) << to;
        frame->showNormal();
        frame->move(screens[1 - to]->geometry().topLeft() + QPoint{20, 20});
        const auto close = [&](QWidget& window) {
            EXPECT_TRUE(isOn(screens[1 - to], window)) << to;
            window.close();
        };
        EXPECT_EQ(withModals([] { click("cmdShowAll"); }, close), 1);
        EXPECT_EQ(withModals([] { click("cmdSavePicture"); }, close), 1);
        click("cmdBack");
        EXPECT_TRUE(isOn(screens[1 - to], *form)) << to;
    }
}

}  // namespace
