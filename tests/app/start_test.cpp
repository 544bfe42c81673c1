// The rules of the start: one program per user, none without the converter, at most one chart file.

#include "app/start_rules.h"
#include "files/chart_file.h"
#include "form_driver.h"

namespace {

class Start : public TemporaryFolder {};

TEST_F(Start, IsOfOneProgramAlsoWithoutARuntimeFolder) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", folder_.c_str());
    QLockFile others{QDir::temp().filePath("palace-lantern-" + QDir::home().dirName() + ".lock")};
    EXPECT_TRUE(others.tryLock()) << "what lies in a folder that all users share may be another's";
    for (const std::string& runtime : {folder_ + "/missing/folder", std::string{"/proc"}, std::string{}}) {
        runtime.empty() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime.c_str());
        const SingleInstance first, second;
        EXPECT_FALSE(first.anotherIsRunning()) << runtime;
        EXPECT_TRUE(second.anotherIsRunning()) << runtime;
    }
    qunsetenv("TMPDIR");
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(Start, NeedsTheConverterAsAFile) {
    const QString self = QCoreApplication::applicationFilePath(), copy = (folder_ + "/copy").c_str();
    if (!self.endsWith("/copy")) {  // which has no converter beside it
        EXPECT_TRUE(requiredFileIsPresent() && QFile::copy(self, copy));
        EXPECT_EQ(QProcess::execute(copy, {"--gtest_filter=Start.NeedsTheConverterAsAFile"}), 0);
        return;
    }
    const auto told = [] { return messagesOf([] { EXPECT_FALSE(requiredFileIsPresent()); }); };
    const QStringList missing{
        "Palace Lantern Message|critical|Required File Is Missing\nPlease Reinstall Software"};
    EXPECT_EQ(told(), missing);
    EXPECT_TRUE(QDir{}.mkdir(converterPath()));
    EXPECT_EQ(told(), missing);
}

TEST_F(Start, TakesOneChartFile) {
    const std::string chart = folder_ + "/chart.plf", empty = folder_ + "/empty.plf";
    write(chart, chartFileBytes({u"JOHN SMITH", 1985, "March", 5}));
    write(empty, "");
    for (const QStringList& wrong : {QStringList{"--shout"}, {chart.c_str(), chart.c_str()}})
        EXPECT_EQ(QProcess::execute(PROGRAM_PATH, wrong), 1);
    const std::tuple<std::string, QStringList, QString, QString> files[]{
        {chart, {}, "JOHN SMITH 5 March 1985 0 0", "cmbHour"},
        {empty,
         {"Palace Lantern Message|information|Please Enter Your Name !"},
         " 1 January 1970 0 0",
         "txtName"},
        {"/none.plf",
         {"Palace Lantern Message|critical|Please Check The File."},
         " 1 January 1970 0 0",
         "txtName"},
    };
    for (const auto& [file, messages, after, focus] : files) {
        Application application;
        EXPECT_EQ(messagesOf([&] { application.start(file.c_str()); }), messages) << file;
        EXPECT_EQ(entered(), after) << file;
        EXPECT_EQ(find("frmMain")->focusWidget()->objectName(), focus) << file;
    }
}

}  // namespace
