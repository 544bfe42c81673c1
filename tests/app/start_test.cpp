// The rules of the start: one program per user, none without the converter, at most one chart file.

#include "app/start_rules.h"
#include "files/chart_file.h"
#include "form_driver.h"

namespace {

class Start : public TemporaryFolder {};

TEST_F(Start, IsOfOneProgramAlsoWithoutARuntimeFolder) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", folder_.c_str());
    for (const std::string& runtime : {folder_, folder_ + "/missing/folder", std::string{"/proc"}}) {
        qputenv("XDG_RUNTIME_DIR", runtime.c_str());
        const SingleInstance first, second;
        EXPECT_FALSE(first.anotherIsRunning()) << runtime;
        EXPECT_TRUE(second.anotherIsRunning()) << runtime;
    }
    qunsetenv("TMPDIR");
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(Start, NeedsTheConverterAsAFile) {
    const std::string converter = converterPath().toStdString(), aside = converter + ".aside";
    const QString missing = "Palace Lantern|critical|Required File Is Missing\nPlease Reinstall Software";
    std::filesystem::rename(converter, aside);
    EXPECT_EQ(messagesOf([] { EXPECT_FALSE(requiredFileIsPresent()); }), QStringList{missing});
    std::filesystem::create_directory(converter);
    EXPECT_EQ(messagesOf([] { EXPECT_FALSE(requiredFileIsPresent()); }), QStringList{missing});
    std::filesystem::remove(converter);
    std::filesystem::rename(aside, converter);
}

TEST_F(Start, TakesOneChartFile) {
    write(folder_ + "/chart.plf", chartFileBytes({u"JOHN SMITH", 1985, "March", 5}));
    const QString file = QString::fromStdString(folder_ + "/chart.plf");
    for (const QStringList& wrong : {QStringList{"--shout"}, {file, file}})
        EXPECT_EQ(QProcess::execute(PROGRAM_PATH, wrong), 1);
    Application application;
    application.start(file);
    EXPECT_EQ(entered(), "JOHN SMITH 5 March 1985 0 0");
    EXPECT_EQ(find("frmMain")->focusWidget()->objectName(), "cmbHour");
}

}  // namespace
