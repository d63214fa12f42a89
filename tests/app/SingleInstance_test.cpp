// Starts the real program many times at once, on the offscreen platform, where message boxes go to standard
// error. A start with the quoted name of a missing file makes the running program show that name in a
// message, which proves that the text has arrived.
#include <QProcess>
#include <algorithm>
#include <csignal>
#include <memory>

#include "app/AppTest.h"
#include "platform/qt/LocalChannel.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

class Program {
  public:
    Program(const std::string& database, const QStringList& words) {
        QObject::connect(&process_, &QProcess::readyReadStandardError, &process_,
                         [this] { errors_ += process_.readAllStandardError(); });
        process_.start(QStringLiteral(PROGRAM),
                       QStringList{QStringLiteral("--database"), QString::fromStdString(database)} + words);
    }
    ~Program() {
        Signal(SIGCONT);
        process_.kill();
        process_.waitForFinished(kDeadlineMilliseconds);
    }

    bool Runs() const { return process_.state() != QProcess::NotRunning; }
    bool Says(const QString& text) const { return QString::fromUtf8(errors_).contains(text); }
    // Returns the exit code; -1 after a crash.
    int Status() const { return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1; }
    void Signal(int number) {
        if (Runs()) kill(static_cast<pid_t>(process_.processId()), number);
    }
    std::string Errors() const { return errors_.toStdString(); }

  private:
    QProcess process_;
    QByteArray errors_;
};

using ProgramPtr = std::unique_ptr<Program>;

class SingleInstanceTest : public AppTest {
  protected:
    void SetUp() override {
        AppTest::SetUp();
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const auto database = Database::CreateDatabase(File("Tunwright.mdb"), "");
        CreateSchema(*database);
    }

    ProgramPtr Start(const QStringList& words = {}) {
        return std::make_unique<Program>(File("Tunwright.mdb"), words);
    }
    // Starts the program with the quoted name of a missing file.
    ProgramPtr StartWith(const QString& file) { return Start({QStringLiteral("\"/no/") + file}); }
    static QString BoxOf(const QString& file) {
        return QStringLiteral("  /no/") + file + QStringLiteral("\r\n");
    }

    // Starts a program and waits until it is running.
    ProgramPtr StartFirst() {
        ProgramPtr first = StartWith(QStringLiteral("first"));
        EXPECT_TRUE(RunUntil([&] { return first->Says(BoxOf(QStringLiteral("first"))) || !first->Runs(); }));
        EXPECT_TRUE(first->Runs()) << first->Errors();
        return first;
    }
    static void AwaitEnd(const Program& program) {
        EXPECT_TRUE(RunUntil([&] { return !program.Runs(); }));
    }
};

TEST_F(SingleInstanceTest, OfTwentyStartsAtOnceOneStaysAndHearsOfAllFiles) {
    constexpr int kStarts = 20;
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) {
        std::vector<ProgramPtr> programs;
        for (int i = 0; i < kStarts; ++i) programs.push_back(StartWith(QString::number(i)));
        const auto running = [&] {
            return std::count_if(programs.begin(), programs.end(), [](const auto& p) { return p->Runs(); });
        };
        ASSERT_TRUE(RunUntil([&] { return running() <= 1; }));
        ASSERT_EQ(running(), 1);
        const auto stays =
            std::find_if(programs.begin(), programs.end(), [](const auto& p) { return p->Runs(); });
        for (int i = 0; i < kStarts; ++i)
            EXPECT_TRUE(RunUntil([&] { return (*stays)->Says(BoxOf(QString::number(i))); })) << i;
        EXPECT_EQ(running(), 1);
        for (const ProgramPtr& program : programs) {
            if (program != *stays) {
                EXPECT_EQ(program->Status(), 0) << program->Errors();
            }
        }
    }
}

TEST_F(SingleInstanceTest, ASecondStartSaysSoAndEnds) {
    const ProgramPtr first = StartFirst();
    const ProgramPtr second = Start();
    AwaitEnd(*second);
    EXPECT_EQ(second->Status(), 0);
    EXPECT_TRUE(
        second->Says(QStringLiteral("Already Running: Another instance of Tunwright is already "
                                    "running.\r\nOnly one instance can run at a time.")))
        << second->Errors();
    EXPECT_TRUE(first->Runs());
}

TEST_F(SingleInstanceTest, AKilledProgramIsFollowedByTheNextStart) {
    for (int i = 0; i < 3; ++i) {
        const ProgramPtr first = StartFirst();
        first->Signal(SIGKILL);
        AwaitEnd(*first);
    }
    EXPECT_TRUE(StartFirst()->Runs());
}

TEST_F(SingleInstanceTest, AStoppedProgramKeepsNobodyWaitingForLong) {
    const ProgramPtr first = StartFirst();
    first->Signal(SIGSTOP);
    const ProgramPtr second = StartWith(QStringLiteral("second"));
    AwaitEnd(*second);
    EXPECT_EQ(second->Status(), 1);
    EXPECT_TRUE(
        second->Says(QStringLiteral("Already Running: The running instance of Tunwright does not answer.")))
        << second->Errors();
    // It receives the text as soon as it continues.
    first->Signal(SIGCONT);
    EXPECT_TRUE(RunUntil([&] { return first->Says(BoxOf(QStringLiteral("second"))); }));
}

TEST_F(SingleInstanceTest, AProgramKilledWhileItWasStoppedIsFollowedByTheNextStart) {
    const ProgramPtr first = StartFirst();
    first->Signal(SIGSTOP);
    first->Signal(SIGKILL);
    AwaitEnd(*first);
    EXPECT_TRUE(StartFirst()->Runs());
}

TEST_F(SingleInstanceTest, AStartDuringTheStartIsHeard) {
    const ProgramPtr first = StartWith(QStringLiteral("first"));
    const ProgramPtr second = StartWith(QStringLiteral("second"));
    ASSERT_TRUE(RunUntil([&] { return !first->Runs() || !second->Runs(); }));
    const Program& stays = first->Runs() ? *first : *second;
    EXPECT_TRUE(RunUntil([&] {
        return stays.Says(BoxOf(QStringLiteral("first"))) && stays.Says(BoxOf(QStringLiteral("second")));
    }));
}

TEST_F(SingleInstanceTest, CommandsOfAnotherProgramAreCarriedOut) {
    const ProgramPtr first = StartFirst();
    QLocalSocket socket;
    Descriptor connected = ConnectTo(OpenFolder(Runtime()), kChannelSocket, kDeadlineMilliseconds);
    ASSERT_TRUE(connected.IsOpen());
    socket.setSocketDescriptor(connected.Release());
    socket.write(MakeFrame(kFrameOfTopic, "SYSTEM") +
                 MakeFrame('X', "[ACTIVATE][PRINT x][IMPORT(\"/no/b c\")]"));
    EXPECT_TRUE(RunUntil([&] { return first->Says(QStringLiteral("  /NO/B C\r\n")); })) << first->Errors();
    EXPECT_EQ(socket.readAll(), "++");
}

TEST_F(SingleInstanceTest, ADatabaseThatCannotBeOpenedLeavesTheNameFree) {
    const ProgramPtr failed = Start({QStringLiteral("--database"), QStringLiteral("/no/such.mdb")});
    AwaitEnd(*failed);
    EXPECT_EQ(failed->Status(), 1);
    EXPECT_TRUE(StartFirst()->Runs());
}

}  // namespace
}  // namespace tw::test
