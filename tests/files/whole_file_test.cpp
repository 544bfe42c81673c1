// Files that appear whole or not at all.

#include "files/whole_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "files/chart_file.h"
#include "temporary_folder.h"

namespace {

const ChartInput input{u"JOHN SMITH", 1985, "March", 5};

class WholeFiles : public TemporaryFolder {
  protected:
    // Writes on a disk that is full after so many bytes.
    bool writeWithRoomFor(rlim_t bytes) const {
        rlimit before{};
        ::getrlimit(RLIMIT_FSIZE, &before);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const bool written = writeChartFile(path_, input);
        ::setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
        return written;
    }

    std::string path_ = folder_ + "/chart.plf";
};

TEST_F(WholeFiles, LeaveTheOldFileAloneWhereverTheDiskIsFull) {
    const std::string whole = chartFileBytes(input);
    for (std::size_t room = 0; room < whole.size(); ++room) {
        EXPECT_FALSE(writeWithRoomFor(room)) << room;
        EXPECT_EQ(names(), Names{}) << room;
        write(path_, "old");
        EXPECT_FALSE(writeWithRoomFor(room)) << room;
        EXPECT_EQ(read(path_), "old") << room;
        EXPECT_EQ(names(), Names{"chart.plf"}) << room;
        std::filesystem::remove(path_);
    }
    EXPECT_TRUE(writeWithRoomFor(whole.size()));
    EXPECT_EQ(read(path_), whole);
}

TEST_F(WholeFiles, KeepWhatTheNameStandsFor) {
    const mode_t mask = ::umask(027);
    EXPECT_TRUE(writeChartFile(path_, input));
    ::umask(mask);
    EXPECT_EQ(std::filesystem::status(path_).permissions(), std::filesystem::perms{0640});
    std::filesystem::permissions(path_, std::filesystem::perms{0604});
    std::filesystem::create_symlink("chart.plf", folder_ + "/link");
    EXPECT_TRUE(writeChartFile(folder_ + "/link", {u"B", 1999, "May", 2}));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ + "/link"));
    EXPECT_EQ(readChartFile(path_).name, "B");
    EXPECT_EQ(std::filesystem::status(path_).permissions(), std::filesystem::perms{0604});
    EXPECT_FALSE(writeChartFile(folder_ + "/none/chart.plf", input));
    EXPECT_FALSE(writeChartFile(folder_, input));
    EXPECT_EQ(names(), (Names{"chart.plf", "link"}));
}

}  // namespace
