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
    for (const std::string& runtime : {in("missing/folder"), std::string{"/proc"}, std::string{}}) {
        runtime.empty() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime.c_str());
        const SingleInstance first, second;
        EXPECT_FALSE(first.anotherIsRunning()) << runtime;
        EXPECT_TRUE(second.anotherIsRunning()) << runtime;
    }
    qunsetenv("TMPDIR");
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(Start, NeedsTheConverterAsAFile) {
    const QString self = QCoreApplication::applicationFilePath(), copy = in("copy").c_str();
    if (!self.endsWith("/copy")) {  // which has no converter beside it
        EXPECT_TRUE(requiredFileIsPresent() && QFile::copy(self, copy));
        EXPECT_EQ(QProcess::execute(copy, {"--gtest_filter=Start.NeedsTheConverterAsAFile"}), 0);
        return;
    }
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(messagesOf([] { EXPECT_FALSE(requiredFileIsPresent()); }),
                  QStringList{"critical|Required File Is Missing\nPlease Reinstall Software"});
        EXPECT_EQ(QDir{}.mkdir(converterPath()), time == 0);
    }
}

TEST_F(Start, TakesOneChartFile) {
    write("chart.plf", chartFileBytes({u"JOHN SMITH", 1985, "March", 5}));
    write("empty.plf", "");
    const QString chart = in("chart.plf").c_str();
    for (const QStringList& wrong : {QStringList{"--shout"}, {chart, chart}})
        EXPECT_EQ(QProcess::execute(PROGRAM_PATH, wrong), 1);
    const std::tuple<std::string, QStringList, QString, QString> files[]{
        {in("chart.plf"), {}, "JOHN SMITH 5 March 1985 0 0", "cmbHour"},
        {in("empty.plf"), {"information|Please Enter Your Name !"}, " 1 January 1970 0 0", "txtName"},
        {"/none.plf", {"critical|Please Check The File."}, " 1 January 1970 0 0", "txtName"},
    };
    for (const auto& [file, messages, after, focus] : files) {
        Application application;
        EXPECT_EQ(messagesOf([&] { application.start(file.c_str()); }), messages) << file;
        EXPECT_EQ(entered(), after) << file;
        EXPECT_EQ(find("frmMain")->focusWidget()->objectName(), focus) << file;
    }
}

}  // namespace
