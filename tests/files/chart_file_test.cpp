// Chart files: what is written, and what is made of whatever stands in a file.

#include "files/chart_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

#include "files/line_shift.h"
#include "temporary_folder.h"

namespace {

class ChartFile : public TemporaryFolder {
  protected:
    std::string readBack() const {
        const auto [name, day, month, year] = readChartFile(path_);
        return name + "|" + day + "|" + month + "|" + year;
    }
    std::string readBack(const std::string& bytes) const {
        write(path_, bytes);
        return readBack();
    }

    std::string path_ = folder_ + "/chart.plf";
};

TEST_F(ChartFile, HoldsFourShiftedLines) {
    ASSERT_TRUE(writeChartFile(path_, {u"JOHN SMITH", 1985, "March", 5}));
    EXPECT_EQ(
        read(path_),
        "\x9F\xA4\x9D\xA3\x75\xA8\xA2\x9E\xA9\x9D\r\n\x8A\r\n\xA2\xB6\xC7\xB8\xBD\r\n\x86\x8E\x8D\x8A\r\n");
    EXPECT_EQ(readBack(), "JOHN SMITH|5|March|1985");
    // 170 is the last code that can be shifted, and Latin-1 ends at 255
    ASSERT_TRUE(writeChartFile(path_, {u"\u00AAX\u00AB\u00E9Y\u4E00", 2012, "December", 31}));
    EXPECT_EQ(readBack(), "\xAAXY?|31|December|2012");
}

TEST_F(ChartFile, IsReadWhateverItHolds) {
    const std::string a = EncodeLine("A"), b = EncodeLine("2"), c = EncodeLine("May"), d = EncodeLine("1999");
    const std::string whole = "A|2|May|1999";
    EXPECT_EQ(readBack(""), "|||");
    EXPECT_EQ(readBack(a), "A|||");
    EXPECT_EQ(readBack(a + "\r\n" + b + "\r\n" + c + "\r\n"), "A|2|May|");
    EXPECT_EQ(readBack(a + "\r\n" + b + "\r\n" + c + "\r\n" + d), whole);
    EXPECT_EQ(readBack(a + "\n" + b + "\n" + c + "\n" + d + "\n"), whole);
    EXPECT_EQ(readBack(a + "\r" + b + "\r" + c + "\r" + d + "\r"), whole);
    EXPECT_EQ(readBack(a + "\n" + b + "\r" + c + "\r\n" + d + "\r\nfifth\r\nsixth"), whole);
    EXPECT_EQ(readBack(a + "\r\r\n" + b + "\n\n" + d), "A||2|");
    EXPECT_EQ(readBack("A NAME 1999\r\n12\r\nMay\r\n1999"), "||\f$|") << "as an editor would write it";
    std::string everyByte, from85;
    for (int byte = 0; byte <= 255; ++byte) everyByte += static_cast<char>(byte);
    for (int code = 0; code <= 170; ++code) from85 += static_cast<char>(code);
    EXPECT_EQ(readBack(everyByte), "||" + from85 + "|");
    const std::string longName(longestLine, 'J');
    EXPECT_EQ(readBack(EncodeLine(longName) + "\n" + b), longName + "|2||");
    EXPECT_EQ(readBack(EncodeLine(longName) + a + "\n" + b), longName + "|||");
}

TEST_F(ChartFile, OpensInNoTimeHoweverLargeItIs) {
    write(path_, EncodeLine("J"));
    std::filesystem::resize_file(path_, std::uintmax_t{1} << 30);  // one line, and sparse
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(readBack(), "J|||");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds{250});
}

TEST_F(ChartFile, IsEmptyWhereThereIsNoFile) {
    EXPECT_EQ(readBack(), "|||");
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    ::alarm(10);  // in case the pipe is waited for
    EXPECT_EQ(readBack(), "|||");
    EXPECT_FALSE(writeChartFile(path_, {u"A", 1985, "March", 5}));
    ::alarm(0);
    path_ = folder_;
    EXPECT_EQ(readBack(), "|||");
}

TEST_F(ChartFile, IsKnownByTheLastThreeCharactersAsTheyStand) {
    for (const char* name : {"chart.plf", "chartplf", "plf"}) EXPECT_TRUE(hasChartFileEnding(name)) << name;
    for (const char* name : {"", "lf", "chart.PLF", "chart.txt", "chart.plf ", "chart.plf.txt"}) {
        EXPECT_FALSE(hasChartFileEnding(name)) << name;
    }
}

}  // namespace
