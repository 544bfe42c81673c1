// Tests the picture converter as the program meets it: a module loaded at run time.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <turbojpeg.h>

#include <cmath>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int kWidth = 61, kHeight = 37;  // odd, so that rows have padding
constexpr int kSamples = 3 * kWidth * kHeight;
const std::vector<std::uint32_t> kInks{0xFFFFFF, 0xC80000, 0, 0x005AC8, 0x008200, 0xFFD200};

struct Kind {
    unsigned bits;
    int height = kHeight;  // negative: stored from the top down
    unsigned infoSize = 40;
    std::vector<std::uint32_t> masks = {};
};

// Thin strokes of pure colours on white, like lettering, without symmetry in either direction.
std::size_t inkAt(int x, int y) {
    const int stroke = (x * 7 + y * 3) / 9 % 11;
    return stroke < 5 && y % 9 > 1 ? static_cast<std::size_t>(stroke + y / 9) % 5 + 1 : 0;
}

std::string little(std::uint32_t value, unsigned count = 4) {
    return std::string(reinterpret_cast<const char*>(&value), count);
}

std::string makeBmp(const Kind& kind) {
    const bool indexed = kind.bits == 8;
    std::string tail;
    for (const auto word : indexed ? kInks : kind.masks) {
        tail += little(word);
    }
    tail.resize(std::max<std::size_t>(tail.size(), kind.infoSize - 40));
    const auto start = static_cast<unsigned>(54 + tail.size()), height = static_cast<unsigned>(kind.height);
    std::string bytes = "BM";
    for (const unsigned word : {0U, 0U, start, kind.infoSize, 0U + kWidth, height, kind.bits << 16 | 1,
                                kind.masks.empty() ? 0U : 3U, 0U, 0U, 0U, indexed ? 6U : 0U, 0U}) {
        bytes += little(word);
    }
    bytes += tail;
    for (int row = 0; row < std::abs(kind.height); ++row) {
        for (int x = 0; x < kWidth; ++x) {
            const auto ink = inkAt(x, kind.height < 0 ? row : kind.height - 1 - row);
            const bool redFirst = !kind.masks.empty() && kind.masks[0] == 0xFF;
            const auto colour = redFirst ? __builtin_bswap32(kInks[ink]) >> 8 : kInks[ink];
            bytes += little(indexed ? static_cast<unsigned>(ink) : colour, kind.bits / 8);
        }
        bytes.append((4 - kWidth * kind.bits / 8 % 4) % 4, '\0');
    }
    return bytes;
}

class Bmp2Jpeg : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_NE(module_, nullptr) << dlerror();
        call_ = reinterpret_cast<decltype(call_)>(dlsym(module_, "BmpToJpeg"));
        ASSERT_NE(call_, nullptr);
        folder_ = testing::TempDir() + "bmp2jpegXXXXXX";
        ASSERT_NE(mkdtemp(folder_.data()), nullptr);
        bmp_ = folder_ + "/in.bmp", jpeg_ = folder_ + "/out.jpg";
    }
    void TearDown() override { fs::remove_all(folder_); }

    static void write(const std::string& path, const std::string& bytes) { std::ofstream(path) << bytes; }
    static std::string read(const std::string& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    int convert(const std::string& bmp, int quality = 100) {
        write(bmp_, bmp);
        return call_(bmp_.c_str(), jpeg_.c_str(), quality);
    }
    // How near the JPEG comes to the picture, in decibels.
    double likeness() const {
        const std::string bytes = read(jpeg_);
        const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
        std::vector<unsigned char> pixels(kSamples);
        int width = 0, height = 0, sampling = -1, space = -1;
        const tjhandle handle = tjInitDecompress();
        EXPECT_EQ(tjDecompressHeader3(handle, data, bytes.size(), &width, &height, &sampling, &space), 0);
        EXPECT_TRUE(width == kWidth && height == kHeight && sampling == TJSAMP_444);
        EXPECT_EQ(tjDecompress2(handle, data, bytes.size(), pixels.data(), kWidth, 0, kHeight, TJPF_BGR, 0),
                  0);
        tjDestroy(handle);
        double error = 0;
        for (int i = 0; i < kSamples; ++i) {
            const auto ink = kInks[inkAt(i / 3 % kWidth, i / 3 / kWidth)] >> i % 3 * 8 & 255;
            error += std::pow(static_cast<double>(ink) - pixels[static_cast<std::size_t>(i)], 2);
        }
        return 10 * std::log10(255 * 255 * kSamples / error);
    }
    auto fileCount() const { return std::distance(fs::directory_iterator(folder_), {}); }

    void* module_ = dlopen(BMP2JPEG_PATH, RTLD_NOW);
    int (*call_)(const char*, const char*, int) = nullptr;
    std::string folder_, bmp_, jpeg_;
};

TEST_F(Bmp2Jpeg, KeepsThePictureOfEveryKindOfBmp) {
    for (const Kind& kind :
         {Kind{8}, Kind{24}, Kind{32}, Kind{8, -37}, Kind{24, -37}, Kind{24, 37, 124},
          Kind{32, 37, 40, {0xFF0000, 0xFF00, 0xFF}}, Kind{32, -37, 108, {0xFF, 0xFF00, 0xFF0000}}}) {
        EXPECT_EQ(convert(makeBmp(kind)), 1);
        EXPECT_GE(likeness(), 45) << kind.bits << " bits, header " << kind.infoSize << ", " << kind.height;
    }
    const std::string wholePalette = makeBmp({8}).replace(10, 4, little(1078)).replace(46, 4, little(0));
    EXPECT_EQ(convert(std::string(wholePalette).insert(78, 1000, 'x')), 1);
    EXPECT_GE(likeness(), 45);
    EXPECT_EQ(convert(makeBmp({24})), 1);
    const std::string best = read(jpeg_);
    EXPECT_EQ(convert(makeBmp({24}), 999), 1);
    EXPECT_EQ(read(jpeg_), best);
    EXPECT_EQ(convert(makeBmp({24}), -1), 1);
    EXPECT_LT(read(jpeg_).size(), best.size() / 2);
}

