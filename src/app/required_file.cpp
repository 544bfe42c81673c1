#include "app/required_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "style/message.h"

QString converterPath() {
    return QDir{QCoreApplication::applicationDirPath()}.filePath(QStringLiteral("Bmp2Jpeg.dll"));
}

bool requiredFileIsPresent() {
    if (QFileInfo::exists(converterPath())) return true;
    showMessage(nullptr, QMessageBox::Critical,
                QStringLiteral("Required File Is Missing\nPlease Reinstall Software"));
    return false;
}
