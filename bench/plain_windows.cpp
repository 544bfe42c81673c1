#include "plain_windows.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr auto captions = {"",     "Palace Lantern", "Name", "Date",    "Month",
                           "Year", " Date Of Birth", "Hour", "Minutes", "Time Of Birth"};
constexpr auto buttons = {"Get My Palace Lantern Interpretation",
                          "Click Here To Open Previously Saved Palace Lantern Interpretation", "Exit"};
constexpr int lists = 5;

}  // namespace

std::unique_ptr<QMainWindow> plainForm() {
    auto window = std::make_unique<QMainWindow>();
    window->setObjectName(QStringLiteral("bare"));
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout{content};
    for (const char* caption : captions) rows->addWidget(new QLabel{QString::fromLatin1(caption)});
    rows->addWidget(new QLineEdit);
    for (int i = 0; i < lists; ++i) rows->addWidget(new QComboBox);
    for (const char* button : buttons) rows->addWidget(new QPushButton{QString::fromLatin1(button)});
    rows->addWidget(new QGroupBox{QStringLiteral("Enter your Details")});
    window->setCentralWidget(content);
    return window;
}

std::unique_ptr<QWidget> plainLabels(const std::vector<PlainLabel>& labels) {
    auto window = std::make_unique<QWidget>();
    window->setObjectName(QStringLiteral("bare labels"));
    for (const PlainLabel& label : labels) (new QLabel{label.text, window.get()})->setGeometry(label.place);
    return window;
}
