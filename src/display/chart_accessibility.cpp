#include "display/chart_accessibility.h"

#include <QAccessibleWidget>

#include "display/cell_square.h"

namespace {

// A frame that keeps its labels to itself.
class QuietFrame : public QAccessibleWidget {
  public:
    explicit QuietFrame(QWidget* frame) : QAccessibleWidget(frame, QAccessible::Graphic) {}
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

QAccessibleInterface* createInterface(const QString&, QObject* object) {
    auto* square = qobject_cast<CellSquare*>(object);
    return square == nullptr ? nullptr : new QuietFrame{square};
}

QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// What stands below the line break of a caption that was extended, or the whole of one that was not.
QString lastLine(const Caption& caption) { return latin(caption.text()).section(QLatin1Char('\n'), -1); }

// The stars in the order in which the eye finds them: Zi Wei, the major stars, the minor ones, the flags.
QStringList starsIn(const ChartCell& cell) {
    QStringList stars;
    if (cell.lblEarthlyBranches.text().starts_with("Zi Wei")) stars += QStringLiteral("Zi Wei");
    for (const CaptionField& caption : captionFields) {
        const bool isStar =
            caption.field != &ChartCell::lblPalace && caption.field != &ChartCell::lblPalaceSteam &&
            caption.field != &ChartCell::lblEarthlyBranches && caption.field != &ChartCell::lblBody;
        if (isStar && !(cell.*caption.field).empty()) stars += latin((cell.*caption.field).text());
    }
    for (const FlagField& flag : flagFields) {
        if (cell.*flag.field) stars += latin(flag.text);
    }
    return stars;
}

}  // namespace

QString spokenCell(const ChartModel& chart, CellIndex index) {
    const ChartCell& cell = chart.cell(index);
    const QString name = latin(cell.lblPalace.text());
    const QString palace = name.endsWith(QStringLiteral("Palace")) ? name : name + QStringLiteral(" palace");
    QString sentence =
        QStringLiteral("%1, %2, stem %3")
            .arg(palace, latin(branchNames[index.index()].text()), lastLine(cell.lblPalaceSteam));
    if (index == chart.lifePalace) sentence += QStringLiteral(", element ") + latin(chart.lblElement.text());
    const QStringList stars = starsIn(cell);
    sentence += stars.isEmpty() ? QStringLiteral(": no stars")
                                : QStringLiteral(": ") + stars.join(QStringLiteral(", "));
    if (!cell.lblBody.empty()) sentence += QStringLiteral("; Body Palace");
    return sentence;
}

void installChartAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed)
}
