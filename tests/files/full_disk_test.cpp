// Files as they come to a disk that fills up on the way, told by the limit that POSIX systems set to a file.

#include <sys/resource.h>

#include <csignal>

#include "files/chart_file.h"
#include "files/saved_files.h"
#include "form_driver.h"

namespace {

class FullDisk : public TemporaryFolder {};

TEST_F(FullDisk, LeavesWhatWasThereWhereverItEnds) {
    const std::string bytes = chartFileBytes({u"JOHN SMITH", 1985, "March", 5}),
                      path = folder_ + "/chart.plf";
    write(path, "old");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    for (std::size_t room = 0; room <= bytes.size(); ++room) {
        const rlimit limit{room, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const bool saved = writeFile(QString::fromStdString(path), bytes);
        ::setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_EQ(saved, room == bytes.size()) << room;
        EXPECT_EQ(read(path), saved ? bytes : "old") << room;
        EXPECT_EQ(names(), Names{"chart.plf"}) << room;
    }
}

}  // namespace
