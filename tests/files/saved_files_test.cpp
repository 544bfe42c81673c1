// Files as they come to the disk: chart files, and pictures through the converter's module.

#include "files/saved_files.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "files/picture_export.h"
#include "form_driver.h"

namespace {

// Runs the action while the folder takes no new files, and without root's rights to everything.
void inClosedFolder(const std::string& folder, const std::function<void()>& action) {
    const uid_t own = ::getuid(), other = own == 0 ? 65534 : own;
    EXPECT_EQ(::chown(folder.c_str(), other, ::getgid()) | ::chmod(folder.c_str(), 0500), 0);
    EXPECT_EQ(::setresuid(other, other, own), 0);
    action();
    EXPECT_EQ(::setresuid(own, own, own) | ::chmod(folder.c_str(), 0700), 0);
}

void limitFilesTo(rlim_t bytes) {
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

const std::string bytes = chartFileBytes({u"JOHN SMITH", 1985, "March", 5});

using SavedFile = TemporaryFolder;

TEST_F(SavedFile, LeavesWhatWasThereWhereverTheDiskIsFullAndIsNoDevice) {
    const std::string path = in("chart.plf");
    write("chart.plf", "old");
    std::signal(SIGXFSZ, SIG_IGN);
    for (std::size_t room = 0; room <= bytes.size(); ++room) {
        limitFilesTo(room);
        const bool saved = writeFile(path.c_str(), bytes);
        limitFilesTo(RLIM_INFINITY);
        EXPECT_EQ(saved, room == bytes.size()) << room;
        EXPECT_EQ(read("chart.plf"), saved ? bytes : "old") << room;
        EXPECT_EQ(names(), QStringList{"chart.plf"}) << room;
    }
    std::filesystem::permissions(path, std::filesystem::perms::all);
    inClosedFolder(folder_, [&] { EXPECT_TRUE(writeFile(path.c_str(), "new")) << "in its place"; });
    EXPECT_EQ(read("chart.plf"), "new");
    for (const char* device : {"/proc/self/mem", "/dev/zero"}) EXPECT_FALSE(readFile(device, 9)) << device;
}

using Saving = Program;

TEST_F(Saving, OfAChartAsksBeforeItOverwritesAndRefusesWhatCannotBe) {
    const std::string ours = in("chart"), big = in("<h1>BIG.plf");
    const QString question = "question|%1 already exists.\nDo you want to replace it?";
    const auto save = [&](const std::vector<std::string>& typed) {
        find("RTB")->activateWindow();
        await([] { return find("RTB")->hasFocus(); });
        return messagesOf(pressing("Ctrl+S"), typed);
    };
    const auto expectRefusal = [&](const std::string& path, const QString& why) {
        EXPECT_EQ(save({path}), why + "|stays") << path;
    };
    showChart(" JOHN SMITH  5 March 1985 13 1");
    withOne(clicking("cmdShowAll"), [&](QWidget&) {
        write("chart.txt", "old");
        expectRefusal(ours, question.arg("chart.txt"));
        EXPECT_EQ(save({ours, "Tab Return"}), question.arg("chart.txt"));
        EXPECT_EQ(read("chart.txt"), bytes);
        std::filesystem::create_directories(in("sub/name.txt"));
        for (const auto& typed : {std::vector{in("say \"hi\" now.plf")}, {big}, {in("sub"), "in sub"}})
            EXPECT_EQ(save(typed), "");
        EXPECT_EQ(names(), (QStringList{"<h1>BIG.plf", "chart.txt", "say \"hi\" now.plf", "sub"}));
        EXPECT_EQ(read("sub/in sub.txt"), bytes);
        expectRefusal(big, question.arg("<h1>BIG.plf"));
        expectRefusal(in("none/chart"), "critical|The folder does not exist.");
        expectRefusal(in("sub/name"), "critical|This is the name of a folder.");
        expectRefusal(in(std::string(256, 'n')), "critical|The name is too long.");
        std::filesystem::permissions(in("chart.txt"), std::filesystem::perms::owner_read);
        inClosedFolder(folder_, [&] {
            expectRefusal(in("chart.txt"), "critical|This file is read-only.");
            expectRefusal(in("new"), "critical|Nothing can be saved in this folder.");
        });
    });
}

TEST_F(Saving, OfAPictureOverwritesNothingAndLeavesNothingBeside) {
    showChart();
    write("chart.bmp", "the person's own");
    std::filesystem::create_symlink("/none/x", in("link.jpg"));
    const std::string longest = std::string(251, 'n') + ".jpg", counted = std::string(247, 'n') + "_001.jpg";
    for (const std::string& name : {std::string{"chart"}, {"chart.png"}, {"link"}, longest, longest})
        EXPECT_EQ(savePicture(name), "");
    const auto besideProgram = [] { return QDir{QCoreApplication::applicationDirPath()}.entryList(); };
    const QStringList before = besideProgram();
    withOne(clicking("cmdSavePicture"));
    EXPECT_EQ(besideProgram(), before) << "cancelled";
    const QString closed = "critical|Nothing can be saved in this folder.|stays";
    inClosedFolder(folder_, [&] { EXPECT_EQ(savePicture("chart.jpg"), closed); });
    savePictureAs(QPixmap{9, 9}, in("broken").c_str(), "/none.dll", nullptr);
    EXPECT_EQ(names().join(" ").toStdString(),
              "chart.bmp chart.jpg chart.png link_001.jpg " + counted + " " + longest);
    for (int counter = 1001; counter <= 1999; ++counter)
        write("chart_" + std::to_string(counter).substr(1) + ".jpg", "");
    EXPECT_EQ(savePicture("chart"),
              " UNABLE  TO  CREATE  NEW  FILEchart.jpg|critical|"
              "There are too many Copies of this file  chart.jpg");
}

}  // namespace
