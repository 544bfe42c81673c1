// A folder of a test's own, gone with all that is in it at the end.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

using Names = std::set<std::string>;

class TemporaryFolder : public testing::Test {
  protected:
    TemporaryFolder() { EXPECT_NE(::mkdtemp(folder_.data()), nullptr); }
    ~TemporaryFolder() override { std::filesystem::remove_all(folder_); }

    static void write(const std::string& path, const std::string& bytes) { std::ofstream{path} << bytes; }
    static std::string read(const std::string& path) {
        return {std::istreambuf_iterator<char>{std::ifstream{path}.rdbuf()}, {}};
    }

    // All that is in the folder.
    Names names() const {
        Names found;
        for (const auto& entry : std::filesystem::directory_iterator{folder_})
            found.insert(entry.path().filename());
        return found;
    }

    std::string folder_ = testing::TempDir() + "palace-lantern-XXXXXX";
};
