// The input form: what goes into it, what it refuses, and what it hands over.

#include "input/frmMain.h"

#include <QAccessible>

#include "form_driver.h"
#include "style/look.h"

namespace {

struct InputForm : Program {
    // Drags to the name box, with Shift as if to be moved away, and drops it there. Returns whether it may.
    bool drop(const QMimeData& dragged) {
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter{{5, 5}, offered, &dragged, Qt::LeftButton, Qt::ShiftModifier};
        QApplication::sendEvent(name_, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop{{5, 5}, offered, &dragged, Qt::LeftButton, Qt::ShiftModifier};
        QApplication::sendEvent(dragged.hasUrls() ? find("frmMain") : name_, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        return true;
    }

    // The name box's text, with brackets round the selection or at the cursor.
    void setState(const QString& marked) {
        const QStringList parts = marked.split(QRegularExpression{"[][]"});
        form_->fillIn({parts.join("").toStdString(), "", "", ""});
        name_->setSelection(int(parts[0].size()), int(parts[1].size()));
    }
    QString state() const {
        const int start = name_->hasSelectedText() ? name_->selectionStart() : name_->cursorPosition();
        return name_->text().insert(start + name_->selectedText().size(), ']').insert(start, '[');
    }

    frmMain* form_ = find<frmMain>();
    QLineEdit* name_ = find<QLineEdit>("txtName");
};

TEST_F(InputForm, OpensOnTheFirstEntriesAndTurnsOnlyTheListInFocus) {
    QString entries = entered();
    for (const QString& name : dateAndTime)
        entries += " .." + find<QComboBox>(name)->itemText(find<QComboBox>(name)->count() - 1);
    EXPECT_EQ(entries, " 1 January 1970 0 0 ..31 ..December ..2012 ..23 ..59");
    auto* year = find<QComboBox>("cmbYear");
    const QPointF place = year->mapTo(form_, QPoint{5, 5});
    for (const int expected : {0, 1}) {
        QWheelEvent wheel{place, place, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false};
        QSpontaneKeyEvent::setSpontaneous(&wheel);  // as if it came from the screen
        qApp->notify(form_->windowHandle(), &wheel);
        EXPECT_EQ(year->currentIndex(), expected);
        year->setFocus();
    }
    EXPECT_TRUE(frmMain{}.findChild<QPushButton*>("cmdGenerateChart")->isDefault()) << "from the start";
    form_->resize(1300, 600);
    const auto* details = find<QGroupBox>();
    EXPECT_LT(details->width(), 900) << "where a desktop makes the form as wide as the screen";
    EXPECT_NEAR(details->mapTo(form_, details->rect().center()).x(), 650, 10);
}

TEST_F(InputForm, FiltersWhatComesInOnEveryWayAndLeavesWhatIsThere) {
    QString text;  // what comes in
    const auto typeWith = [&](Qt::KeyboardModifiers held) -> Action {
        return [&, held] { QTest::sendKeyEvent(QTest::Click, name_, Qt::Key_unknown, text, held); };
    };
    const Action compose = [&] {
        QInputMethodEvent begin{"'", {}}, end;
        end.setCommitString(text);
        for (auto* event : {&begin, &end}) QApplication::sendEvent(name_, event);
    };
    const Action pasteByMenu = [&] {
        QContextMenuEvent event{QContextMenuEvent::Mouse, {}, name_->mapToGlobal(QPoint{5, 5})};
        QApplication::sendEvent(name_, &event);
        press("P", QApplication::activePopupWidget());
    };
    const Action pasteByMiddle = [&] { QTest::mouseClick(name_, Qt::MiddleButton, {}, {2, 5}); };
    const bool selects = QGuiApplication::clipboard()->supportsSelection();
    const Action dropText = [&] { drop(*QGuiApplication::clipboard()->mimeData()); };
    const Action paste = pressing("Shift+Ins");
    auto* bus = QAccessible::queryAccessibleInterface(name_);
    const Action insertByBus = [&] { bus->editableTextInterface()->insertText(2, text); };
    const Action setByBus = [&] { bus->setText(QAccessible::Value, text); };
    const Action type = typeWith({}), typeWithAltGr = typeWith(Qt::ControlModifier | Qt::AltModifier);
    const std::tuple<QString, Action, QString, QString, bool> rows[]{
        {"[AB]XCD", type, "-", "[AB]XCD", true},
        {"AB[]CD", type, "x", "ABX[]CD", false},
        {"O'NEIL[]", type, "S", "O'NEILS[]", false},
        {"O'NEIL[]", pressing("Backspace"), "", "O'NEI[]", false},
        {"A[]", typeWithAltGr, "q", "AQ[]", false},
        {"A[]", typeWith(Qt::KeypadModifier), "7", "A[]", true},
        {"[AB]", typeWith(Qt::AltModifier), "q", "[AB]", false},
        {"[AB]", typeWith(Qt::MetaModifier), "q", "[AB]", false},
        {"[AB]", typeWith(Qt::ControlModifier), "q", "[AB]", false},
        {"[AB]CD", paste, "a1b", "AB[]CD", true},
        {"[]SMITH", paste, "JOHN\r\n", "JOHN[]SMITH", false},
        {"[AB]C", pasteByMenu, "x2", "X[]C", true},
        {"[]CD", selects ? pasteByMiddle : paste, selects ? "COPIED" : "x2", "X[]CD", true},
        {"[AB]C", compose, "\u00E9", "[AB]C", true},
        {"[AB]C", compose, "x", "X[]C", false},
        {"[AB]C", compose, "", "[AB]C", false},
        {"AB[]", dropText, "x-y", "XY[]AB", true},
        {"O'N'L[]", insertByBus, "m1", "O'MN'L[]", true},
        {"O'NEIL[]", setByBus, "12", "O'NEIL[]", true}};
    for (const auto& [before, way, entering, after, told] : rows) {
        text = entering;
        QGuiApplication::clipboard()->setText(text);
        QGuiApplication::clipboard()->setText("x2", QClipboard::Selection);
        setState(before);
        EXPECT_EQ(messagesOf(way), told ? "information|Please Enter Only Letters" : "");
        EXPECT_EQ(state(), after) << before.toStdString() << text.toStdString();
        form_->activateWindow();
        await([this] { return name_->hasFocus(); });
    }
}

TEST_F(InputForm, KeepsFocusAndHistoryThroughMenusAndMessages) {
    QWindow* keyboard = form_->windowHandle();
    for (const Qt::Key key : {Qt::Key_Alt, Qt::Key_A}) QTest::keyClick(keyboard, key);
    QTest::keyClick(keyboard, Qt::Key_F, Qt::AltModifier);
    press("Escape", present(QApplication::activePopupWidget(), "menu"));
    QTest::keyClick(keyboard, Qt::Key_B, Qt::ShiftModifier);
    withOne(pressing("-"), [](QWidget& message) {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_O}) QTest::keyClick(message.windowHandle(), key);
        EXPECT_TRUE(message.isVisible());
        QTest::keyClick(message.windowHandle(), Qt::Key_Return);
        EXPECT_FALSE(message.isVisible());
    });
    await([this] { return name_->hasFocus(); });
    press("C Ctrl+Z Ctrl+Z Ctrl+Z");
    EXPECT_EQ(name_->text(), "");
    press("Ctrl+Shift+Z Ctrl+Shift+Z Ctrl+Shift+Z Ctrl+A Ctrl+X");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "ABC");
    QKeyEvent repeat{QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true};
    for (int count = 0; count < 3; ++count) QApplication::sendEvent(keyboard, &repeat);
    EXPECT_EQ(name_->text(), "   ");
}

