#include "files/file_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryFile>

#include "files/picture_name.h"
#include "style/controls.h"
#include "style/message.h"
#include "style/platform.h"

namespace {

// What a dialog asks for.
struct Request {
    QFileDialog::AcceptMode mode;
    const char* title;
    const char* filter;
    QString (*completed)(const QString& path);   // the path to use for the one that was typed
    QString (*obstacle)(const QFileInfo& file);  // why the file can't be used; empty where it can
    bool asksBeforeReplacing = false;
};

class FileDialog : public QFileDialog {
  public:
    FileDialog(const Request& request, QWidget* parent)
        : QFileDialog(parent, latin(request.title), QString{}, latin(request.filter)), request_(request) {
        setAcceptMode(request.mode);
    }

    // Returns the chosen path, or an empty text where the dialog was cancelled.
    QString ask() {
        const QSize room = parentWidget()->screen()->availableSize() - QSize{40, 60};
        resize(sizeHint().expandedTo(QSize{720, 460}).boundedTo(room));
        const bool chosen = exec() == Accepted;
        // Some window managers of X11 give the focus to nobody where two windows close at once. Qt 6.8 still:
        // under Wayland, activating a window while a closed dialog still exists can crash.
        if (placesAreKnown()) parentWidget()->activateWindow();
        return chosen ? path_ : QString{};
    }

  protected:
    // Replaces the check of QFileDialog. Qt 6.8 still: it ends a name at a quotation mark, shows a name as
    // markup, and says nothing where a name is too long.
    void accept() override {
        const auto* box = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const bool quoted = box != nullptr && box->text().contains(QLatin1Char('"'));
        const QString typed = quoted ? directory().absoluteFilePath(box->text()) : selectedFiles().value(0);
        if (QFileInfo{typed}.isDir()) return QFileDialog::accept();  // goes there
        path_ = request_.completed(typed);
        const QFileInfo file{path_};
        const QString obstacle = request_.obstacle(file);
        if (!obstacle.isEmpty()) return showMessage(this, QMessageBox::Critical, obstacle);
        const QString question = QStringLiteral("%1 already exists.\nDo you want to replace it?");
        const bool asks = request_.asksBeforeReplacing && file.exists();
        if (!asks || askWhether(this, question.arg(file.fileName()))) QDialog::accept();
    }

  private:
    const Request& request_;
    QString path_;
};

// The extension is for a name without any dot.
QString withExtension(const QString& path, const QString& extension) {
    return QFileInfo{path}.fileName().contains(QLatin1Char('.')) ? path : path + extension;
}

QString obstacleToNewFile(const QFileInfo& file) {
    const QFileInfo folder{file.absolutePath()};
    if (!folder.isDir()) return QStringLiteral("The folder does not exist.");
    if (file.isDir()) return QStringLiteral("This is the name of a folder.");
    const auto length = static_cast<std::size_t>(file.fileName().toUtf8().size());
    if (length > longestFileName) return QStringLiteral("The name is too long.");
    if (hasForbiddenCharacter(file.fileName()))
        return QStringLiteral("A file name can't contain any of these characters:  < > : \" | ? *");
    // Tried out: what QFileInfo tells of permissions is not enough on Windows.
    return QTemporaryFile{folder.filePath() + QStringLiteral("/XXXXXX")}.open()
               ? QString{}
               : QStringLiteral("Nothing can be saved in this folder.");
}

const Request chartToOpen{
    QFileDialog::AcceptOpen, "Select the source file", "Palace Lantern (*.plf)",
    [](const QString& path) { return QFileInfo::exists(path) ? path : path + QStringLiteral(".plf"); },
    [](const QFileInfo& file) {
        return file.exists() ? QString{} : QStringLiteral("There is no such file.");
    }};

// Intentional: the default extension is "txt".
const Request chartToSave{QFileDialog::AcceptSave,
                          "Palace Lantern",
                          "Palace Lantern (*.plf)",
                          [](const QString& path) { return withExtension(path, QStringLiteral(".txt")); },
                          [](const QFileInfo& file) {
                              if (!file.isFile()) return obstacleToNewFile(file);
                              return file.isWritable() ? QString{}
                                                       : QStringLiteral("This file is read-only.");
                          },
                          true};

const Request pictureToSave{QFileDialog::AcceptSave, "Save as JPG", "JPEG Image (*.jpg)",
                            [](const QString& path) { return withExtension(path, latin(pictureExtension)); },
                            obstacleToNewFile};

}  // namespace

QString askForChartFile(QWidget* parent) {
    FileDialog dialog{chartToOpen, parent};
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.ask();
}

QString askWhereToSaveChart(QWidget* parent) { return FileDialog{chartToSave, parent}.ask(); }

QString askForPictureName(QWidget* parent) {
    FileDialog dialog{pictureToSave, parent};
    return named(&dialog, "CommonDialog1")->ask();
}
