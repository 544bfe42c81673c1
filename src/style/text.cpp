#include "style/text.h"

QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString latinLines(std::string_view text) {
    return latin(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}