TEST_F(InputForm, ShowsFocusSelectionAndTitleOnLightAndDarkDesktops) {
    EXPECT_NEAR(look::contrast(QColor{0x76, 0x76, 0x76}, Qt::white), 4.54, 0.01);
    const QColor light{239, 239, 239}, dark{53, 53, 53}, red{140, 0, 0}, yellow{255, 230, 0};
    const QColor white = Qt::white, blue{0, 60, 160};
    const std::array<QColor, 4> desktops[]{{light, light.darker(120), white, red},
                                           {dark, dark.darker(120), white, yellow},
                                           {light, blue, white, blue}};
    for (const auto& [ground, highlight, letters, expected] : desktops) {
        QPalette palette{ground};
        palette.setColor(QPalette::Highlight, highlight);
        palette.setColor(QPalette::HighlightedText, letters);
        palette.setColor(QPalette::WindowText, ground == light ? red : yellow);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        for (const char* name : {"txtName", "cmbYear", "cmdOpen", "lblBanner"}) {
            const auto edge = [control = find(name)] { return control->grab().toImage().pixelColor(40, 1); };
            find("cmExit")->setFocus();
            EXPECT_NE(edge().name(), expected.name()) << name;
            find(name)->setFocus();
            EXPECT_EQ(edge().name(), expected.name()) << name << " on " << ground.red();
        }
        for (const auto role : {QPalette::Highlight, QPalette::Text})
            EXPECT_GE(look::contrast(look::legibleTitle(palette).color(role), white), 4.5);
        QApplication::style()->polish(palette);  // as for all windows
        const QColor behind = palette.color(QPalette::Highlight);
        EXPECT_GE(look::contrast(behind, palette.color(QPalette::HighlightedText)), 4.5);
        EXPECT_EQ(behind != highlight, expected == red) << "only that one is illegible as it is";
    }
    QApplication::setPalette({});
}

