// What the windows take, each beside a bare toolkit program that does the least for the same thing. Ours and
// the bare one take turns; the table shows medians.

#include <spawn.h>
#include <sys/wait.h>
#include <turbojpeg.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/application.h"
#include "display/cell_square.h"
#include "display/frmDisplay.h"
#include "files/picture_export.h"
#include "paint_watch.h"
#include "plain_windows.h"
#include "process.h"
#include "style/look.h"
#include "table.h"

namespace {

constexpr int runs = 41;
constexpr int quietMilliseconds = 60;

using Samples = std::vector<double>;

double median(Samples samples) {
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

struct Pair {
    Samples ours;
    Samples bare;
};

// A first turn of each warms up and is left out. Ours runs without the toolkit's pixmap cache, as the program
// does.
Pair takeTurns(const std::function<double()>& ours, const std::function<double()>& bare) {
    static const int usualCache = QPixmapCache::cacheLimit();
    Pair pair;
    for (int run = 0; run <= runs; ++run) {
        QPixmapCache::setCacheLimit(0);
        pair.ours.push_back(ours());
        QPixmapCache::setCacheLimit(usualCache);
        pair.bare.push_back(bare());
    }
    pair.ours.erase(pair.ours.begin());
    pair.bare.erase(pair.bare.begin());
    return pair;
}

void print(const char* figure, const char* unit, const Pair& pair, double reach) {
    printRatio(figure, unit, median(pair.ours), median(pair.bare), reach);
}

// --- Programs started and watched from outside ---

struct Start {
    double wall;       // milliseconds
    double processor;  // milliseconds
    double peak;       // MiB
};

struct Program {
    std::string path;
    std::string first;
    std::string second;
};

// Starts the program with its output in a pipe, and waits for what its hook reports.
Start start(const Program& program) {
    ::setenv("BENCH_FIRST", program.first.c_str(), 1);
    ::setenv("BENCH_SECOND", program.second.c_str(), 1);
    int ends[2];
    if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    char* arguments[] = {const_cast<char*>(program.path.c_str()), nullptr};
    pid_t child = 0;
    const double began = monotonicSeconds();
    if (::posix_spawn(&child, program.path.c_str(), &actions, nullptr, arguments, environ) != 0) {
        throw std::runtime_error("cannot start " + program.path);
    }
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    std::FILE* report = ::fdopen(ends[0], "r");
    double painted = 0;
    double processor = 0;
    double peak = 0;
    const int read = std::fscanf(report, "%lf %lf %lf", &painted, &processor, &peak);
    std::fclose(report);
    ::waitpid(child, nullptr, 0);
    if (read != 3) throw std::runtime_error("no report from " + program.path);
    return {(painted - began) * 1e3, processor * 1e3, peak};
}

void benchStarts(const std::string& ourPath, const std::string& barePath) {
    Pair wall, processor, formPeak, chartPeak;
    const auto keep = [&](const Start& ours, const Start& bare) {
        wall.ours.push_back(ours.wall);
        wall.bare.push_back(bare.wall);
        processor.ours.push_back(ours.processor);
        processor.bare.push_back(bare.processor);
        formPeak.ours.push_back(ours.peak);
        formPeak.bare.push_back(bare.peak);
    };
    start({ourPath, "frmMain", ""});
    start({barePath, "bare", ""});
    for (int run = 0; run < runs; ++run) {
        const Start ours = start({ourPath, "frmMain", ""});
        keep(ours, start({barePath, "bare", ""}));
        chartPeak.ours.push_back(start({ourPath, "frmMain", "gfg"}).peak);
        chartPeak.bare.push_back(start({barePath, "bare", "bare labels"}).peak);
    }
    print("start to painted input form, wall", "ms", wall, 1.15);
    print("start to painted input form, CPU", "ms", processor, 1.15);
    print("peak memory, input form shown", "MiB", formPeak, 1.25);
    print("peak memory, chart shown", "MiB", chartPeak, 1.5);
}

// --- Windows of a running program ---

void press(const char* button) { control<QAbstractButton>(QString::fromLatin1(button))->click(); }

// The milliseconds from `open` to the widget painted; `then` runs before it returns, while the window stands.
// Dialogs keep `open` busy until `then` closes them.
double timeWindow(PaintWatch& watch, const QString& widget, const std::function<void()>& open,
                  const std::function<void()>& then) {
    bool done = false;
    double painted = 0;
    QEventLoop loop;
    watch.await(widget, quietMilliseconds, [&] {
        painted = watch.lastPainted();
        done = true;
        then();
        loop.quit();
    });
    const double began = monotonicSeconds();
    open();
    if (!done) loop.exec();
    return (painted - began) * 1e3;
}

void settle() {
    QEventLoop loop;
    QTimer::singleShot(100, &loop, &QEventLoop::quit);
    loop.exec();
}

void fillForm() {
    control<QLineEdit>(QStringLiteral("txtName"))->setText(QStringLiteral("SOMEBODY"));
    control<QComboBox>(QStringLiteral("cmbDate"))->setCurrentIndex(14);
    control<QComboBox>(QStringLiteral("cmbMonth"))->setCurrentIndex(5);
    control<QComboBox>(QStringLiteral("cmbYear"))->setCurrentIndex(20);
    control<QComboBox>(QStringLiteral("cmbHour"))->setCurrentIndex(10);
}

// The labels of the palace cells, with what is seen of their texts.
std::vector<PlainLabel> labelsOfChart() {
    std::vector<PlainLabel> labels;
    const auto squares = control<QWidget>(QStringLiteral("Frame1"))->findChildren<CellSquare*>();
    for (const CellSquare* square : squares) {
        const auto children = square->findChildren<QLabel*>();
        for (const QLabel* label : children) {
            const QPoint corner = label->mapTo(label->window(), QPoint{});
            labels.push_back({label->isVisible() ? label->text() : QString{}, {corner, label->size()}});
        }
    }
    return labels;
}

class Windows {
  public:
    Windows() {
        timeWindow(
            watch_, QStringLiteral("frmMain"), [this] { application_.start(); }, [] {});
        fillForm();
        openChart([this] { labels_ = labelsOfChart(); });
    }

    void bench() {
        print("Generate pressed to chart painted", "ms",
              takeTurns([this] { return openChart([] {}); }, [this] { return openLabels(); }), 1.5);
        showChart();
        print("click on a cell to analysis painted", "ms",
              takeTurns([this] { return openAnalysis("lblCover(2)"); }, [this] { return openText(); }), 1.5);
        print("Show All to analysis painted", "ms",
              takeTurns([this] { return openAnalysis("cmdShowAll"); }, [this] { return openText(); }), 2);
        print("picture saved, capture to file", "ms",
              takeTurns([this] { return savePicture(); }, [this] { return compressPicture(); }), 3);
    }

  private:
    void showChart() {
        fillForm();
        timeWindow(
            watch_, QStringLiteral("gfg"), [] { press("cmdGenerateChart"); }, [] {});
    }

    // Shows the chart and goes back again.
    double openChart(const std::function<void()>& meanwhile) {
        fillForm();
        settle();
        const double time = timeWindow(
            watch_, QStringLiteral("gfg"), [] { press("cmdGenerateChart"); }, meanwhile);
        timeWindow(
            watch_, QStringLiteral("frmMain"), [] { press("cmdBack"); }, [] {});
        settle();
        return time;
    }

    double openLabels() {
        settle();
        std::unique_ptr<QWidget> window;
        const double time = timeWindow(
            watch_, QStringLiteral("bare labels"),
            [&] {
                window = plainLabels(labels_);
                window->showMaximized();
            },
            [] {});
        window.reset();
        settle();
        return time;
    }

    double openAnalysis(const char* button) {
        settle();
        return timeWindow(
            watch_, QStringLiteral("RTB"), [button] { press(button); },
            [this] {
                auto* text = control<QTextEdit>(QStringLiteral("RTB"));
                text_ = text->toPlainText();
                textSize_ = text->window()->size();
                press("cmdOk");
            });
    }

    double openText() {
        settle();
        std::unique_ptr<QTextEdit> view;
        const double time = timeWindow(
            watch_, QStringLiteral("bare text"),
            [&] {
                view = std::make_unique<QTextEdit>();
                view->setObjectName(QStringLiteral("bare text"));
                view->resize(textSize_);
                view->setPlainText(text_);
                view->show();
            },
            [] {});
        view.reset();
        settle();
        return time;
    }

    double savePicture() {
        const QString path = folder_.filePath(QStringLiteral("chart.jpg"));
        const QString converter =
            QDir{QCoreApplication::applicationDirPath()}.filePath(QStringLiteral("../app/Bmp2Jpeg.dll"));
        auto* display = control<frmDisplay>(QStringLiteral("frmDisplay"));
        const double began = monotonicSeconds();
        const QPixmap picture = display->clientPicture();
        savePictureAs(picture, path, converter, display);
        const double time = monotonicSeconds() - began;
        picture_ = picture.toImage();
        if (!QFile::remove(path)) throw std::runtime_error("no picture was saved");
        return time * 1e3;
    }

    double compressPicture() const {
        const double began = monotonicSeconds();
        const tjhandle compressor = tjInitCompress();
        unsigned char* bytes = nullptr;
        unsigned long size = 0;
        const int result = tjCompress2(compressor, picture_.constBits(), picture_.width(),
                                       static_cast<int>(picture_.bytesPerLine()), picture_.height(),
                                       TJPF_BGRX, &bytes, &size, TJSAMP_444, 100, TJFLAG_ACCURATEDCT);
        const double time = monotonicSeconds() - began;
        tjFree(bytes);
        tjDestroy(compressor);
        if (result != 0) throw std::runtime_error("the picture cannot be compressed");
        return time * 1e3;
    }

    PaintWatch watch_;
    Application application_;
    std::vector<PlainLabel> labels_;
    QString text_;
    QSize textSize_;
    QImage picture_;
    QTemporaryDir folder_;
};

}  // namespace

int main(int argc, char* argv[]) {
    try {
        const std::filesystem::path self = std::filesystem::canonical("/proc/self/exe");
        const auto build = self.parent_path().parent_path();
        const std::string only = argc > 1 ? argv[1] : "";
        if (only != "windows")
            benchStarts(build / "app/palace-lantern-start_hook", build / "bench/bare_start");
        if (only == "starts") return 0;
        QApplication toolkit{argc, argv};
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::setFont(look::textFont(QApplication::font()));
        QApplication::setPalette(look::legibleSelection(QApplication::palette()));
        QApplication::setWindowIcon(look::productIcon());
        Windows{}.bench();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
