// The start, the frame, and the ways through the program, to its help and out of it.

#include "app/start_rules.h"
#include "form_driver.h"

namespace {

using Start = TemporaryFolder;

TEST_F(Start, IsOfOneProgramAlsoWithoutARuntimeFolder) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", folder_.c_str());
    write("runtime-" + QFileInfo{dir_.path()}.owner().toStdString(), "no folder, thus none by default");
    QLockFile others{in("palace-lantern.lock").c_str()};
    EXPECT_TRUE(others.tryLock()) << "what lies in a folder that all users share may be another's";
    for (const std::string& runtime : {in("missing/folder"), std::string{"/proc"}, std::string{}}) {
        runtime.empty() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime.c_str());
        const SingleInstance first, second;
        EXPECT_TRUE(!first.anotherIsRunning() && second.anotherIsRunning()) << runtime;
    }
    qunsetenv("TMPDIR");
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(Start, TakesOneChartFile) {
    write("chart.plf", chartFileBytes({u"JOHN SMITH", 1985, "March", 5}));
    write("empty.plf", "");
    const std::tuple<std::string, QString, QString> files[]{
        {in("chart.plf"), "", "JOHN SMITH 5 March 1985 0 0 cmbHour"},
        {in("empty.plf"), "information|Please Enter Your Name !", " 1 January 1970 0 0 txtName"},
        {"/none.plf", "critical|Please Check The File.", " 1 January 1970 0 0 txtName"}};
    for (const auto& [file, messages, after] : files) {
        Application application;
        EXPECT_EQ(messagesOf([&] { application.start(file.c_str()); }), messages) << file;
        EXPECT_EQ(entered() + " " + find("frmMain")->focusWidget()->objectName(), after) << file;
    }
}

// Checks the places of strip and chart in that width, of which a part is left of what is seen.
void expectPlaces(int width, int hidden = 0) {
    const QRect banner = find("lblBanner")->geometry();
    for (const auto& [name, twipsFromRight] :
         {std::pair{"cmdSavePicture", 5495}, {"cmdShowAll", 4115}, {"cmdBack", 2715}, {"cmdMdiExit", 1335}}) {
        const QRect button = find(name)->geometry();
        EXPECT_EQ(button.x(), qRound(hidden + width - twipsFromRight / 15.0)) << name;
        EXPECT_TRUE(find("Picture2")->rect().contains(button) && !banner.intersects(button)) << name;
    }
    for (const QRect& centred : {banner, find<QMdiSubWindow>()->geometry()})
        EXPECT_NEAR(centred.center().x(), hidden + width / 2, 2);
}

TEST_F(Program, PlacesStripAndChartByTheEdgesOfTheScreenOrOfASmallerFrame) {
    showChart();
    QWidget* frame = find("frmMdi");
    const QSize screen = frame->screen()->size(), large = screen * 5 / 4;  // fills it from every place
    expectPlaces(screen.width());
    frame->showNormal();
    await([&] { return frame->width() < screen.width() * 9 / 10; });
    const std::pair<int, QSize> places[]{
        {90, frame->size()}, {60, {500, 400}}, {30, {900, 500}}, {-50, large}, {-150, large}};
    for (const auto& [left, size] : places) {
        frame->resize(size);
        frame->move(left, left);
        await([&, left = left, size = size] { return frame->x() == left && frame->width() == size.width(); });
        size == large ? expectPlaces(screen.width(), -frame->geometry().x()) : expectPlaces(size.width());
    }
}

TEST_F(Program, GoesBackToAnEmptyFormAndCastsTheNextChartOnFreshCells) {
    press("X", find("txtName"));
    find("cmbYear")->setFocus();
    showChart();
    choose("frmDisplay", "mnuFileBack");
    for (const QWidget* window : QApplication::topLevelWidgets())
        EXPECT_EQ(window->isVisible(), window == find("frmMain"));
    EXPECT_EQ(find("frmMain")->focusWidget(), find("txtName"));
    press("Ctrl+Z", find("txtName"));
    EXPECT_EQ(entered(), " 1 January 1970 0 0");
    showChart(QString(300, 'N') + " 24 December 2003 21 0");
    EXPECT_EQ(find("frmMdi")->windowTitle(), "Palace Lantern - " + QString(100, 'N'));
    EXPECT_FALSE(find("lblLuCun(1)")->isVisible());
}

