#include "files/file_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QScreen>

#include "style/controls.h"
#include "style/message.h"

namespace {

constexpr qsizetype longestName = 255;  // bytes; file systems hold no longer ones

class FileDialog : public QFileDialog {
  public:
    FileDialog(QWidget* parent, AcceptMode mode, const char* title, const char* filter)
        : QFileDialog(parent, latin(title), QString{}, latin(filter)) {
        setAcceptMode(mode);
    }

    QString ask() {
        const QSize room = screen()->availableSize() - QSize{40, 60};
        resize(sizeHint().expandedTo(QSize{720, 460}).boundedTo(room));
        const bool chosen = exec() == Accepted;
        // Some window managers give the focus to nobody where two windows close at once.
        if (parentWidget() != nullptr) parentWidget()->activateWindow();
        return chosen ? path_ : QString{};
    }

  protected:
    // The name as it will be used, from the name as it was typed, which no folder has.
    virtual QString completed(const QString& path) const = 0;

    // Why the file can't be used, or nothing where it can.
    virtual QString obstacle(const QFileInfo& file) const = 0;

    // Whether the file may be replaced by another.
    virtual bool mayReplace(const QFileInfo&) { return true; }

    // In place of the dialog's own check, which takes the suffix from the whole path, a quotation mark for
    // the end of a name, a name for markup, and is silent where a name is too long (QFileDialog of Qt 6.4).
    void accept() override {
        const auto* box = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const bool quoted = box->text().contains(QLatin1Char('"'));
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
    if (!folder.isDir()) return QFileDialog::tr("The folder does not exist.");
    if (file.isDir()) return QFileDialog::tr("This is the name of a folder.");
    if (file.fileName().toUtf8().size() > longestName) return QFileDialog::tr("The name is too long.");
    if (!file.exists() && !folder.isWritable())
        return QFileDialog::tr("Nothing can be saved in this folder.");
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
        return file.exists() ? QString{} : tr("There is no such file.");
    }
};

class SaveDialog : public FileDialog {
  public:
    explicit SaveDialog(QWidget* parent)
        : FileDialog(parent, AcceptSave, "Palace Lantern", "Palace Lantern (*.plf)") {}

  protected:
    // The extension "txt" is kept on purpose.
    QString completed(const QString& path) const override { return withExtension(path, "txt"); }
    QString obstacle(const QFileInfo& file) const override {
        const bool closed = file.exists() && !file.isWritable();
        return closed ? tr("This file is read-only.") : obstacleToNewFile(file);
    }
    bool mayReplace(const QFileInfo& file) override {
        return !file.exists() ||
               askWhether(this, tr("%1 already exists.\nDo you want to replace it?").arg(file.fileName()));
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
        return closed ? tr("Nothing can be saved in this folder.") : obstacleToNewFile(file);
    }
};

}  // namespace

QString askForChartFile(QWidget* parent) { return OpenDialog{parent}.ask(); }
QString askWhereToSaveChart(QWidget* parent) { return SaveDialog{parent}.ask(); }
QString askForPictureName(QWidget* parent) { return PictureDialog{parent}.ask(); }
