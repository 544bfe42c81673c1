// Reading and writing whole files.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

// The file's bytes, at most `most` of them; nothing where it can't be read or is no regular file.
std::optional<std::string> readFile(const QString& path, std::size_t most);

// Puts the bytes in the file. Returns whether they are there; if not, what was there before still is (but for
// a file in a folder that takes no new ones, which is written in its place).
[[nodiscard]] bool writeFile(const QString& path, std::string_view bytes);