TEST_F(Program, DoesOneThingAtATime) {
    enter("A 1 January 1970 0 0");
    for (int time = 0; time < 2; ++time) find<QAbstractButton>("cmdGenerateChart")->click();
    EXPECT_EQ(textOf("lblDateOfBirth"), "January/2/1970");
    const auto pressAll = [] {
        for (const char* name : {"cmdShowAll", "cmdSavePicture", "lblCover(3)", "cmdBack"}) {
            QTimer::singleShot(0, find<QAbstractButton>(name), &QAbstractButton::click);  // late, if at all
            find<QAbstractButton>(name)->click();
        }
        choose("frmDisplay", "mnuShowAll");
    };
    for (auto* opener : {"cmdShowAll", "cmdSavePicture", "lblCover(3)"})
        withOne(clicking(opener), [&](QWidget& dialog) {
            pressAll();
            EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        });
    click("cmdBack");
    EXPECT_EQ(messagesOf(pressAll), "");
}

TEST_F(Program, EntersTheChartByOneTabWalksItByArrowsAndHearsItsKeysOnTheStrip) {
    showChart();
    find("cmdMdiExit")->setFocus();
    EXPECT_EQ(press("Tab Up Up Up Right Right Right Down Down Down Left Left Left Up Right Down Left Up Up"),
              "(0) (1) (2) (3) (4) (5) (6) (7) (8) (9) (10) (11) (0) (1) (8) (9) (10) (5) (5)");
    EXPECT_EQ(press("Tab Backtab Backtab"), "lblBanner (5) cmdMdiExit");
    QTest::keyClick(find("frmMdi")->windowHandle(), Qt::Key_H, Qt::AltModifier);
    EXPECT_EQ(find<QMenu>("mnuHelp"), QApplication::activePopupWidget());
    find<QMenu>("mnuHelp")->close();
    withOne([] { press("Return", find("cmdShowAll")); });
}

TEST_F(Program, EndsFromEverywhereButByNoOtherKey) {
    const Action ways[]{clicking("cmExit"),
                        [] { choose("frmMain", "mnuExit"); },
                        [] { find("frmMain")->close(); },
                        clicking("cmdMdiExit"),
                        [] { choose("frmDisplay", "mnuExit"); },
                        [] { find<QMdiSubWindow>()->close(); },
                        [] { find("frmMdi")->close(); }};
    for (std::size_t way = 0; way < std::size(ways); ++way) {
        find("frmMain")->show();
        press("Escape", find("txtName"));
        if (way >= 3) {
            showChart();
            press("Escape Ctrl+W Ctrl+F4", find("lblCover(3)"));
            QTest::mouseMove(find<QMdiSubWindow>(), {12, 12});
            QTest::mouseDClick(find<QMdiSubWindow>(), Qt::LeftButton, {}, {12, 12});  // its icon
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
    const QString pages = QDir::cleanPath(qApp->applicationDirPath() + "/../../share/palace-lantern/help");
    const auto expectPage = [&](const char* name, const Action& action) {
        std::filesystem::remove(in("page"));
        action();
        const std::string url = QUrl::fromLocalFile(pages + name).toEncoded().toStdString() + "\n";
        EXPECT_TRUE(QTest::qWaitFor([&] { return read("page") == url; })) << url << read("page");
    };
    const auto lookUpAndClose = [&](QWidget& window) {
        expectPage("/help.html", pressing("F1"));
        press("Return");
        EXPECT_FALSE(window.isVisible());
    };
    for (const auto& [entry, name] : {std::pair{"mnuVisit", "/index.html"}, {"mnuUpdate", "/download.html"}})
        expectPage(name, [=] { choose("frmMain", entry); });
    expectPage("/help.html", pressing("F1"));
    withOne([] { choose("frmMain", "mnuAbout"); }, lookUpAndClose);
    showChart();
    expectPage("/help.html", pressing("F1"));
    expectPage("/index.html", [] { press("Return", find("lblBanner")); });
    withOne(clicking("lblCover(2)"), lookUpAndClose);
    write("fail", "");
    const QString told = "No browser could be opened. You find the page here:\n" + pages + "/index.html";
    for (const std::string& way : {in("none"), folder_}) {  // no opener, and one that fails
        qputenv("PATH", way.c_str());
        withOne(clicking("lblBanner"), [&](QWidget&) { EXPECT_EQ(find<QMessageBox>()->text(), told); });
    }
    qputenv("PATH", path);
}

}  // namespace
