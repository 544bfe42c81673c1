// What form tests share: finding controls, pressing keys, dealing with windows that hold the program up.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <filesystem>
#include <fstream>
#include <functional>
#include <source_location>
#include <stdexcept>

#include "app/application.h"
#include "chart_text.h"
#include "files/chart_file.h"
#include "style/text.h"

using Action = std::function<void()>;

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

template <class Object>
Object* present(Object* object, const QString& name) {
    if (object == nullptr) throw std::runtime_error{"There is no \"" + name.toStdString() + "\"."};
    return object;
}

// The control of that name, one that is seen rather than another; any of its kind without a name.
template <class Control = QWidget>
Control* find(const QString& name = {}) {
    Control* found = nullptr;
    for (QWidget* widget : QApplication::allWidgets()) {
        const bool fits = name.isEmpty() || widget->objectName() == name;
        auto* control = fits ? qobject_cast<Control*>(widget) : nullptr;
        if (control != nullptr && (found == nullptr || widget->isVisible())) found = control;
    }
    return present(found, name);
}

inline void await(const std::function<bool()>& comesTrue,
                  const std::source_location& where = std::source_location::current()) {
    EXPECT_TRUE(QTest::qWaitFor(comesTrue)) << where.file_name() << ":" << where.line();
}

inline void click(const QString& name) { QTest::mouseClick(find(name), Qt::LeftButton); }

// Presses keys such as "Tab Ctrl+S" in a control or else each where the focus then is. Returns the names of
// the controls that have the focus after each of them, of a cell only the index.
inline QString press(const QString& keys, QWidget* control = nullptr) {
    QStringList names;
    for (const QString& key : keys.split(' ')) {
        QWidget* focused = control != nullptr ? control : QApplication::focusWidget();
        QTest::keySequence(present(focused, "focus"), QKeySequence{key});
        focused = QApplication::focusWidget();
        names += focused != nullptr ? focused->objectName() : "none";
    }
    return names.join(" ").remove("lblCover");
}

inline QString textOf(const QString& label) { return find<QLabel>(label)->text(); }

// Chooses an entry of a window's menus, which acts through the event loop.
inline void choose(const QString& window, const QString& entry) {
    present(find(window)->findChild<QAction*>(entry), entry)->trigger();
    QCoreApplication::processEvents();
}

inline Action clicking(const QString& name) { return std::bind_front(click, name); }
inline Action pressing(const QString& keys) { return std::bind_front(press, keys, nullptr); }

// Runs `action` and, while it waits for modal windows, `act` on each that comes to the front: it may close
// the window, or leave that to the next time. Returns how often, after so many times at least.
inline int withModals(const Action& action, const std::function<void(QWidget&)>& act, int least = 0) {
    static int watching = 0;
    const int level = ++watching;
    const auto watched = qScopeGuard([] { --watching; });
    QWidget* actedOn = QApplication::activeModalWidget();
    int count = 0;
    QObject watch;
    Action look = [&] {
        QTimer::singleShot(10, &watch, look);  // before all else, which may wait for another window
        QWidget* window = QApplication::activeModalWidget();
        if (watching != level || window == nullptr || !window->isVisible() || window == actedOn) return;
        QWidget* const before = std::exchange(actedOn, window);
        window->activateWindow();  // which some window managers leave out where windows change quickly
        await([=] { return window->isActiveWindow(); });
        try {
            if (++count > 10) throw std::runtime_error{"This dialog stays open."};
            act(*window);
        } catch (const std::exception& failure) {  // the toolkit lets none through
            ADD_FAILURE() << failure.what();
            dynamic_cast<QDialog&>(*window).reject();
        }
        actedOn = before;
    };
    QTimer::singleShot(10, &watch, look);
    action();
    QCoreApplication::processEvents();
    (void)QTest::qWaitFor([&] { return count >= least; });
    return count;
}

