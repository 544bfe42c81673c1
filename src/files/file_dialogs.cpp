#include "files/file_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QScreen>

#include "style/controls.h"
#include "style/message.h"
#include "style/platform.h"

namespace {

constexpr qsizetype longestName = 255;  // bytes; file systems hold no longer ones

class FileDialog : public QFileDialog {
  public:
    FileDialog(QWidget* parent, AcceptMode mode, const char* title, const char* filter)
        : QFileDialog(parent, latin(title), QString{}, latin(filter)) {
        setAcceptMode(mode);
    }

    // Returns the chosen path, or an empty text where the dialog was cancelled.
    QString ask() {
        const QSize room = parentWidget()->screen()->availableSize() - QSize{40, 60};
        resize(sizeHint().expandedTo(QSize{720, 460}).boundedTo(room));
        const bool chosen = exec() == Accepted;
        // Some window managers of X11 give the focus to nobody where two windows close at once. Under Wayland
        // the compositor gives it back, and asking for it crashes while the parent has no surface.
        if (placesAreKnown()) parentWidget()->activateWindow();
        return chosen ? path_ : QString{};
    }

  protected:
    // The path that will be used, made of the one that was typed, which is not a folder's.
    virtual QString completed(const QString& path) const = 0;

    // Why the file can't be used; empty where it can.
    virtual QString obstacle(const QFileInfo& file) const = 0;

    // Whether the file may be replaced by another.
    virtual bool mayReplace(const QFileInfo&) { return true; }

    // Replaces the check of QFileDialog. Qt 6.8 still: it ends a name at a quotation mark, shows a name as
    // markup, and says nothing where a name is too long.
    void accept() override {
        const auto* box = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const bool quoted = box != nullptr && box->text().contains(QLatin1Char('"'));
        const QString typed = quoted ? directory().absoluteFilePath(box->text()) : selectedFiles().value(0);
        if (QFileInfo{typed}.isDir()) return QFileDialog::accept();  // goes there
        path_ = completed(typed);
        const QFileInfo file{path_};
        const QString told = obstacle(file);
        if (!told.isEmpty()) return showMessage(this, QMessageBox::Critical, told);
        if (mayReplace(file)) QDialog::accept();
    }

  private:
    QString path_;
};

// A name typed without an extension gets the default one.
QString withExtension(const QString& path, const char* extension) {
    const bool has = QFileInfo{path}.fileName().contains(QLatin1Char('.'));
    return has ? path : path + QLatin1Char('.') + latin(extension);
}

QString obstacleToNewFile(const QFileInfo& file) {
    const QFileInfo folder{file.absolutePath()};
    if (!folder.isDir()) return QStringLiteral("The folder does not exist.");
    if (file.isDir()) return QStringLiteral("This is the name of a folder.");
    if (file.fileName().toUtf8().size() > longestName) return QStringLiteral("The name is too long.");
    if (!file.exists() && !folder.isWritable()) return QStringLiteral("Nothing can be saved in this folder.");
    return {};
}

class OpenDialog : public FileDialog {
  public:
    explicit OpenDialog(QWidget* parent)
        : FileDialog(parent, AcceptOpen, "Select the source file", "Palace Lantern (*.plf)") {
        setFileMode(ExistingFile);
    }

  protected:
    QString completed(const QString& path) const override {
        return QFileInfo::exists(path) ? path : path + QStringLiteral(".plf");
    }
    QString obstacle(const QFileInfo& file) const override {
        return file.exists() ? QString{} : QStringLiteral("There is no such file.");
    }
};

class SaveDialog : public FileDialog {
  public:
    explicit SaveDialog(QWidget* parent)
        : FileDialog(parent, AcceptSave, "Palace Lantern", "Palace Lantern (*.plf)") {}

  protected:
    // Intentional: the default extension is "txt".
    QString completed(const QString& path) const override { return withExtension(path, "txt"); }
    QString obstacle(const QFileInfo& file) const override {
        const bool closed = file.exists() && !file.isWritable();
        return closed ? QStringLiteral("This file is read-only.") : obstacleToNewFile(file);
    }
    bool mayReplace(const QFileInfo& file) override {
        return !file.exists() ||
               askWhether(
                   this,
                   QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(file.fileName()));
    }
};

class PictureDialog : public FileDialog {
  public:
    explicit PictureDialog(QWidget* parent)
        : FileDialog(parent, AcceptSave, "Save as JPG", "JPEG Image (*.jpg)") {
        named(this, "CommonDialog1");
    }

  protected:
    QString completed(const QString& path) const override { return withExtension(path, "jpg"); }
    QString obstacle(const QFileInfo& file) const override {
        const bool closed = file.exists() && !QFileInfo{file.absolutePath()}.isWritable();
        return closed ? QStringLiteral("Nothing can be saved in this folder.") : obstacleToNewFile(file);
    }
};

}  // namespace

QString askForChartFile(QWidget* parent) { return OpenDialog{parent}.ask(); }
QString askWhereToSaveChart(QWidget* parent) { return SaveDialog{parent}.ask(); }
QString askForPictureName(QWidget* parent) { return PictureDialog{parent}.ask(); }
