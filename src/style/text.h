// Texts of the core as a QString.
#pragma once

#include <QString>
#include <string_view>

inline QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// With the line breaks that labels and text documents know, in place of CR LF.
inline QString latinLines(std::string_view text) {
    return latin(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}
