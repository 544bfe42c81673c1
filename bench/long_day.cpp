// A long day: linked with the program's own main, this plays rounds of fill, generate, open a palace, Show
// All and back through the real forms. What must not grow is memory, the number of widgets and the time of a
// round.

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include "calendar/date_lists.h"
#include "paint_watch.h"
#include "process.h"

namespace {

constexpr std::size_t warmUp = 200;
constexpr std::size_t fullDay = 2000;

// How much more than after the first rounds is still no growth.
constexpr double memoryReach = 1.05;
constexpr double timeReach = 1.10;

// A step of a round: the button to press, and what is painted then. A dialog is closed again.
struct Step {
    const char* button;
    const char* painted;
    bool dialog;
};
constexpr std::array<Step, 4> steps{{
    {"cmdGenerateChart", "gfg", false},
    {"lblCover(%1)", "RTB", true},
    {"cmdShowAll", "RTB", true},
    {"cmdBack", "frmMain", false},
}};

void select(const char* list, std::size_t round, int count) {
    control<QComboBox>(QString::fromLatin1(list))->setCurrentIndex(static_cast<int>(round) % count);
}

void fillForm(std::size_t round) {
    control<QLineEdit>(QStringLiteral("txtName"))->setText(QStringLiteral("SOMEBODY"));
    select("cmbDate", round, 28);
    select("cmbMonth", round / 28, monthCount);
    select("cmbYear", round, yearCount);
    select("cmbHour", round, 24);
    select("cmbMinute", round, 60);
}

double median(std::vector<double>::const_iterator first, std::vector<double>::const_iterator last) {
    std::vector<double> sorted(first, last);
    std::sort(sorted.begin(), sorted.end());
    return sorted[sorted.size() / 2];
}

bool check(const char* what, double early, double late, double reach, const char* unit) {
    const bool sound = late <= early * reach;
    std::printf("%s: %.2f %s after the first %zu rounds, %.2f at the end: %s\n", what, early, unit, warmUp,
                late, sound ? "ok" : "GROWS");
    return sound;
}

class LongDay {
  public:
    explicit LongDay(std::size_t rounds) : rounds_(rounds) {
        watch_.await(QStringLiteral("frmMain"), 0, [this] { playStep(); });
    }

  private:
    // The steps are taken from the program's own event loop, one after another.
    void playStep() {
        const Step& step = steps[step_];
        if (step_ == 0) beginRound();
        watch_.await(QString::fromLatin1(step.painted), 0, [this, step] {
            if (step.dialog) control<QPushButton>(QStringLiteral("cmdOk"))->click();
            QTimer::singleShot(0, &watch_, [this] { endStep(); });
        });
        const QString button = QString::fromLatin1(step.button);
        const bool isCell = button.contains(QLatin1Char('%'));
        control<QAbstractButton>(isCell ? button.arg(times_.size() % 12) : button)->click();
    }

    void endStep() {
        step_ = (step_ + 1) % steps.size();
        if (step_ == 0) endRound();
        if (times_.size() < rounds_ || step_ != 0) {
            playStep();
        } else {
            QCoreApplication::exit(nothingGrew() ? 0 : 1);
        }
    }

    void beginRound() {
        began_ = monotonicSeconds();
        fillForm(times_.size());
    }

    void endRound() {
        times_.push_back((monotonicSeconds() - began_) * 1e3);
        if (times_.size() != warmUp) return;
        memory_ = megabytes("VmRSS:");
        widgets_ = QApplication::allWidgets().size();
    }

    bool nothingGrew() const {
        const double early = median(times_.begin() + warmUp, times_.begin() + 2 * warmUp);
        const double late = median(times_.end() - warmUp, times_.end());
        const bool memoryIsSound = check("memory", memory_, megabytes("VmRSS:"), memoryReach, "MiB");
        const bool widgetsAreSound =
            check("widgets", static_cast<double>(widgets_),
                  static_cast<double>(QApplication::allWidgets().size()), 1, "alive");
        return check("a round", early, late, timeReach, "ms") && memoryIsSound && widgetsAreSound;
    }

    PaintWatch watch_;
    std::size_t rounds_;
    std::size_t step_ = 0;
    double began_ = 0;
    std::vector<double> times_;
    double memory_ = 0;
    qsizetype widgets_ = 0;
};

// The number of rounds may be given, as the program's argument.
void hook() {
    const std::size_t rounds = QCoreApplication::arguments().value(1).toULongLong();
    new LongDay{rounds == 0 ? fullDay : std::max(3 * warmUp, rounds)};
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(hook)
