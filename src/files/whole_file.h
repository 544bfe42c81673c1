// A file that appears under its name whole or not at all. It is written without a name where the file system
// can do that, so that even a program that is killed leaves nothing behind.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "files/litter_guard.h"

class WholeFile {
  public:
    // Prepares a new file for the path. The file that is there now, if any, stays until commit().
    explicit WholeFile(const std::filesystem::path& path);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    // Appends bytes. Returns false where that failed, now or earlier; nothing can be committed then.
    bool write(std::string_view bytes);

    // Puts the file in place under the path. Returns whether it is there; if not, what was there before still
    // is.
    bool commit();

  private:
    bool openNameless();
    bool openNamed();
    bool nameTemporarily();
    void chooseTemporaryName();

    std::filesystem::path path_;
    std::optional<LitterGuard> guard_;  // over the temporary name
    std::string temporary_;             // the temporary name, or empty while the file has none
    int descriptor_ = -1;
    bool sound_ = false;
};
