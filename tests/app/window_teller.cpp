// Loaded into the built program by the tests of its start: it writes the name of each window that appears to
// the standard output, or the text of a message, which it closes.

#include <QApplication>
#include <QGenericPlugin>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>

class WindowTeller : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "window_teller.json")
  public:
    QObject* create(const QString&, const QString&) override {
        auto* timer = new QTimer{this};
        connect(timer, &QTimer::timeout, this, &WindowTeller::look);
        timer->start(10);
        return timer;
    }

  private:
    static void look() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || window->property("told").toBool()) continue;
            window->setProperty("told", true);
            const auto* box = qobject_cast<QMessageBox*>(window);
            QByteArray words = (box == nullptr ? window->objectName() : box->text()).toUtf8();
            if (box != nullptr)
                words += box->icon() == QMessageBox::Information ? "|information" : "|critical";
            std::printf("%s\n", words.replace('\n', '/').constData());
            std::fflush(stdout);
            if (box != nullptr) window->close();
        }
    }
};

#include "window_teller.moc"
