// What form tests share: finding controls by name, and dealing with windows that hold the program up.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <ostream>

#include "app/application.h"
#include "calendar/lunar_month.h"
#include "chart_text.h"
#include "temporary_folder.h"

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline QString operator""_q(const char* text, std::size_t size) {
    return QString::fromUtf8(text, qsizetype(size));
}

// The control of that name, in whichever window it is; any of its kind without a name.
template <class Control = QWidget>
Control* find(const QString& name = {}) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && qobject_cast<Control*>(window))
            return qobject_cast<Control*>(window);
        if (auto* control = window->findChild<Control*>(name)) return control;
    }
    ADD_FAILURE() << "no " << name.toStdString();
    return nullptr;
}

inline void click(const QString& name) { QTest::mouseClick(find(name), Qt::LeftButton); }

// Runs `action` and, while it waits for modal windows, `act` on each of them. Returns how many there were.
inline int withModals(const std::function<void()>& action, const std::function<void(QWidget&)>& act) {
    int count = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr || !window->isVisible() || window->property("dealtWith").toBool()) return;
        window->setProperty("dealtWith", true);
        ++count;
        act(*window);
    });
    timer.start(10);
    action();
    return count;
}

// The messages that `action` brings up, as "title|icon|text", each closed by Escape; a file dialog among them
// is given the path or, without one, cancelled.
inline QStringList messagesOf(const std::function<void()>& action, const std::string& path = {}) {
    QStringList seen;
    withModals(action, [&](QWidget& window) {
        if (const auto* box = qobject_cast<QMessageBox*>(&window)) {
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            const QString icon = box->icon() == QMessageBox::Information ? "information"_q : "critical"_q;
            seen += "%1|%2|%3"_q.arg(box->windowTitle(), icon, box->text());
        } else {
            window.findChild<QLineEdit*>("fileNameEdit"_q)->setText(QString::fromStdString(path));
            if (!path.empty()) return QTest::keyClick(window.findChild<QLineEdit*>(), Qt::Key_Return);
        }
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    return seen;
}

// Enters a birth into the input form.
inline void enter(const QString& name, const std::string& date, int hour, int minute) {
    const DateLists lists = dateOf(date);
    find<QLineEdit>("txtName"_q)->setText(name);
    find<QComboBox>("cmbDate"_q)->setCurrentIndex(lists.dayPosition);
    find<QComboBox>("cmbMonth"_q)->setCurrentIndex(lists.monthPosition);
    find<QComboBox>("cmbYear"_q)->setCurrentIndex(lists.yearPosition);
    find<QComboBox>("cmbHour"_q)->setCurrentIndex(hour);
    find<QComboBox>("cmbMinute"_q)->setCurrentIndex(minute);
}

// What the input form shows: name, date and time.
inline QString entered() {
    QStringList texts{find<QLineEdit>("txtName"_q)->text()};
    for (const QString& list : {"cmbDate"_q, "cmbMonth"_q, "cmbYear"_q, "cmbHour"_q, "cmbMinute"_q}) {
        texts += find<QComboBox>(list)->currentText();
    }
    return texts.join(" "_q);
}

// The whole program, as it has just been started.
class Program : public TemporaryFolder {
  protected:
    Program() {
        LunarMonth = 0;
        application_.start();
        EXPECT_TRUE(QTest::qWaitForWindowActive(find("frmMain"_q)));
    }

    // Casts the first of the charts worked out by hand.
    static void showChart() {
        enter("JOHN SMITH"_q, "5.3.1985", 13, 1);
        click("cmdGenerateChart"_q);
        EXPECT_TRUE(QTest::qWaitForWindowActive(find("frmMdi"_q)));
    }

    Application application_;
};