TEST_F(Bmp2Jpeg, RefusesDamagedFilesAndLeavesTheOldJpeg) {
    write(jpeg_, "old");
    const std::string good = makeBmp({8, 9});
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_EQ(convert(good.substr(0, length)), 0) << length;
    }
    const std::map<std::size_t, std::vector<std::uint32_t>> damages{
        {0, {0x3650}},   {10, {77, ~0U}},       {14, {12, 41, ~0U}},
        {18, {0, ~60U}}, {22, {0, 0x80000000}}, {26, {0x80000, 0x40001, 0x100001}},
        {30, {1, 3}},    {46, {0, 5}},          {good.size() - 8, {6}}};
    for (const auto& [at, values] : damages) {
        for (const std::uint32_t value : values) {
            EXPECT_EQ(convert(std::string(good).replace(at, 4, little(value))), 0) << at << ": " << value;
        }
    }
    EXPECT_EQ(
        convert(
            std::string(good).replace(10, 4, little(1254)).replace(46, 4, little(300)).insert(78, 1176, 'x')),
        0);
    EXPECT_EQ(convert(makeBmp({32, 5, 108, {0xF800, 0xFF00, 0xFF}})), 0);
    EXPECT_EQ(convert(makeBmp({32, 5, 108, {0xFF0000, 0x7E0, 0xFF}})), 0);
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    for (const std::uint32_t side : {16000U, 32767U, 60000U, 0x7FFFFFFFU}) {
        EXPECT_EQ(convert(std::string(good).replace(18, 8, little(side) + little(side))), 0) << side;
    }
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16 * 1024) << "kB taken for pixels which the files lack";
    EXPECT_EQ(read(jpeg_), "old");
    EXPECT_EQ(fileCount(), 2);
}

TEST_F(Bmp2Jpeg, SurvivesRandomDamage) {
    std::minstd_rand random(20240);
    for (const std::string& good :
         {makeBmp({8, 3}), makeBmp({24, 3}), makeBmp({32, 3, 40, {0xFF, 0xFF00, 0xFF0000}})}) {
        for (int i = 0; i < 500; ++i) {
            std::string bytes = good;
            for (int flips = i % 4; flips > 0; --flips) {
                bytes[random() % 80] ^= static_cast<char>(1U << random() % 8);
            }
            write(jpeg_, "old");
            const std::string expectedEnd = convert(bytes) == 1 ? "\xFF\xD9" : "old";
            ASSERT_TRUE(read(jpeg_).ends_with(expectedEnd));
            ASSERT_EQ(fileCount(), 2);
        }
    }
}

TEST_F(Bmp2Jpeg, RefusesPathsWhichAreNotForFiles) {
    ASSERT_EQ(convert(makeBmp({24})), 1);
    const std::string pipe = folder_ + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    alarm(20);  // in case the pipe is waited for
    for (const std::string& source : {folder_, pipe, folder_ + "/none", bmp_ + "/x", std::string()}) {
        EXPECT_EQ(call_(source.c_str(), jpeg_.c_str(), 90), 0) << source;
    }
    for (const std::string& target : {folder_, folder_ + "/", pipe, folder_ + "/none/x", bmp_ + "/x",
                                      std::string(), folder_ + "/" + std::string(256, 'n')}) {
        EXPECT_EQ(call_(bmp_.c_str(), target.c_str(), 90), 0) << target;
    }
    alarm(0);
    EXPECT_EQ(call_(nullptr, jpeg_.c_str(), 90), 0);
    EXPECT_EQ(call_(bmp_.c_str(), nullptr, 90), 0);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(fileCount(), 3);
}

TEST_F(Bmp2Jpeg, WritesAnOrdinaryFileEvenUnderTheLongestName) {
    jpeg_ = folder_ + "/" + std::string(255, 'n');
    const mode_t mask = umask(027);
    EXPECT_EQ(convert(makeBmp({24})), 1);
    umask(mask);
    EXPECT_EQ(fs::status(jpeg_).permissions(), fs::perms(0640));
    const fs::path previous = fs::current_path();
    fs::current_path(folder_);
    EXPECT_EQ(call_("in.bmp", "here.jpg", 90), 1);
    fs::current_path(previous);
    EXPECT_TRUE(fs::exists(folder_ + "/here.jpg"));
}

TEST_F(Bmp2Jpeg, KeepsTheOldJpegWhenTheDiskIsFull) {
    ASSERT_EQ(convert(makeBmp({24})), 1);
    const std::size_t size = read(jpeg_).size();
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit previous{};
    getrlimit(RLIMIT_FSIZE, &previous);
    for (const std::size_t room : {std::size_t{0}, std::size_t{1}, size / 2, size - 1, size}) {
        write(jpeg_, "old");
        const rlimit limit{room, previous.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        const int result = call_(bmp_.c_str(), jpeg_.c_str(), 100);
        setrlimit(RLIMIT_FSIZE, &previous);
        EXPECT_EQ(result, room == size) << room;
        EXPECT_EQ(read(jpeg_) == "old", room != size) << room;
        EXPECT_EQ(fileCount(), 2) << room;
    }
    std::signal(SIGXFSZ, handler);
}

}  // namespace
