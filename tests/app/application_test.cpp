// The frame, and the ways through the program, to its help and out of it.

#include "form_driver.h"

namespace {

// Checks the places of the strip and of the chart window, reckoned from the right edge and the middle.
void expectPlaces(int right) {
    const QRect banner = find("lblBanner")->geometry();
    for (const auto& [name, twipsFromRight] :
         {std::pair{"cmdSavePicture", 5495}, {"cmdShowAll", 4115}, {"cmdBack", 2715}, {"cmdMdiExit", 1335}}) {
        EXPECT_EQ(find(name)->x(), qRound(right - twipsFromRight / 15.0)) << name;
        EXPECT_TRUE(find("Picture2")->rect().contains(find(name)->geometry())) << name << " at " << right;
        EXPECT_FALSE(banner.intersects(find(name)->geometry())) << name << " at " << right;
    }
    for (const QRect& centred : {banner, find<QMdiSubWindow>()->geometry()})
        EXPECT_NEAR(centred.center().x(), right / 2, 2);
}

TEST_F(Program, PlacesStripAndChartByTheEdgesOfTheScreenOrOfASmallerFrame) {
    showChart();
    QWidget* frame = find("frmMdi");
    const QSize screen = frame->screen()->size();
    expectPlaces(screen.width());
    frame->showNormal();
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame->width() < screen.width() * 9 / 10; }))
        << "restored, it is smaller";
    for (const QSize& size : {frame->size(), QSize{500, 400}, QSize{900, 500}}) {
        frame->resize(size);
        frame->move(frame->pos() - QPoint{60, 10});
        EXPECT_TRUE(QTest::qWaitFor([&] { return frame->size() == size; }));
        expectPlaces(size.width());
    }
}

TEST_F(Program, GoesBackToAnEmptyFormAndCastsTheNextChartOnFreshCells) {
    bool bothOfOneTitle = false;  // which some window managers would number
    QWidget* form = find("frmMain");
    QObject::connect(form->windowHandle(), &QWindow::visibleChanged, form, [&] {
        for (const QWidget* window : QApplication::topLevelWidgets())
            bothOfOneTitle |=
                window != form && window->isVisible() && window->windowTitle() == form->windowTitle();
    });
    QTest::keyClicks(find("txtName"), "X");
    find("cmbYear")->setFocus();
    showChart();
    choose("frmDisplay", "mnuFileBack");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->focusWidget(), find("txtName"));
    QTest::keyClick(find("txtName"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(entered(), " 1 January 1970 0 0");
    showChart("24.12.2003", 21, 0);
    EXPECT_FALSE(find("lblLuCun(1)")->isVisible());
    EXPECT_FALSE(bothOfOneTitle);
}

TEST_F(Program, DoesOneThingAtATime) {
    enter("A", "1.1.1970", 0, 0);
    for (int press = 0; press < 2; ++press) find<QAbstractButton>("cmdGenerateChart")->click();
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
        EXPECT_TRUE(QTest::qWaitFor([&] { return late == buttons.size(); }));
    };
    const auto cancel = [&](QWidget& dialog) {
        pressAll();
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    for (int opener = 0; opener < 3; ++opener)
        EXPECT_EQ(withModals([&] { buttons[opener]->click(); }, cancel), 1);
    buttons.last()->click();
    EXPECT_EQ(withModals(pressAll, cancel), 0);
    EXPECT_TRUE(find("frmMain")->isVisible());
}

TEST_F(Program, LeavesAndEntersTheChartByOneTabAndHearsItsKeysOnTheStrip) {
    showChart();
    const auto focusAfter = [](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        return QApplication::focusWidget()->objectName();
    };
    find("cmdMdiExit")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "lblCover(0)");
    EXPECT_EQ(focusAfter(Qt::Key_Right), "lblCover(11)");
    EXPECT_EQ(focusAfter(Qt::Key_Up), "lblCover(4)");
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "lblBanner");
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), "lblCover(4)");
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), "cmdMdiExit");
    for (const auto& [key, menu] : {std::pair{Qt::Key_F, "mnuFile"}, {Qt::Key_H, "mnuHelp"}}) {
        QTest::keyClick(find("frmMdi")->windowHandle(), key, Qt::AltModifier);
        EXPECT_EQ(find<QMenu>(menu), QApplication::activePopupWidget());
        find<QMenu>(menu)->close();
    }
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "lblCover(4)");
    const auto enterOnShowAll = [] { QTest::keyClick(find("cmdShowAll"), Qt::Key_Return); };
    EXPECT_EQ(withModals(enterOnShowAll, [](QWidget& dialog) { dialog.close(); }), 1);
}

TEST_F(Program, EndsFromEverywhereButByNoOtherKey) {
    const std::function<void()> ways[]{
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
        QTest::keyClick(find("txtName"), Qt::Key_Escape);
        EXPECT_TRUE(find("frmMain")->isVisible());
        if (way >= 3) {
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
        const QObject patience;
        QTimer::singleShot(30'000, &patience, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QApplication::exec(), 0) << "way " << way;
        for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
    }
}

TEST_F(Program, OpensThePageOfEachEntryFromEachWindow) {
    const std::string opener = folder_ + "/xdg-open", page = folder_ + "/page";
    const QByteArray path = qgetenv("PATH");  // in which that one comes first; it notes the page
    qputenv("PATH", QByteArray::fromStdString(folder_) + ":" + path);
    write(opener, "#!/bin/sh\necho $1 >" + page + "; [ ! -e " + folder_ + "/fail ]");
    std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
    const QString installed = QCoreApplication::applicationDirPath() + "/../../share/palace-lantern/help/";
    const auto expectPage = [&](const char* name, const std::function<void()>& action) {
        std::filesystem::remove(page);
        action();
        const QUrl url = QUrl::fromLocalFile(QDir::cleanPath(installed + name));
        const std::string line = url.toEncoded().toStdString() + "\n";
        EXPECT_TRUE(QTest::qWaitFor([&] { return read(page) == line; })) << line << read(page);
    };
    const auto pressF1 = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1); };
    for (const auto& [entry, name] :
         {std::pair{"mnuOnline", "help.html"}, {"mnuVisit", "index.html"}, {"mnuUpdate", "download.html"}})
        expectPage(name, [&] { choose("frmMain", entry); });
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
    for (const std::string& way : {folder_ + "/none", folder_}) {  // no opener, and one that fails
        qputenv("PATH", way.c_str());
        QString told;
        const auto openInVain = [&] {
            click("lblBanner");
            EXPECT_TRUE(QTest::qWaitFor([&] { return !told.isEmpty(); }));
        };
        const auto readAndClose = [&](QWidget& message) {
            told = dynamic_cast<QMessageBox&>(message).text();
            message.close();
        };
        EXPECT_EQ(withModals(openInVain, readAndClose), 1);
        const QString what = "No browser could be opened. You find the page here:\n";
        EXPECT_EQ(told, what + QDir::cleanPath(installed + "index.html"));
    }
    qputenv("PATH", path);
}

}  // namespace