TEST_F(InputForm, CastsOnEnterAndMovesTheListsAtMidnight) {
    enter("A 31 December 1999 0 0");
    EXPECT_EQ(messagesOf([this] { press("Return", name_); }), "information|Please Enter Correct Date");
    EXPECT_EQ(entered(), "A 31 December 1999 0 0");
    enter(" A 31 December 1998 0 0");
    find<QComboBox>("cmbMinute")->showPopup();
    QTest::keyClick(form_->windowHandle(), Qt::Key_Return);  // as under Wayland
    EXPECT_TRUE(form_->isVisible()) << "it only closes the list";
    press("Return", find("cmbMinute"));
    EXPECT_EQ(entered(), " A 1 January 1999 0 0");
}

TEST_F(InputForm, OpensChartFilesAndIsLeftAsItIsByOthers) {
    const std::string bytes = chartFileBytes({u"O'NEIL <b>", 1985, "March", 5});
    write("chart.plf", bytes);
    write("chart.txt", bytes);
    write("chartplf", bytes.substr(0, bytes.size() - 6));  // without the year
    const QString old = "OLD 1 January 2001 13 30";
    const std::tuple<std::vector<std::string>, QString, QString> files[]{
        {{}, "", old},
        {{in("chart")}, "", "O'NEIL <b> 5 March 1985 13 30"},
        {{folder_, "chartplf"}, "", "O'NEIL <b> 5 March 2001 13 30"},
        {{in("chart.txt")}, "critical|Please Check The File.", old},
        {{in("missing")}, "critical|There is no such file.|stays", old}};
    for (const auto& [typed, messages, after] : files) {
        enter(old);
        EXPECT_EQ(messagesOf(clicking("cmdOpen"), typed), messages) << after.toStdString();
        EXPECT_EQ(entered(), after);
        EXPECT_EQ(form_->isHidden(), messages.isEmpty() && after != old) << after.toStdString();
        if (form_->isHidden()) click("cmdBack");
    }
    const QStringList ours{"Palace Lantern (*.plf)"};
    withOne(pressing("Ctrl+O"), [&](QWidget&) { EXPECT_EQ(find<QFileDialog>()->nameFilters(), ours); });
}

TEST_F(InputForm, TakesOneDroppedChartFileAndRefusesOtherFiles) {
    write("chart.plf", chartFileBytes({u"NEW", 1985, "March", 5}));
    const QUrl chart = QUrl::fromLocalFile(in("chart.plf").c_str());
    const auto dropAll = [this](const QList<QUrl>& urls) {
        QMimeData dragged;
        dragged.setUrls(urls);
        dragged.setText("x");  // as file managers do
        return drop(dragged);
    };
    enter(" 1 January 2001 13 30");
    EXPECT_TRUE(dropAll({chart}));  // and not opened, because a message comes first
    withOne(clicking("cmdGenerateChart"), [&](QWidget&) { EXPECT_FALSE(dropAll({chart})); });
    for (const QList<QUrl>& urls : {QList<QUrl>{{"file:///x.txt"}}, {chart, chart}, {{"https://x/x.plf"}}})
        EXPECT_EQ(messagesOf([&] { EXPECT_FALSE(dropAll(urls)); }), "");
    EXPECT_EQ(entered(), " 1 January 2001 13 30");
    EXPECT_TRUE(dropAll({chart}));
    await([this] { return form_->isHidden(); });
    EXPECT_EQ(entered(), "NEW 5 March 1985 13 30");
}

using TwoScreens = Program;

TEST_F(TwoScreens, HoldEachWindowWhereThePersonIs) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.size() < 2) GTEST_SKIP() << "on one screen";
    QWidget* form = find("frmMain");
    for (const int to : {1, 0}) {
        const auto expectOn = [&](int screen, QWidget& window) {
            EXPECT_EQ(window.screen(), screens[screen]) << to;
            const QRect place{window.pos(), window.size().expandedTo(window.minimumSize())};
            EXPECT_TRUE(screens[screen]->availableGeometry().contains(place)) << to;
        };
        form->move(screens[to]->geometry().center() - QPoint{100, 100});
        form->hide();
        form->show();
        expectOn(to, *form);
        showChart();
        expectOn(to, *find("frmMdi"));
        find("frmMdi")->showNormal();
        find("frmMdi")->move(screens[1 - to]->geometry().topLeft() + QPoint{20, 20});
        const auto expectThere = std::bind_front(expectOn, 1 - to);
        for (auto* button : {"cmdShowAll", "cmdSavePicture"}) withOne(clicking(button), expectThere);
        click("cmdBack");
        expectThere(*form);
        withOne(clicking("cmdGenerateChart"), expectThere);  // a message
    }
}

}  // namespace
