// The frame, and the ways through the program, to its help and out of it.

#include "form_driver.h"

namespace {

// Checks the places of the strip and of the chart window, reckoned from the right edge and the middle.
void expectPlaces(int right, int middle) {
    const QRect banner = find("lblBanner")->geometry();
    for (const auto& [name, twipsFromRight] :
         {std::pair{"cmdSavePicture", 5495}, {"cmdShowAll", 4115}, {"cmdBack", 2715}, {"cmdMdiExit", 1335}}) {
        const QRect button = find(name)->geometry();
        EXPECT_EQ(button.x(), qRound(right - twipsFromRight / 15.0)) << name;
        EXPECT_TRUE(find("Picture2")->rect().contains(button)) << name << " at " << right;
        EXPECT_FALSE(banner.intersects(button)) << name << " at " << right;
    }
    for (const QRect& centred : {banner, find<QMdiSubWindow>()->geometry()})
        EXPECT_NEAR(centred.center().x(), middle, 2);
}

TEST_F(Program, PlacesStripAndChartByTheEdgesOfTheScreenOrOfASmallerFrame) {
    showChart();
    QWidget* frame = find("frmMdi");
    const QSize screen = frame->screen()->size();
    expectPlaces(screen.width(), screen.width() / 2);
    frame->showNormal();
    await([&] { return frame->width() < screen.width() * 9 / 10; });
    for (const QSize& size : {frame->size(), QSize{500, 400}, QSize{900, 500}}) {
        frame->resize(size);
        frame->move(frame->pos() - QPoint{60, 10});
        await([&] { return frame->size() == size; });
        expectPlaces(size.width(), size.width() / 2);
    }
    frame->resize(screen * 5 / 4);  // fills the screen wherever it is
    for (const int left : {-50, -150}) {
        frame->move(left, -50);
        await([&] { return frame->x() == left && frame->width() > screen.width(); });
        const int hidden = -frame->geometry().x();
        expectPlaces(screen.width() + hidden, screen.width() / 2 + hidden);
    }
}

TEST_F(Program, GoesBackToAnEmptyFormAndCastsTheNextChartOnFreshCells) {
    QTest::keyClicks(find("txtName"), "X");
    find("cmbYear")->setFocus();
    showChart();
    EXPECT_EQ(find("frmMdi")->windowTitle(), "Palace Lantern - JOHN SMITH") << "no two windows of one name";
    choose("frmDisplay", "mnuFileBack");
    EXPECT_TRUE(find("frmMain")->isVisible());
    EXPECT_EQ(find("frmMain")->focusWidget(), find("txtName"));
    press("Ctrl+Z", find("txtName"));
    EXPECT_EQ(entered(), " 1 January 1970 0 0");
    showChart("24.12.2003", 21, 0, QString(300, 'N'));
    EXPECT_EQ(find("frmMdi")->windowTitle(), "Palace Lantern - " + QString(100, 'N'));
    EXPECT_FALSE(find("lblLuCun(1)")->isVisible());
}

TEST_F(Program, DoesOneThingAtATime) {
    enter("A", "1.1.1970", 0, 0);
    for (int time = 0; time < 2; ++time) find<QAbstractButton>("cmdGenerateChart")->click();
    EXPECT_EQ(find<QLabel>("lblDateOfBirth")->text(), "January/2/1970");
    QList<QPointer<QAbstractButton>> buttons;
    for (const char* name : {"cmdShowAll", "cmdSavePicture", "lblCover(3)", "cmdBack"})
        buttons += find<QAbstractButton>(name);
    int late = 0;  // presses that came through the event loop
    const auto pressAll = [&] {
        late = 0;
        for (const auto& button : buttons) {
            QTimer::singleShot(0, qApp, [&late, button] { ++late, button ? button->click() : void(); });
            button->click();
        }
        choose("frmDisplay", "mnuShowAll");
        await([&] { return late == buttons.size(); });
    };
    const auto cancel = [&](QWidget& dialog) {
        pressAll();
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        press("Escape", &dialog);
    };
    for (int opener = 0; opener < 3; ++opener)
        EXPECT_EQ(withModals([&] { buttons[opener]->click(); }, cancel), 1);
    buttons.last()->click();
    EXPECT_EQ(withModals(pressAll, cancel), 0);
    EXPECT_TRUE(find("frmMain")->isVisible());
}

TEST_F(Program, LeavesAndEntersTheChartByOneTabAndHearsItsKeysOnTheStrip) {
    showChart();
    const auto expectFocusAfter = [](const char* key, const char* name) {
        press(key);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    };
    find("cmdMdiExit")->setFocus();
    expectFocusAfter("Tab", "lblCover(0)");
    expectFocusAfter("Right", "lblCover(11)");
    expectFocusAfter("Up", "lblCover(4)");
    expectFocusAfter("Tab", "lblBanner");
    expectFocusAfter("Backtab", "lblCover(4)");
    expectFocusAfter("Backtab", "cmdMdiExit");
    for (const auto& [key, menu] : {std::pair{Qt::Key_F, "mnuFile"}, {Qt::Key_H, "mnuHelp"}}) {
        QTest::keyClick(find("frmMdi")->windowHandle(), key, Qt::AltModifier);
        EXPECT_EQ(find<QMenu>(menu), QApplication::activePopupWidget());
        find<QMenu>(menu)->close();
    }
    expectFocusAfter("Tab", "lblCover(4)");
    EXPECT_EQ(withModals([] { press("Return", find("cmdShowAll")); }), 1);
}

TEST_F(Program, EndsFromEverywhereButByNoOtherKey) {
    const Action ways[]{
        [] { click("cmExit"); },
        [] { choose("frmMain", "mnuExit"); },
        [] { find("frmMain")->close(); },
        [] { click("cmdMdiExit"); },
        [] { choose("frmDisplay", "mnuExit"); },
        [] { find<QMdiSubWindow>()->close(); },
        [] { find("frmMdi")->close(); },
    };
    for (std::size_t way = 0; way < std::size(ways); ++way) {
        find("frmMain")->show();
        press("Escape", find("txtName"));
        EXPECT_TRUE(find("frmMain")->isVisible());
        if (way >= 3) {
            showChart();
            find("lblCover(3)")->setFocus();
            press("Escape Ctrl+W Ctrl+F4");
            QTest::mouseMove(find<QMdiSubWindow>(), {12, 12});
            QTest::mouseDClick(find<QMdiSubWindow>(), Qt::LeftButton, {}, {12, 12});  // its icon
            EXPECT_TRUE(find("lblCover(3)")->isVisible());
        }
        QTimer::singleShot(0, ways[way]);
        const QObject patience;
        QTimer::singleShot(9000, &patience, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QApplication::exec(), 0) << "way " << way;
        for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
    }
}

TEST_F(Program, OpensThePageOfEachEntryFromEachWindow) {
    const QByteArray path = qgetenv("PATH");  // in which that one comes first; it notes the page
    qputenv("PATH", QByteArray::fromStdString(folder_) + ":" + path);
    write("xdg-open", "#!/bin/sh\necho $1 >" + in("page") + "; [ ! -e " + in("fail") + " ]");
    std::filesystem::permissions(in("xdg-open"), std::filesystem::perms::owner_all);
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../../share/palace-lantern/help/");
    const auto expectPage = [&](const char* name, const Action& action) {
        std::filesystem::remove(in("page"));
        action();
        const std::string url = QUrl::fromLocalFile(installed + name).toEncoded().toStdString() + "\n";
        EXPECT_TRUE(QTest::qWaitFor([&] { return read("page") == url; })) << url << read("page");
    };
    const auto pressF1 = [] { press("F1"); };
    for (const auto& [entry, name] :
         {std::pair{"mnuOnline", "/help.html"}, {"mnuVisit", "/index.html"}, {"mnuUpdate", "/download.html"}})
        expectPage(name, [&] { choose("frmMain", entry); });
    expectPage("/help.html", pressF1);
    showChart();
    expectPage("/help.html", pressF1);
    expectPage("/index.html", [] { press("Return", find("lblBanner")); });
    const auto lookUpAndClose = [&](QWidget& analysis) {
        expectPage("/help.html", pressF1);
        analysis.close();
    };
    EXPECT_EQ(withModals([] { click("lblCover(2)"); }, lookUpAndClose), 1);
    write("fail", "");
    for (const std::string& way : {in("none"), folder_}) {  // no opener, and one that fails
        qputenv("PATH", way.c_str());
        QString told;
        const auto openInVain = [&] {
            click("lblBanner");
            await([&] { return !told.isEmpty(); });
        };
        const auto readAndClose = [&](QWidget& message) {
            told = dynamic_cast<QMessageBox&>(message).text();
            message.close();
        };
        EXPECT_EQ(withModals(openInVain, readAndClose), 1);
        EXPECT_EQ(told, "No browser could be opened. You find the page here:\n" + installed + "/index.html");
    }
    qputenv("PATH", path);
}

}  // namespace
