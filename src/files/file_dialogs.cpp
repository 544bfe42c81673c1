#include "files/file_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>

#include "style/message.h"

namespace {

// What a file dialog is set to. The filter has the form "description|pattern". The filter index counts from
// 1; one that points past the last filter means the first, as with any list.
struct DialogSetting {
    const char* title;
    const char* filter;
    int filterIndex;
    const char* defaultExtension;
};

constexpr DialogSetting openSetting{"Select the source file", "Palace Lantern (*.plf)|*.plf", 2, "plf"};
// The extension "txt" is kept on purpose: a name typed without one gets it.
constexpr DialogSetting saveSetting{"Palace Lantern", "Palace Lantern | *.plf", 2, "txt"};
// The naming rule adds ".jpg" itself, so the dialog does not.
constexpr DialogSetting pictureSetting{"Save as JPG", "JPEG Image (*.jpg)|*.jpg", 1, ""};

// "description|pattern" in the toolkit's own form, "description (pattern)".
QString toolkitFilter(const char* filter) {
    const QStringList parts = QString::fromLatin1(filter).split(QLatin1Char('|'));
    const QString description = parts.at(0).trimmed();
    const QString pattern = QStringLiteral("(%1)").arg(parts.at(1).trimmed());
    return description.endsWith(pattern) ? description : description + QLatin1Char(' ') + pattern;
}

void apply(const DialogSetting& setting, QFileDialog& dialog) {
    const QStringList filters{toolkitFilter(setting.filter)};
    dialog.setWindowTitle(QString::fromLatin1(setting.title));
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.at(setting.filterIndex <= filters.size() ? setting.filterIndex - 1 : 0));
    dialog.setDefaultSuffix(QString::fromLatin1(setting.defaultExtension));
}

QString chosen(QFileDialog& dialog) {
    const QSize room = dialog.screen()->availableSize() - QSize{40, 60};
    dialog.resize(dialog.sizeHint().expandedTo(QSize{720, 460}).boundedTo(room));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst();
}

// Why a file can't be written under the path, or nothing where it can.
QString obstacleTo(const QString& path) {
    const QFileInfo file{path};
    if (!QFileInfo{file.absolutePath()}.isDir()) return QFileDialog::tr("The folder does not exist.");
    if (file.isDir()) return QFileDialog::tr("This is the name of a folder.");
    if (file.exists() && !file.isWritable()) return QFileDialog::tr("This file is read-only.");
    return {};
}

}  // namespace

QString askForChartFile(QWidget* parent) {
    QFileDialog dialog{parent};
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    apply(openSetting, dialog);
    return chosen(dialog);
}

QString askWhereToSaveChart(QWidget* parent) {
    QString folder;
    for (;;) {
        QFileDialog dialog{parent};
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        apply(saveSetting, dialog);
        if (!folder.isEmpty()) dialog.setDirectory(folder);
        QString path = chosen(dialog);
        const QString obstacle = path.isEmpty() ? QString{} : obstacleTo(path);
        if (obstacle.isEmpty()) return path;
        folder = dialog.directory().absolutePath();
        showMessage(parent, QMessageBox::Information, obstacle);
    }
}

QString askForPictureName(QWidget* parent) {
    QFileDialog dialog{parent};
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    apply(pictureSetting, dialog);
    return chosen(dialog);
}
