// Reading and writing whole files.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

// The first `most` bytes of the file; nothing if it can't be read or is not a regular file.
std::optional<std::string> readFile(const QString& path, std::size_t most);

// Replaces the file's content and returns whether that succeeded. If not, the file is unchanged, unless its
// folder is read-only, so that it had to be overwritten directly.
[[nodiscard]] bool writeFile(const QString& path, std::string_view bytes);
