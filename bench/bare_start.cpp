// The least program of the toolkit that shows a window with controls, as many of each kind as the input form
// has; its first button shows a window of as many labels as the chart has.

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

#include "measure.h"

namespace {

constexpr auto captions = {"",     "Palace Lantern", "Name", "Date",    "Month",
                           "Year", " Date Of Birth", "Hour", "Minutes", "Time Of Birth"};
constexpr auto buttons = {"Get My Palace Lantern Interpretation",
                          "Click Here To Open Previously Saved Palace Lantern Interpretation", "Exit"};

QWidget* controls() {
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout{content};
    for (const char* caption : captions) rows->addWidget(new QLabel{QString::fromLatin1(caption)});
    rows->addWidget(new QLineEdit);
    for (int i = 0; i < 5; ++i) rows->addWidget(new QComboBox);
    for (const char* button : buttons) rows->addWidget(new QPushButton{QString::fromLatin1(button)});
    rows->addWidget(new QGroupBox{QStringLiteral("Enter your Details")});
    return content;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication toolkit{argc, argv};
    QMainWindow form;
    form.setObjectName(QStringLiteral("frmMain"));
    form.setCentralWidget(controls());
    std::vector<PlainLabel> labels;
    for (int i = 0; i < 420; ++i) {
        labels.push_back({QStringLiteral("Tian Yue"), {i % 20 * 60, i / 20 * 30, 60, 20}});
    }
    std::unique_ptr<QWidget> second;
    auto* button = form.findChild<QPushButton*>();
    button->setObjectName(QStringLiteral("cmdGenerateChart"));
    QObject::connect(button, &QPushButton::clicked, &form, [&] {
        second = plainLabels(labels);
        form.hide();
    });
    form.show();
    return QApplication::exec();
}
