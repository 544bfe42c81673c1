// The start of the built program, one beside the other and under bad conditions.

#include <QProcess>
#include <csignal>

#include "form_driver.h"

namespace {

const QByteArray form = "frmMain\n";
const QByteArray running = "Application is already running|information\n";

class Start : public TemporaryFolder {
  protected:
    ~Start() override {
        for (const auto& program : programs_) {
            program->kill();
            program->waitForFinished();
        }
    }

    QProcess& start(const std::string& path = PROGRAM_PATH) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_RUNTIME_DIR"_q, QString::fromStdString(runtimeFolder_));
        environment.insert("TMPDIR"_q, QString::fromStdString(folder_));
        environment.insert("QT_PLUGIN_PATH"_q, TELLER_PATH ""_q);
        environment.insert("QT_QPA_GENERIC_PLUGINS"_q, "window_teller"_q);
        programs_.push_back(std::make_unique<QProcess>());
        programs_.back()->setProcessEnvironment(environment);
        programs_.back()->start(QString::fromStdString(path), {});
        return *programs_.back();
    }

    // What the program first shows. After a message it has to end.
    static QByteArray firstWindow(QProcess& program) {
        program.waitForReadyRead();
        const QByteArray told = program.readAllStandardOutput();
        const bool stays = told == form;
        EXPECT_TRUE(stays || (program.waitForFinished() && program.exitStatus() == QProcess::NormalExit));
        return told;
    }

    std::string runtimeFolder_ = folder_;
    std::vector<std::unique_ptr<QProcess>> programs_;
};

TEST_F(Start, LeavesOneOfTwentyRunning) {
    for (int count = 0; count < 20; ++count) start();
    int forms = 0, messages = 0;
    for (const auto& program : programs_) {
        const QByteArray told = firstWindow(*program);
        forms += told == form ? 1 : 0;
        messages += told == running ? 1 : 0;
    }
    EXPECT_EQ(forms, 1);
    EXPECT_EQ(messages, 19);
}

TEST_F(Start, SucceedsAfterAKill) {
    QProcess& first = start();
    ASSERT_EQ(firstWindow(first), form);
    EXPECT_EQ(firstWindow(start()), running);
    ::kill(static_cast<pid_t>(first.processId()), SIGKILL);
    first.waitForFinished();
    EXPECT_EQ(firstWindow(start()), form);
}

TEST_F(Start, CountsProgramsEvenWithoutARuntimeFolder) {
    for (const std::string& unusable : {folder_ + "/missing/folder", std::string{"/proc"}}) {
        runtimeFolder_ = unusable;
        QProcess& first = start();
        EXPECT_EQ(firstWindow(first), form) << unusable;
        EXPECT_EQ(firstWindow(start()), running) << unusable;
        first.kill();
        first.waitForFinished();
    }
}

TEST_F(Start, EndsWithoutTheConverter) {
    std::filesystem::copy_file(PROGRAM_PATH, folder_ + "/palace-lantern");
    QProcess& program = start(folder_ + "/palace-lantern");
    EXPECT_EQ(firstWindow(program), "Required File Is Missing/Please Reinstall Software|critical\n");
    EXPECT_EQ(program.exitCode(), 1);
    write(folder_ + "/Bmp2Jpeg.dll", "not looked into");
    EXPECT_EQ(firstWindow(start(folder_ + "/palace-lantern")), form);
}

}  // namespace
