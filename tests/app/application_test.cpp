// The frame, and the ways through the program, to its help and out of it.

#include "form_driver.h"

namespace {

TEST_F(Program, PlacesTheStripFromTheScreensRightEdgeAndTheChartInTheMiddle) {
    showChart();
    const int right = find("frmMdi")->screen()->size().width();
    for (const auto& [name, twipsFromRight] :
         {std::pair{"cmdSavePicture", 5495}, {"cmdShowAll", 4115}, {"cmdBack", 2715}, {"cmdMdiExit", 1335}})
        EXPECT_EQ(find(name)->x(), qRound(right - twipsFromRight / 15.0)) << name;
    EXPECT_NEAR(find<QMdiSubWindow>()->geometry().center().x(), right / 2, 2);
}

TEST_F(Program, GoesBackToAnEmptyFormAndCastsTheNextChartOnFreshCells) {
    QTest::keyClicks(find("txtName"), "X");
    showChart();
    choose("frmDisplay", "mnuFileBack");
    EXPECT_TRUE(find("frmMain")->isVisible());
    QTest::keyClick(find("txtName"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(entered(), " 1 January 1970 0 0");
    showChart("24.12.2003", 21, 0);
    EXPECT_FALSE(find("lblLuCun(1)")->isVisible());
}

TEST_F(Program, DoesOneThingAtATime) {
    enter("A", "1.1.1970", 0, 0);
    for (int press = 0; press < 2; ++press) find<QAbstractButton>("cmdGenerateChart")->click();
    EXPECT_EQ(find<QLabel>("lblDateOfBirth")->text(), "January/2/1970");
    QList<QAbstractButton*> buttons;
    for (const char* name : {"cmdShowAll", "cmdSavePicture", "lblCover(3)", "cmdBack"})
        buttons += find<QAbstractButton>(name);
    const auto pressAll = [&] {
        for (QAbstractButton* button : buttons) button->animateClick();  // which clicks a moment later
        for (QAbstractButton* button : buttons) button->click();
        choose("frmDisplay", "mnuShowAll");
        QTest::qWait(150);
    };
    const auto cancel = [&](QWidget& dialog) {
        pressAll();
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    for (int opener = 0; opener < 3; ++opener)
        EXPECT_EQ(withModals([&] { buttons[opener]->click(); }, cancel), 1);
    const auto goBack = [&] {
        buttons.first()->animateClick();
        buttons.last()->click();
        pressAll();
    };
    EXPECT_EQ(withModals(goBack, cancel), 0);
    EXPECT_TRUE(find("frmMain")->isVisible());
}

TEST_F(Program, LeavesAndEntersTheChartByOneTabAndPressesButtonsByEnter) {
    showChart();
    const auto focusAfter = [](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        return QApplication::focusWidget()->objectName();
    };
    find("cmdMdiExit")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "lblCover(0)");
    EXPECT_EQ(focusAfter(Qt::Key_Right), "lblCover(11)");
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "lblBanner");
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), "lblCover(11)");
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), "cmdMdiExit");
    const auto enterOnShowAll = [] { QTest::keyClick(find("cmdShowAll"), Qt::Key_Return); };
    EXPECT_EQ(withModals(enterOnShowAll, [](QWidget& dialog) { dialog.close(); }), 1);
}

TEST_F(Program, EndsFromEverywhereButByNoOtherKey) {
    const std::function<void()> ways[]{
        [] { click("cmExit"); },
        [] { find("frmMain")->close(); },
        [] { click("cmdMdiExit"); },
        [] { choose("frmDisplay", "mnuExit"); },
        [] { find<QMdiSubWindow>()->close(); },
    };
    for (std::size_t way = 0; way < std::size(ways); ++way) {
        find("frmMain")->show();
        QTest::keyClick(find("txtName"), Qt::Key_Escape);
        EXPECT_TRUE(find("frmMain")->isVisible());
        if (way >= 2) {
            showChart();
            QWidget* cell = find("lblCover(3)");
            cell->setFocus();
            QTest::keyClick(cell, Qt::Key_Escape);
            for (const Qt::Key key : {Qt::Key_W, Qt::Key_F4}) QTest::keyClick(cell, key, Qt::ControlModifier);
            QTest::mouseMove(find<QMdiSubWindow>(), {12, 12});
            QTest::mouseDClick(find<QMdiSubWindow>(), Qt::LeftButton, {}, {12, 12});  // its icon
            EXPECT_TRUE(cell->isVisible());
        }
        QTimer::singleShot(0, ways[way]);
        EXPECT_EQ(QApplication::exec(), 0) << "way " << way;
        for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
    }
}

TEST_F(Program, OpensThePageOfEachEntryFromEachWindow) {
    const std::string opener = folder_ + "/xdg-open", page = folder_ + "/page";
    const QByteArray path = qgetenv("PATH");  // in which that one comes first; it notes the page
    qputenv("PATH", QByteArray::fromStdString(folder_) + ":" + path);
    write(opener, "#!/bin/sh\necho ${1##*/} >" + page + "; [ ! -e " + folder_ + "/fail ]");
    std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
    const auto expectPage = [&](const std::string& name, const std::function<void()>& action) {
        std::filesystem::remove(page);
        action();
        EXPECT_TRUE(QTest::qWaitFor([&] { return read(page) == name + "\n"; })) << name;
    };
    const auto pressF1 = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1); };
    expectPage("help.html", [] { choose("frmMain", "mnuOnline"); });
    expectPage("index.html", [] { choose("frmMain", "mnuVisit"); });
    expectPage("download.html", [] { choose("frmMain", "mnuUpdate"); });
    expectPage("help.html", pressF1);
    showChart();
    expectPage("help.html", pressF1);
    expectPage("index.html", [] { QTest::keyClick(find("lblBanner"), Qt::Key_Return); });
    const auto lookUpAndClose = [&](QWidget& analysis) {
        expectPage("help.html", pressF1);
        analysis.close();
    };
    EXPECT_EQ(withModals([] { click("lblCover(2)"); }, lookUpAndClose), 1);
    write(folder_ + "/fail", "");
    const auto openInVain = [&] {
        expectPage("index.html", [] { click("lblBanner"); });
        QTest::qWait(300);
    };
    const QString told = messagesOf(openInVain).join("");
    EXPECT_TRUE(told.startsWith("Palace Lantern|information|No browser could be opened."));
    EXPECT_TRUE(told.endsWith("/index.html"));
    qputenv("PATH", path);
}

}  // namespace
