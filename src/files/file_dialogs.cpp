#include "files/file_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryFile>
#include <climits>

#include "files/picture_name.h"
#include "style/controls.h"
#include "style/message.h"
#include "style/platform.h"

namespace {

struct Request {
    QFileDialog::AcceptMode mode;
    const char* title;
    const char* filter;
    std::string_view extension;  // added to a name that no file has (to open) or without a dot (to save)
    bool replaces = false;       // an existing file, after a question
};

constexpr auto chartFiles = "Palace Lantern (*.plf)";
constexpr Request chartToOpen{QFileDialog::AcceptOpen, "Select the source file", chartFiles, ".plf"};
// Intentional: the default extension is "txt".
constexpr Request chartToSave{QFileDialog::AcceptSave, "Palace Lantern", chartFiles, ".txt", true};
constexpr Request pictureToSave{QFileDialog::AcceptSave, "Save as JPG", "JPEG Image (*.jpg)",
                                pictureExtension};

// Why the file can't be used; empty where it can.
QString obstacleTo(const Request& request, const QFileInfo& file) {
    if (request.mode == QFileDialog::AcceptOpen)
        return file.exists() ? QString{} : QStringLiteral("There is no such file.");
    if (request.replaces && file.isFile())
        return file.isWritable() ? QString{} : QStringLiteral("This file is read-only.");
    const QFileInfo folder{file.absolutePath()};
    if (!folder.isDir()) return QStringLiteral("The folder does not exist.");
    if (file.isDir()) return QStringLiteral("This is the name of a folder.");
    if (lengthInFiles(file.fileName()) > qsizetype{longestFileName} ||
        lengthInFiles(file.absoluteFilePath()) >= PATH_MAX)
        return QStringLiteral("The name is too long.");
    if (isWindows() && file.fileName().contains(QRegularExpression{QStringLiteral("[<>:\"|?*]")}))
        return QStringLiteral("A file name can't contain any of these characters:  < > : \" | ? *");
    // Tested by creating a file, because on Windows QFileInfo does not know all permissions.
    return QTemporaryFile{folder.filePath() + QStringLiteral("/XXXXXX")}.open()
               ? QString{}
               : QStringLiteral("Nothing can be saved in this folder.");
}

class FileDialog : public QFileDialog {
  public:
    FileDialog(const Request& request, QWidget* parent)
        : QFileDialog(parent, latin(request.title), QString{}, latin(request.filter)), request_(request) {
        setAcceptMode(request.mode);
        if (request.mode == AcceptOpen) setFileMode(ExistingFile);
    }

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
        const QFileInfo given{typed};
        if (given.isDir()) return QFileDialog::accept();  // shows the folder
        const bool opens = request_.mode == AcceptOpen;
        const bool complete = opens ? given.exists() : given.fileName().contains(QLatin1Char('.'));
        path_ = complete ? typed : typed + latin(request_.extension);
        const QFileInfo file{path_};
        const QString obstacle = obstacleTo(request_, file);
        if (!obstacle.isEmpty()) return showMessage(this, QMessageBox::Critical, obstacle);
        const QString question = QStringLiteral("%1 already exists.\nDo you want to replace it?");
        const bool asks = request_.replaces && file.exists();
        if (!asks || askWhether(this, question.arg(file.fileName()))) QDialog::accept();
    }

  private:
    const Request& request_;
    QString path_;
};

}  // namespace

QString askForChartFile(QWidget* parent) { return FileDialog{chartToOpen, parent}.ask(); }

QString askWhereToSaveChart(QWidget* parent) { return FileDialog{chartToSave, parent}.ask(); }

QString askForPictureName(QWidget* parent) {
    FileDialog dialog{pictureToSave, parent};
    return named(&dialog, "CommonDialog1")->ask();
}
