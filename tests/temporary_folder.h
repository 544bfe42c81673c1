// A folder of a test's own, gone with all that is in it at the end. Its name has a dot, as a person's may.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>

using Names = std::set<std::string>;

class TemporaryFolder : public testing::Test {
  protected:
    TemporaryFolder() { EXPECT_NE(::mkdtemp(folder_.data()), nullptr); }
    ~TemporaryFolder() override { std::filesystem::remove_all(folder_); }

    // The path of something in the folder.
    std::string in(const std::string& name) const { return folder_ + "/" + name; }

    void write(const std::string& name, const std::string& bytes) const { std::ofstream{in(name)} << bytes; }
    std::string read(const std::string& name) const {
        return {std::istreambuf_iterator<char>{std::ifstream{in(name)}.rdbuf()}, {}};
    }

    // All that is in the folder.
    Names names() const {
        Names found;
        for (const auto& entry : std::filesystem::directory_iterator{folder_})
            found.insert(entry.path().filename());
        return found;
    }

    // Runs the action while the folder takes no new files, and without the rights that root has to
    // everything.
    void inClosedFolder(const std::function<void()>& action) const {
        const uid_t own = ::getuid(), other = own == 0 ? 65534 : own;
        EXPECT_EQ(::chown(folder_.c_str(), other, ::getgid()) | ::chmod(folder_.c_str(), 0500), 0);
        EXPECT_EQ(::setresuid(other, other, own), 0);
        action();
        EXPECT_EQ(::setresuid(own, own, own) | ::chmod(folder_.c_str(), 0700), 0);
    }

    std::string folder_ = testing::TempDir() + "palace.lantern-XXXXXX";
};
