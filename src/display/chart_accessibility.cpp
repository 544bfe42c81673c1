#include "display/chart_accessibility.h"

#include <QAccessibleWidget>
#include <QScrollArea>

#include "display/chart_square.h"
#include "style/text.h"

namespace {

// The interface of the square: its children are the centre block and the covers, but not the cells' labels.
class SquareInterface : public QAccessibleWidget {
  public:
    explicit SquareInterface(QWidget* square) : QAccessibleWidget(square, QAccessible::Grouping) {}

    int childCount() const override { return static_cast<int>(spoken().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(spoken().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(spoken().indexOf(child->object()));
    }

  private:
    QObjectList spoken() const {
        QObjectList children = widget()->children();
        children.removeIf([](QObject* child) {
            return child->objectName() != QStringLiteral("Frame2") &&
                   qobject_cast<LblCover*>(child) == nullptr;
        });
        return children;
    }
};

QAccessibleInterface* createInterface(const QString&, QObject* object) {
    // Qt 6.8 still: its interface of a scroll area uses scroll bars that are already hidden, and crashes.
    if (auto* area = qobject_cast<QScrollArea*>(object))
        return new QAccessibleWidget{area, QAccessible::Client};
    auto* square = qobject_cast<ChartSquare*>(object);
    return square == nullptr ? nullptr : new SquareInterface{square};
}

// The caption without the element or star above it.
QString lastLine(const Caption& caption) { return latin(caption.text()).section(QLatin1Char('\n'), -1); }

}  // namespace

QString spokenCell(const ChartModel& chart, CellIndex index) {
    const ChartCell& cell = chart.cell(index);
    const QString name = latin(cell.lblPalace.text());
    const QString palace = name.endsWith(QStringLiteral("Palace")) ? name : name + QStringLiteral(" palace");
    QString sentence =
        QStringLiteral("%1, %2, stem %3")
            .arg(palace, latin(branchNames[index.index()].text()), lastLine(cell.lblPalaceSteam));
    if (index == chart.lifePalace) sentence += QStringLiteral(", element ") + latin(chart.lblElement.text());
    QStringList stars;
    for (const StarRow& row : starTable) {
        if (cell.holds(row.star)) stars += latin(row.field.text.text());
    }
    sentence += stars.isEmpty() ? QStringLiteral(": no stars")
                                : QStringLiteral(": ") + stars.join(QStringLiteral(", "));
    if (!cell.lblBody.empty()) sentence += QStringLiteral("; Body Palace");
    return sentence;
}

void installChartAccessibility() { QAccessible::installFactory(createInterface); }
