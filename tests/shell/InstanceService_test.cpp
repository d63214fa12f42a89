#include "shell/InstanceService.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;
using Name = ChannelPort::Name;

class RecordingHost : public InstanceHost {
  public:
    bool IsDialogOpen() const override { return dialogOpen; }
    void BringToFront() override { log.emplace_back("front"); }
    void ImportFromPath(std::string_view path) override {
        log.emplace_back("import " + std::string(path));
        if (whileImporting) whileImporting();
    }

    void CommandsWait() override { ++waits; }

    bool dialogOpen = false;
    int waits = 0;
    std::function<void()> whileImporting;
    Strings log;
};

// A channel that returns what the test sets. Its calls and the message boxes of the program are in one log.
class RecordingChannel : public ChannelPort {
  public:
    explicit RecordingChannel(MessageRecorder& messages) : log(messages.log) {}

    bool Initialize() override { return Log("initialize", initializes); }
    bool CreateLock() override { return Log("create lock", createsLock); }
    bool TakeLock() override { return Log("take lock", takesLock); }
    void ReleaseLock() override { Log("release lock", true); }
    Name Register(ChannelReceiver&) override {
        Log("register", true);
        return name;
    }
    void Unregister() override { Log("unregister", true); }
    Sent Send(ChannelMessage kind, std::string_view text, int timeout) override {
        Log("send " + std::string(1, static_cast<char>(kind)) + " " + std::string(text) + " " +
                std::to_string(timeout),
            true);
        return sent;
    }

    bool initializes = true, createsLock = true, takesLock = true;
    Sent sent = Sent::Taken;
    Name name = Name::Held;
    Strings& log;

  private:
    bool Log(const std::string& what, bool result) {
        log.push_back(what);
        return result;
    }
};

class DDEServiceTest : public testing::Test {
  protected:
    void SetUp() override {
        service.SetChannel(&channel);
        service.SetTicking(true);
    }

    MessageRecorder messages;
    RecordingChannel channel{messages};
    RecordingHost host;
    InstanceService service{host, messages};
};

TEST_F(DDEServiceTest, TheOnlyInstanceKeepsTheNameAndGivesTheLockUp) {
    EXPECT_EQ(service.InitDDE(""), StartTest::OnlyInstance);
    EXPECT_EQ(messages.log, (Strings{"initialize", "create lock", "take lock", "register", "release lock"}));
}

