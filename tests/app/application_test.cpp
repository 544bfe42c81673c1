// The frame, and the ways through the program and out of it.

#include <QAction>
#include <QMdiSubWindow>
#include <QScreen>

#include "form_driver.h"

namespace {

void trigger(const char* window, const char* entry) {
    find(QLatin1String{window})->findChild<QAction*>(QLatin1String{entry})->trigger();
    QCoreApplication::processEvents();
}

TEST_F(Program, PlacesTheButtonsFromTheScreensRightEdge) {
    showChart();
    const int right = find("frmMdi"_q)->screen()->size().width();
    for (const auto& [name, fromRight] :
         {std::pair{"cmdSavePicture", 4280}, {"cmdShowAll", 2900}, {"cmdBack", 1500}, {"cmdMdiExit", 120}}) {
        const QWidget* button = find(QLatin1String{name});
        EXPECT_EQ(button->x(), qRound(right - (1215 + fromRight) / 15.0)) << name;
        EXPECT_EQ(button->width(), 1215 / 15);
    }
    EXPECT_NEAR(find<QMdiSubWindow>()->geometry().center().x(), right / 2, 2);
}

TEST_F(Program, GoesBackToAnEmptyFormAndCastsTheNextChartOnFreshCells) {
    const std::function<void()> ways[]{[] { click("cmdBack"_q); },
                                       [] { trigger("frmDisplay", "mnuFileBack"); }};
    for (const auto& goBack : ways) {
        showChart();
        EXPECT_FALSE(find("frmMain"_q)->isVisible());
        goBack();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(find("frmMain"_q)->isVisible());
        EXPECT_EQ(entered(), " 1 January 1970 0 0"_q);
        for (const QWidget* window : QApplication::topLevelWidgets())
            EXPECT_NE(window->objectName(), "frmMdi"_q);
    }
    enter("A"_q, "24.12.2003", 21, 0);
    click("cmdGenerateChart"_q);
    EXPECT_EQ(find<QLabel>("lblEarthlyBranches(0)"_q)->text(), "Yin"_q);
    EXPECT_EQ(find<QLabel>("lblEarthlyBranches(11)"_q)->text(), "Zi Wei\nChou"_q);
    EXPECT_FALSE(find<QLabel>("lblLuCun(1)"_q)->isVisible());
    EXPECT_TRUE(find<QLabel>("lblLuCun(10)"_q)->isVisible());
}

// Runs the program until it ends by itself, with no window left; 99 where it does not.
int lastsUntil(const std::function<void()>& exit) {
    QTimer::singleShot(0, exit);
    QTimer watchdog;
    QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(99); });
    watchdog.start(5000);
    const int code = QApplication::exec();
    for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
    return code;
}

TEST_F(Program, EndsFromEverywhere) {
    const std::function<void()> ways[]{
        [] { click("cmExit"_q); },
        [] { trigger("frmMain", "mnuExit"); },
        [] { find("frmMain"_q)->close(); },
        [] { click("cmdMdiExit"_q); },
        [] { trigger("frmDisplay", "mnuExit"); },
        [] { find("frmMdi"_q)->close(); },
        [] { find<QMdiSubWindow>()->close(); },
    };
    for (std::size_t way = 0; way < std::size(ways); ++way) {
        find("frmMain"_q)->show();
        if (way >= 3) showChart();
        EXPECT_EQ(lastsUntil(ways[way]), 0) << "way " << way;
    }
}

}  // namespace
