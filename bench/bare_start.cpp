// The least program of the toolkit that shows a window with controls; its button shows a window of labels.

#include <QApplication>
#include <QPushButton>
#include <memory>

#include "plain_windows.h"

namespace {

constexpr int columns = 20;
constexpr int labelCount = 420;

std::vector<PlainLabel> labels() {
    std::vector<PlainLabel> places;
    for (int i = 0; i < labelCount; ++i) {
        places.push_back({QStringLiteral("Tian Yue"), {i % columns * 60, i / columns * 30, 60, 20}});
    }
    return places;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication toolkit{argc, argv};
    const auto form = plainForm();
    std::unique_ptr<QWidget> second;
    auto* button = form->findChild<QPushButton*>();
    button->setObjectName(QStringLiteral("cmdGenerateChart"));
    QObject::connect(button, &QPushButton::clicked, form.get(), [&second, &form] {
        second = plainLabels(labels());
        second->showMaximized();
        form->hide();
    });
    form->show();
    return QApplication::exec();
}