// Expects that `action` brings up one modal window, soon or late, and closes it if `act` has not done so.
inline void withOne(const Action& action, const std::function<void(QWidget&)>& act = &QWidget::close,
                    const std::source_location& where = std::source_location::current()) {
    const auto actAndClose = [&](QWidget& window) { act(window), window.close(); };
    EXPECT_EQ(withModals(action, actAndClose, 1), 1) << where.file_name() << ":" << where.line();
}

// The messages that `action` brings up, as "icon|text" under the usual title. File dialogs take the next text
// of `typed`, questions the next keys or else Enter, which means No; all the rest is closed by Escape.
inline QString messagesOf(const Action& action, const std::vector<std::string>& typed = {}) {
    const QStringList icons{"none", "information", "warning", "critical", "question"};
    QStringList seen;
    auto next = typed.begin();
    withModals(action, [&](QWidget& window) {
        QString keys = "Escape";
        if (const auto* box = qobject_cast<QMessageBox*>(&window)) {
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            const bool usual = box->windowTitle() == "Palace Lantern Message";
            seen += (usual ? "" : box->windowTitle() + "|") + icons[box->icon()] + "|" + box->text();
            if (box->icon() == QMessageBox::Question)
                keys = next == typed.end() ? "Return" : (next++)->c_str();
        } else if (auto* name = find<QLineEdit>("fileNameEdit"); next != typed.end()) {
            await([name] { return name->hasFocus(); });
            name->setText(QString::fromStdString(*next++));
            keys = "Return";
        } else if (!typed.empty()) {
            seen += name->text().toStdString() == typed.back() ? "stays" : "loses the name";
        }
        press(keys, keys == "Escape" ? &window : nullptr);
    });
    return seen.join("|");
}

// A folder of a test's own, gone with all that is in it at the end. Its name has a dot, as a person's may.
struct TemporaryFolder : testing::Test {
    std::string in(const std::string& name) const { return folder_ + "/" + name; }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream{in(name), std::ios::binary} << bytes;
    }
    std::string read(const std::string& name) const {
        return {std::istreambuf_iterator<char>{std::ifstream{in(name), std::ios::binary}.rdbuf()}, {}};
    }
    QStringList names() const { return QDir{dir_.path()}.entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    const QTemporaryDir dir_{QDir::tempPath() + "/palace.lantern-XXXXXX"};
    const std::string folder_ = dir_.path().toStdString();
};

inline const QStringList dateAndTime{"cmbDate", "cmbMonth", "cmbYear", "cmbHour", "cmbMinute"};

// Enters a birth such as "JOHN SMITH 5 March 1985 13 1" into the input form.
inline void enter(const QString& birth) {
    find<QLineEdit>("txtName")->setText(birth.section(' ', 0, -6));
    for (int i = 0; i < 5; ++i)
        find<QComboBox>(dateAndTime[i])->setCurrentText(birth.section(' ', i - 5, i - 5));
}

// What the input form shows, in the same way.
inline QString entered() {
    QStringList texts{find<QLineEdit>("txtName")->text()};
    for (const QString& list : dateAndTime) texts += find<QComboBox>(list)->currentText();
    return texts.join(" ");
}

// The whole program, as it has just been started.
struct Program : TemporaryFolder {
    Program() {
        application_.start();
        EXPECT_TRUE(QTest::qWaitForWindowActive(find("frmMain")));
    }

    // Casts the chart worked out by hand, or another one.
    static void showChart(const QString& birth = "JOHN SMITH 5 March 1985 13 1") {
        enter(birth);
        EXPECT_EQ(messagesOf([] { choose("frmMain", "mnuGenerateChart"); }), "");
        await([] { return find("cmdShowAll")->hasFocus(); });
        // Window managers take their time to maximise; those that never do are not waited for.
        const QRect room = find("frmMdi")->screen()->availableGeometry();
        (void)QTest::qWaitFor([=] { return find("frmMdi")->frameGeometry() == room; }, 500);
    }
    // The messages that come with it.
    QString savePicture(const std::string& name) const {
        return messagesOf([] { choose("frmDisplay", "mnuSavejpg"); }, {in(name)});
    }

    Application application_;
};
