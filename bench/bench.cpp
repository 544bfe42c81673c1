// Measures what the core, the starts and the windows take, and prints one table, or only the part that is
// named: core, starts, windows. "longday [ROUNDS]" instead plays a long day and says whether anything grew.

#include <turbojpeg.h>

#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QPixmapCache>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "app/application.h"
#include "app/prepare_toolkit.h"
#include "chart/generate.h"
#include "display/frmDisplay.h"
#include "files/picture_export.h"
#include "input/input_check.h"
#include "interpret/composer.h"
#include "measure.h"

namespace {

using Samples = std::vector<double>;
using Action = std::function<void()>;

struct Pair {
    Samples ours, bare;
};

double median(Samples samples) {
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

// The ratio of the medians is to be within the reach.
void printRatio(const char* figure, const char* unit, const Pair& pair, double reach) {
    const double ours = median(pair.ours);
    const double bare = median(pair.bare);
    std::printf("%-36s %8.2f %-4s %8.2f %-4s %6.2f %6.2f %s\n", figure, ours, unit, bare, unit, ours / bare,
                reach, ours / bare <= reach ? "ok" : "SHORT");
}

// A figure that stands alone and is to stay under the limit.
void printFigure(const char* figure, const char* unit, double ours, double limit) {
    std::printf("%-36s %8.2f %-4s %20s %6g %s\n", figure, ours, unit, "<", limit,
                ours < limit ? "ok" : "SHORT");
}

// --- The core ---

// Every date that passes the check, at each of the twelve double-hours and at midnight.
std::vector<BirthEntry> allEntries() {
    std::vector<BirthEntry> entries;
    for (int date = 0; date < yearCount * monthCount * dayCount; ++date) {
        BirthEntry entry{u"SOMEBODY", {date % dayCount, date / dayCount % monthCount, 0}, 0, 0};
        entry.date.yearPosition = date / dayCount / monthCount;
        if (checkBirthEntry(entry)) continue;
        entries.push_back(entry);
        for (int hour = 0; hour < 24; hour += 2) entries.push_back({entry.name, entry.date, hour, 1});
    }
    return entries;
}

void cast(const BirthEntry& entry, ChartModel& chart) {
    chart.loadCells();
    static_cast<void>(generateChart(entry, chart));
}

// The median of 15 repetitions of so many passes: nanoseconds of processor time for one pass.
double nanoseconds(int passes, const Action& pass) {
    Samples samples;
    for (int repetition = 0; repetition < 15; ++repetition) {
        const double began = processorMilliseconds();
        for (int i = 0; i < passes; ++i) pass();
        samples.push_back((processorMilliseconds() - began) / passes * 1e6);
    }
    return median(samples);
}

void benchCore() {
    const BirthEntry entry{u"SOMEBODY", {14, 5, 20}, 10, 30};
    ChartModel chart;
    printFigure("one chart cast in the core", "ns", nanoseconds(100'000, [&] { cast(entry, chart); }), 1000);
    printFigure("all twelve palaces composed", "us",
                nanoseconds(20'000, [&] { composeAllPalaces(chart); }) / 1e3, 20);
    const std::vector<BirthEntry> entries = allEntries();
    const auto castAll = [&] {
        for (const BirthEntry& each : entries) cast(each, chart);
    };
    printFigure("all charts of the form", "ms", nanoseconds(1, castAll) / 1e6, 300);
}

// --- Programs started and watched from outside ---

constexpr int runs = 41;

// Starts the program, which stands beside this one, and returns what its hook reports: milliseconds until the
// form was painted, the processor's milliseconds until then, and MiB at most with the form and with the
// chart.
std::array<double, 4> start(const char* program) {
    const auto folder = std::filesystem::canonical("/proc/self/exe").parent_path();
    QProcess process;
    const double began = wallMilliseconds();
    process.start(QString::fromStdString(folder / program), {});
    process.waitForFinished();
    const auto report = process.readAllStandardOutput().split(' ');
    if (report.size() != 4) throw std::runtime_error(std::string{"no report from "} + program);
    return {report[0].toDouble() - began, report[1].toDouble(), report[2].toDouble(), report[3].toDouble()};
}

void benchStarts() {
    std::array<Pair, 4> pairs;
    for (int run = 0; run < runs; ++run) {
        const auto ours = start("our_start");
        const auto bare = start("bare_start");
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            pairs[i].ours.push_back(ours[i]);
            pairs[i].bare.push_back(bare[i]);
        }
    }
    printRatio("start to painted input form, wall", "ms", pairs[0], 1.15);
    printRatio("start to painted input form, CPU", "ms", pairs[1], 1.15);
    printRatio("peak memory, input form shown", "MiB", pairs[2], 1.25);
    printRatio("peak memory, chart shown", "MiB", pairs[3], 1.5);
}

// --- Windows of a running program ---

void press(const char* button) { control<QAbstractButton>(button)->click(); }
void closeAnalysis() { press("cmdOk"); }
void nothing() {}

void fillForm(int round) {
    const auto select = [round](const char* list, int step, int count) {
        control<QComboBox>(list)->setCurrentIndex(round / step % count);
    };
    control<QLineEdit>("txtName")->setText(QStringLiteral("SOMEBODY"));
    select("cmbDate", 1, 28);
    select("cmbMonth", 28, monthCount);
    select("cmbYear", 1, yearCount);
    select("cmbHour", 1, 24);
    select("cmbMinute", 1, 60);
}

// The labels of the palace cells, whose names end in their cell's number, with what is seen of their texts.
std::vector<PlainLabel> labelsOfChart() {
    std::vector<PlainLabel> labels;
    const QRegularExpression ofCell{QStringLiteral("\\(")};
    for (const QLabel* label : control<QWidget>("Frame1")->findChildren<QLabel*>(ofCell)) {
        const QPoint corner = label->mapTo(label->window(), QPoint{});
        labels.push_back({label->isVisible() ? label->text() : QString{}, {corner, label->size()}});
    }
    return labels;
}

class Windows {
  public:
    Windows() {
        timeWindow("frmMain", [this] { application_.start(); });
        fillForm(20);
    }

    void bench() {
        timePress("cmdGenerateChart", "gfg");
        const auto labels = labelsOfChart();
        goBack();
        const auto bareLabels = [&] { return openBare("gfg", [&] { return plainLabels(labels); }); };
        const auto bareText = [&] { return openBare("RTB", [&] { return plainText(); }); };
        const auto barePicture = [&] { return compressPicture(); };
        const auto chart = [&] { return openChart(); };
        const auto palace = [&] { return openAnalysis("lblCover(2)"); };
        const auto allPalaces = [&] { return openAnalysis("cmdShowAll"); };
        const auto picture = [&] { return savePicture(); };
        compare("Generate pressed to chart painted", 1.5, chart, bareLabels);
        timePress("cmdGenerateChart", "gfg");
        compare("click on a cell to analysis painted", 1.5, palace, bareText);
        compare("Show All to analysis painted", 2, allPalaces, bareText);
        compare("picture saved, capture to file", 4, picture, barePicture);
    }

    // A round of a long day, in milliseconds.
    double playRound(int round) {
        quiet_ = 0;
        const double began = wallMilliseconds();
        fillForm(round);
        timePress("cmdGenerateChart", "gfg");
        timePress(qPrintable(QStringLiteral("lblCover(%1)").arg(round % cellCount)), "RTB", closeAnalysis);
        timePress("cmdShowAll", "RTB", closeAnalysis);
        timePress("cmdBack", "frmMain");
        return wallMilliseconds() - began;
    }

  private:
    using Turn = std::function<double()>;

    // Ours and the bare one take turns. Ours runs without the toolkit's pixmap
    // cache, as the program does, the bare one with the toolkit's own limit.
    static void compare(const char* figure, double reach, const Turn& ours, const Turn& bare) {
        Pair pair;
        for (int run = 0; run < runs; ++run) {
            QPixmapCache::setCacheLimit(0);
            QTest::qWait(200);
            pair.ours.push_back(ours());
            QPixmapCache::setCacheLimit(10240);
            QTest::qWait(200);
            pair.bare.push_back(bare());
        }
        printRatio(figure, "ms", pair, reach);
    }

    // The milliseconds from `open` to the widget painted; `then` runs before it returns, while the window
    // stands. Dialogs keep `open` busy until `then` closes them.
    double timeWindow(const char* widget, const Action& open, const Action& then = nothing) {
        double painted = 0;
        QEventLoop loop;
        watch_.await(QLatin1String(widget), quiet_, [&](double when) {
            painted = when;
            then();
            loop.quit();
        });
        const double began = wallMilliseconds();
        open();
        if (painted == 0) loop.exec();
        return painted - began;
    }

    double timePress(const char* button, const char* widget, const Action& then = nothing) {
        const auto pressIt = [button] { press(button); };
        return timeWindow(widget, pressIt, then);
    }

    void goBack() {
        timePress("cmdBack", "frmMain");
        fillForm(20);
    }

    double openChart() {
        const double time = timePress("cmdGenerateChart", "gfg");
        goBack();
        return time;
    }

    double openAnalysis(const char* button) {
        return timePress(button, "RTB", [this] {
            text_ = control<QTextEdit>("RTB")->toPlainText();
            textSize_ = control<QTextEdit>("RTB")->window()->size();
            closeAnalysis();
        });
    }

    double openBare(const char* name, const std::function<std::unique_ptr<QWidget>()>& show) {
        std::unique_ptr<QWidget> window;
        return timeWindow(name, [&] { window = show(); });
    }

    std::unique_ptr<QWidget> plainText() const {
        auto view = std::make_unique<QTextEdit>();
        view->setObjectName(QStringLiteral("RTB"));
        view->resize(textSize_);
        view->setPlainText(text_);
        view->show();
        return view;
    }

    double savePicture() {
        const QString path = folder_.filePath(QStringLiteral("chart.jpg"));
        const QString converter = QCoreApplication::applicationDirPath() + QStringLiteral("/Bmp2Jpeg.dll");
        auto* display = control<frmDisplay>("frmDisplay");
        const double began = wallMilliseconds();
        const QPixmap picture = display->clientPicture();
        savePictureAs(picture, path, converter, display);
        const double time = wallMilliseconds() - began;
        picture_ = picture.toImage();
        if (!QFile::remove(path)) throw std::runtime_error("no picture was saved");
        return time;
    }

    double compressPicture() const {
        const double began = wallMilliseconds();
        const tjhandle compressor = tjInitCompress();
        unsigned char* bytes = nullptr;
        unsigned long size = 0;
        tjCompress2(compressor, picture_.constBits(), picture_.width(),
                    static_cast<int>(picture_.bytesPerLine()), picture_.height(), TJPF_BGRX, &bytes, &size,
                    TJSAMP_444, 100, TJFLAG_ACCURATEDCT);
        const double time = wallMilliseconds() - began;
        tjFree(bytes);
        tjDestroy(compressor);
        if (size == 0) throw std::runtime_error("the picture cannot be compressed");
        return time;
    }

    PaintWatch watch_;
    int quiet_ = 60;  // milliseconds
    Application application_;
    QString text_;
    QSize textSize_;
    QImage picture_;
    QTemporaryDir folder_;
};

// --- The long day ---

// Whether it grew to no more than so many times what it was early on.
bool holds(const char* what, const char* unit, double early, double late, double reach) {
    const bool sound = late <= early * reach;
    std::printf("%s: %.2f %s early on, %.2f at the end: %s\n", what, early, unit, late,
                sound ? "ok" : "GROWS");
    return sound;
}

double widgets() { return static_cast<double>(QApplication::allWidgets().size()); }

// Rounds of fill, generate, open a palace, Show All and back through the real forms. Returns whether neither
// memory, nor the number of widgets, nor the time of a round grew after the first rounds.
bool playLongDay(int rounds) {
    constexpr int some = 200;  // rounds to warm up, and to take the median of
    Windows windows;
    Samples times;
    const auto play = [&](int last) {
        for (int round = static_cast<int>(times.size()); round < last; ++round)
            times.push_back(windows.playRound(round));
    };
    play(some);
    const double earlyMemory = memory("VmRSS:");
    const double earlyWidgets = widgets();
    play(std::max(rounds, 3 * some));
    const std::array sound{holds("memory", "MiB", earlyMemory, memory("VmRSS:"), 1.05),
                           holds("widgets", "alive", earlyWidgets, widgets(), 1),
                           holds("a round", "ms", median({times.begin() + some, times.begin() + 2 * some}),
                                 median({times.end() - some, times.end()}), 1.1)};
    return sound == std::array{true, true, true};
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::string part = argc > 1 ? argv[1] : "all";
    const auto wants = [&part](const char* name) { return part == "all" || part == name; };
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (wants("core")) benchCore();
    if (wants("starts")) benchStarts();
    Toolkit toolkit{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    prepareToolkit();
    if (wants("windows")) Windows{}.bench();
    if (part != "longday") return 0;
    return playLongDay(argc > 2 ? std::stoi(argv[2]) : 2000) ? 0 : 1;
}