TEST_F(DDEServiceTest, TheTestRunsOnce) {
    service.InitDDE("");
    messages.log.clear();
    EXPECT_EQ(service.InitDDE(""), StartTest::OnlyInstance);
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(DDEServiceTest, WithoutAChannelEveryStartIsTheOnlyOne) {
    service.SetChannel(nullptr);
    EXPECT_EQ(service.InitDDE("a"), StartTest::OnlyInstance);
    service.ShutdownDDE();
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(DDEServiceTest, ASecondStartShowsItsBoxInsideTheLockAndActivatesTheFirst) {
    channel.name = Name::HeldByOther;
    EXPECT_EQ(service.InitDDE(" "), StartTest::HandedOver);
    EXPECT_EQ(messages.log, (Strings{"initialize", "create lock", "take lock", "register",
                                     "[Already Running] Another instance of Tunwright is already "
                                     "running.\r\nOnly one instance can run at a time.",
                                     "send X Activate 5000", "unregister", "release lock"}));
}

TEST_F(DDEServiceTest, ASecondStartWithAFileHandsItOverWithoutABox) {
    channel.name = Name::HeldByOther;
    EXPECT_EQ(service.InitDDE(" /a/Stout, dry.TWR "), StartTest::HandedOver);
    EXPECT_EQ(messages.log, (Strings{"initialize", "create lock", "take lock", "register",
                                     "send F /a/Stout, dry.TWR 5000", "unregister", "release lock"}));
}

TEST_F(DDEServiceTest, AnInstanceThatDoesNotAnswerIsReported) {
    channel.name = Name::HeldByOther;
    channel.sent = ChannelPort::Sent::NoAnswer;
    EXPECT_EQ(service.InitDDE("a"), StartTest::Failed);
    EXPECT_EQ(messages.log, (Strings{"initialize", "create lock", "take lock", "register", "send F a 5000",
                                     "[Already Running] The running instance of Tunwright does not answer.",
                                     "unregister", "release lock"}));
}

TEST_F(DDEServiceTest, AnInstanceThatTakesNoMoreSaysSo) {
    channel.name = Name::HeldByOther;
    channel.sent = ChannelPort::Sent::Refused;
    EXPECT_EQ(service.InitDDE("a"), StartTest::Failed);
    EXPECT_EQ(messages.log,
              (Strings{"initialize", "create lock", "take lock", "register", "send F a 5000",
                       "[Already Running] The running instance of Tunwright takes no more files "
                       "for now.\r\nClose the box that is open there, then try again.",
                       "unregister", "release lock"}));
}

TEST_F(DDEServiceTest, EachFailureOfTheTestIsFatalWithItsBox) {
    channel.initializes = false;
    EXPECT_EQ(service.InitDDE(""), StartTest::Failed);
    EXPECT_EQ(messages.TakeLog(),
              (Strings{"initialize", "[Fatal Init Error] Could not initialize DDE!", "unregister"}));
    channel.initializes = true;
    channel.createsLock = false;
    EXPECT_EQ(service.InitDDE(""), StartTest::Failed);
    EXPECT_EQ(messages.TakeLog(),
              (Strings{"initialize", "create lock",
                       "[Fatal Error!] Failed to create Mutex used for DDE startup synchronization!",
                       "unregister"}));
    channel.createsLock = true;
    channel.takesLock = false;
    EXPECT_EQ(service.InitDDE(""), StartTest::Failed);
    EXPECT_EQ(
        messages.TakeLog(),
        (Strings{"initialize", "create lock", "take lock",
                 "[Fatal Error!] Failed to attain ownership of Mutex used for DDE startup synchronization!",
                 "unregister"}));
    channel.takesLock = true;
    channel.name = Name::Failed;
    EXPECT_EQ(service.InitDDE(""), StartTest::Failed);
    EXPECT_EQ(messages.TakeLog(),
              (Strings{"initialize", "create lock", "take lock", "register",
                       "[Fatal Init Error] Could not register DDE service!", "unregister", "release lock"}));
}

TEST_F(DDEServiceTest, TheServiceIsWithdrawnOnceAndDropsWhatWaits) {
    service.InitDDE("");
    service.ParseDDECommand("[IMPORT(a)]");
    messages.log.clear();
    service.ShutdownDDE();
    service.ShutdownDDE();
    EXPECT_EQ(messages.log, Strings{"unregister"});
    EXPECT_EQ(service.DDECommandCount(), 0);
}

TEST_F(DDEServiceTest, OnlyTheSystemTopicIsAnsweredInAnyCase) {
    EXPECT_TRUE(service.AcceptsTopic("System"));
    EXPECT_TRUE(service.AcceptsTopic("sYSTEM"));
    for (const char* topic : {"", "Systems", " System", "Recipes"}) EXPECT_FALSE(service.AcceptsTopic(topic));
}

TEST_F(DDEServiceTest, ActivateRaisesTheWindowAndNeverWaits) {
    for (const char* text : {"Activate", "ACTIVATE", " activate ", "[Activate]", "[Activate(now)]"})
        service.Receive(ChannelMessage::Commands, text);
    EXPECT_EQ(host.log, (Strings{"front", "front", "front", "front", "front"}));
    EXPECT_EQ(service.DDECommandCount(), 0);
}

TEST_F(DDEServiceTest, AnyTextButAnEmptyOneRaisesTheWindowOnce) {
    service.Receive(ChannelMessage::Commands, "[ACTIVATE][IMPORT(a)][PRINT(b)]");
    EXPECT_EQ(host.log, Strings{"front"});
    EXPECT_EQ(service.DDECommandCount(), 2);
    service.Receive(ChannelMessage::Commands, " ");
    EXPECT_EQ(host.log, (Strings{"front", "front"}));
    service.Receive(ChannelMessage::Commands, "");
    service.Receive(ChannelMessage::Commands, std::string_view("\0[IMPORT(a)]", 12));
    service.Receive(ChannelMessage::File, "");
    EXPECT_EQ(host.log, (Strings{"front", "front"}));
    EXPECT_EQ(service.DDECommandCount(), 2);
}

TEST_F(DDEServiceTest, ATextEndsAtItsFirstNul) {
    service.Receive(ChannelMessage::Commands, std::string_view("[IMPORT(a)]\0[IMPORT(b)]", 23));
    service.TickDDE();
    EXPECT_EQ(host.log, (Strings{"front", "import A"}));
}

TEST_F(DDEServiceTest, ImportsEachParameterInOrderAndDropsUnknownVerbs) {
    service.ParseDDECommand("[PRINT(x)][IMPORT(b,a)][OPEN y][IMPORT c]");
    host.log.clear();
    service.TickDDE();
    EXPECT_EQ(host.log, (Strings{"import B", "import A", "import C"}));
    EXPECT_EQ(service.DDECommandCount(), 0);
    service.TickDDE();
    EXPECT_EQ(host.log.size(), 3u);
}

TEST_F(DDEServiceTest, ACommandInTheQueueAsksForTicksAndActivateDoesNot) {
    service.ParseDDECommand("[ACTIVATE]");
    EXPECT_EQ(host.waits, 0);
    service.ParseDDECommand("[IMPORT(a)][PRINT(b)]");
    EXPECT_EQ(host.waits, 2);
}

TEST_F(DDEServiceTest, TheTicksAreOffAtFirst) {
    InstanceService fresh(host, messages);
    fresh.ParseDDECommand("[IMPORT(a)]");
    fresh.TickDDE();
    EXPECT_EQ(fresh.DDECommandCount(), 1);
}

TEST_F(DDEServiceTest, TheQueueWaitsForADialogToClose) {
    service.ParseDDECommand("[IMPORT(a)]");
    host.dialogOpen = true;
    service.TickDDE();
    EXPECT_EQ(service.DDECommandCount(), 1);
    host.dialogOpen = false;
    service.TickDDE();
    EXPECT_EQ(host.log, (Strings{"front", "import A"}));
}

TEST_F(DDEServiceTest, TenThousandCommandsMayWaitAndNoMore) {
    host.dialogOpen = true;
    for (int i = 0; i < 9999; ++i) ASSERT_TRUE(service.Receive(ChannelMessage::File, "/a"));
    // Two more would exceed the limit by one: neither is accepted, and the dialog that they wait
    // for comes to the front.
    host.log.clear();
    EXPECT_FALSE(service.Receive(ChannelMessage::Commands, "[IMPORT(a)][ACTIVATE][IMPORT(b)]"));
    EXPECT_FALSE(service.Receive(ChannelMessage::Commands, "[IMPORT(a,b)]"));
    EXPECT_EQ(host.log, (Strings{"front", "front"}));
    EXPECT_EQ(service.DDECommandCount(), 9999);
    EXPECT_TRUE(service.Receive(ChannelMessage::Commands, "[IMPORT(a)]"));
    EXPECT_FALSE(service.Receive(ChannelMessage::File, "/a"));
    EXPECT_FALSE(service.ParseDDECommand("[PRINT]"));
    // A command that never waits is never refused.
    EXPECT_TRUE(service.Receive(ChannelMessage::Commands, "Activate"));
    EXPECT_TRUE(service.Receive(ChannelMessage::Commands, ""));
    EXPECT_EQ(service.DDECommandCount(), 10000);
    host.dialogOpen = false;
    service.TickDDE();
    EXPECT_EQ(std::ranges::count(host.log, "import /a"), 9999);
    EXPECT_TRUE(service.Receive(ChannelMessage::File, "/a"));
}

TEST_F(DDEServiceTest, TheBytesThatMayWaitAreLimitedToo) {
    // A path is stored twice.
    const std::string half(kMostWaitingBytes / 4, 'x');
    EXPECT_TRUE(service.Receive(ChannelMessage::File, half));
    EXPECT_FALSE(service.Receive(ChannelMessage::File, half));
    EXPECT_EQ(service.DDECommandCount(), 1);
    service.ShutdownDDE();
    EXPECT_TRUE(service.Receive(ChannelMessage::File, half));
}

TEST_F(DDEServiceTest, TheQueueWaitsWhileTheTicksAreOff) {
    service.ParseDDECommand("[IMPORT(a)]");
    service.SetTicking(false);
    service.TickDDE();
    EXPECT_EQ(service.DDECommandCount(), 1);
    service.SetTicking(true);
    service.TickDDE();
    EXPECT_EQ(service.DDECommandCount(), 0);
}

TEST_F(DDEServiceTest, WhatArrivesDuringABatchWaitsForTheNextTick) {
    service.ParseDDECommand("[IMPORT(a)][IMPORT(b)]");
    host.whileImporting = [&] {
        if (host.log.back() != "import A") return;
        service.ParseDDECommand("[IMPORT(c)]");
        service.TickDDE();
    };
    service.TickDDE();
    EXPECT_EQ(host.log, (Strings{"front", "import A", "front", "import B"}));
    service.TickDDE();
    EXPECT_EQ(host.log.back(), "import C");
}

TEST_F(DDEServiceTest, TheTicksGoOnAfterAnErrorThatNobodyTraps) {
    service.ParseDDECommand("[IMPORT(a)]");
    host.whileImporting = [] { throw std::runtime_error("no"); };
    EXPECT_THROW(service.TickDDE(), std::runtime_error);
    host.whileImporting = nullptr;
    service.ParseDDECommand("[IMPORT(b)]");
    service.TickDDE();
    EXPECT_EQ(host.log.back(), "import B");
}

TEST_F(DDEServiceTest, AFileOfAnotherStartKeepsItsName) {
    service.Receive(ChannelMessage::File, "/a/Stout, [dry].twr");
    service.TickDDE();
    EXPECT_EQ(host.log, (Strings{"front", "import /a/Stout, [dry].twr"}));
}

TEST_F(DDEServiceTest, AFileIsFoundUnderTheNameThatWasSent) {
    const std::string file = testing::TempDir() + "DDEService-" + std::to_string(getpid()) + " a.twr";
    std::ofstream(file) << "x";
    service.ParseDDECommand("[IMPORT(" + file + ",\"" + file + "\"," + file + "x)]");
    service.TickDDE();
    std::filesystem::remove(file);
    ASSERT_EQ(host.log.size(), 4u);
    EXPECT_EQ(host.log[1], "import " + file);
    EXPECT_EQ(host.log[2], "import \"" + file + "\"");
    EXPECT_TRUE(host.log[3].ends_with(" A.TWRX")) << host.log[3];
}

}  // namespace
}  // namespace tw::test
