// A folder of a test's own, gone with all that is in it at the end.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>

using Names = std::set<std::string>;

class TemporaryFolder : public testing::Test {
  protected:
    TemporaryFolder() { EXPECT_TRUE(std::filesystem::create_directory(folder_)); }
    ~TemporaryFolder() override { std::filesystem::remove_all(folder_); }

    static void write(const std::string& path, const std::string& bytes) {
        std::ofstream{path, std::ios::binary} << bytes;
    }
    static std::string read(const std::string& path) {
        return {std::istreambuf_iterator<char>{std::ifstream{path, std::ios::binary}.rdbuf()}, {}};
    }

    // All that is in the folder.
    Names names() const {
        Names found;
        for (const auto& entry : std::filesystem::directory_iterator{folder_})
            found.insert(entry.path().filename().string());
        return found;
    }

    // With slashes, as the toolkit writes paths on every system.
    std::string folder_ =
        std::filesystem::path{testing::TempDir() + "palace-lantern-" + std::to_string(std::random_device{}())}
            .generic_string();
};
