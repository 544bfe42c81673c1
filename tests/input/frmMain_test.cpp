// The input form: what goes into it, what it refuses, and what it hands over.

#include "input/frmMain.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>

#include "files/chart_file.h"
#include "form_driver.h"

namespace {

const QStringList onlyLetters{"Palace Lantern|information|Please Enter Only Letters"_q};

class InputForm : public TemporaryFolder {
  protected:
    InputForm() {
        LunarMonth = 0;
        form_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
    }

    QString press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(name_, key, held);
        return name_->text();
    }

    // By the entry of that name in the box's own menu.
    void choose(const QString& words) {
        QTimer::singleShot(50, [&words] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (QAction* entry : menu->actions()) {
                if (entry->text().startsWith(words)) menu->setActiveAction(entry);
            }
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent event{QContextMenuEvent::Keyboard, {5, 5}, name_->mapToGlobal(QPoint{5, 5})};
        QApplication::sendEvent(name_, &event);
    }

    static QStringList open(const std::string& path) {
        return messagesOf([] { click("cmdOpen"_q); }, path);
    }

    ChartModel chart_;
    frmMain form_{chart_};
    QLineEdit* name_ = form_.findChild<QLineEdit*>("txtName"_q);
    QSignalSpy generated_{&form_, &frmMain::chartGenerated};
};

TEST_F(InputForm, OpensOnTheFirstEntries) {
    EXPECT_EQ(entered(), " 1 January 1970 0 0"_q);
    QString ends;
    for (const QString& name : {"cmbDate"_q, "cmbMonth"_q, "cmbYear"_q, "cmbHour"_q, "cmbMinute"_q}) {
        const auto* list = find<QComboBox>(name);
        ends += "%1..%2 (%3) "_q.arg(list->itemText(0), list->itemText(list->count() - 1)).arg(list->count());
    }
    EXPECT_EQ(ends, "1..31 (31) January..December (12) 1970..2012 (43) 0..23 (24) 0..59 (60) "_q);
}

TEST_F(InputForm, LetsOnlyLettersAndBlanksBeTyped) {
    EXPECT_EQ(messagesOf([this] { QTest::keyClicks(name_, "azAZ o'neil"_q); }), onlyLetters);
    EXPECT_EQ(name_->text(), "AZAZ ONEIL"_q);
    for (const QString& key : {"1"_q, "@"_q, "["_q, "`"_q, "{"_q, "\u00E9"_q}) {
        const auto type = [&] { QTest::sendKeyEvent(QTest::Click, name_, Qt::Key_unknown, key, {}); };
        EXPECT_EQ(messagesOf(type), onlyLetters) << key.toStdString();
    }
    const QStringList messages = messagesOf([this] {
        press(Qt::Key_Home);
        EXPECT_EQ(press(Qt::Key_Delete), "ZAZ ONEIL"_q);
        press(Qt::Key_Right);
        EXPECT_EQ(press(Qt::Key_Backspace), "AZ ONEIL"_q);
        press(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(press(Qt::Key_X, Qt::ControlModifier), ""_q);
        EXPECT_EQ(press(Qt::Key_V, Qt::ControlModifier), "AZ ONEIL"_q);
    });
    EXPECT_EQ(messages, QStringList{});
}

TEST_F(InputForm, FiltersEveryOtherWayIn) {
    QMimeData dragged;
    dragged.setText("Anna-Maria 2"_q);
    QDropEvent drop{{5, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier};
    QInputMethodEvent commit;
    commit.setCommitString("Anna-Maria 2"_q);
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText("Anna-Maria 2"_q);
    if (clipboard->supportsSelection()) clipboard->setText("Anna-Maria 2"_q, QClipboard::Selection);
    const bool selects = clipboard->supportsSelection();
    const std::pair<const char*, std::function<void()>> ways[]{
        {"paste by key", [&] { press(Qt::Key_V, Qt::ControlModifier); }},
        {"middle button", [&] { selects ? QTest::mouseClick(name_, Qt::MiddleButton) : choose("&Paste"_q); }},
        {"paste by menu", [&] { choose("&Paste"_q); }},
        {"drop", [&] { static_cast<QObject*>(name_)->event(&drop); }},
        {"input method", [&] { QApplication::sendEvent(name_, &commit); }},
    };
    for (const auto& [way, use] : ways) {
        name_->clear();
        EXPECT_EQ(messagesOf(use), onlyLetters) << way;
        EXPECT_EQ(name_->text(), "ANNAMARIA "_q) << way;
    }
}

TEST_F(InputForm, RefusesWithAMessageAndTheFocusWhereItBelongs) {
    const auto refuses = [this](const char* name, const char* date, int minute, const char* message) {
        enter(QLatin1String{name}, date, 0, minute);
        const QString before = entered();
        EXPECT_EQ(messagesOf([] { click("cmdGenerateChart"_q); }),
                  QStringList{"Palace Lantern|information|"_q + QLatin1String{message}});
        EXPECT_EQ(entered(), before);
        return form_.focusWidget()->objectName();
    };
    EXPECT_EQ(refuses("", "31.4.1970", 1, "Please Enter Your Name !"), "txtName"_q);
    EXPECT_EQ(refuses("A", "29.2.1971", 1, "Please Enter Correct Date Of Birth !"), "cmbDate"_q);
    EXPECT_EQ(refuses("A", "31.4.1970", 1, "Please Enter Correct Date Of of Birth !"), "cmbDate"_q);
    refuses("A", "31.12.1999", 0, "Please Enter Correct Date");
    refuses("A", "31.12.2012", 0, "Please Enter Correct Date");
    EXPECT_EQ(generated_.count(), 0);
}

TEST_F(InputForm, CastsOnEnterAndMovesTheListsAtMidnight) {
    enter(" A"_q, "31.12.1998", 0, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(generated_.count(), 1);
    EXPECT_EQ(entered(), " A 1 January 1999 0 0"_q);
    EXPECT_EQ(chart_.input.year, 1998);
}

TEST_F(InputForm, OpensChartFiles) {
    const std::string path = folder_ + "/chart.plf";
    writeChartFile(path, {u"O'NEIL <b>", 1985, "March", 5});
    enter("OLD"_q, "1.1.2001", 13, 30);
    EXPECT_EQ(open(""), QStringList{});
    EXPECT_EQ(entered(), "OLD 1 January 2001 13 30"_q);
    EXPECT_EQ(open(path), QStringList{});
    EXPECT_EQ(entered(), "O'NEIL <b> 5 March 1985 13 30"_q);
    EXPECT_EQ(generated_.count(), 1);
    const std::string bytes = read(path);
    write(path, bytes.substr(0, bytes.size() - 6));  // without the year
    enter("OLD"_q, "1.1.2001", 13, 30);
    EXPECT_EQ(open(path), QStringList{});
    EXPECT_EQ(entered(), "O'NEIL <b> 5 March 2001 13 30"_q);
    write(path, "");
    EXPECT_EQ(open(path), QStringList{"Palace Lantern|information|Please Enter Your Name !"_q});
    write(folder_ + "/chart.txt", bytes);
    enter("OLD"_q, "1.1.2001", 13, 30);
    EXPECT_EQ(open(folder_ + "/chart.txt"), QStringList{"Palace Lantern|critical|Please Check The File."_q});
    EXPECT_EQ(entered(), "OLD 1 January 2001 13 30"_q);
}

}  // namespace
