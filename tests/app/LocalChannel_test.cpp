#include "platform/qt/LocalChannel.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/AppTest.h"

namespace tw::test {
namespace {

using Name = ChannelPort::Name;
using Sent = ChannelPort::Sent;
using Strings = std::vector<std::string>;

class RecordingReceiver : public ChannelReceiver {
  public:
    bool AcceptsTopic(std::string_view topic) override { return topic == kChannelTopic; }
    bool Receive(ChannelMessage kind, std::string_view text) override {
        if (log.size() == most) return false;
        log.push_back(static_cast<char>(kind) + std::string(text));
        return true;
    }
    Strings log;
    std::size_t most = 1000;  // texts that it accepts
};

class LocalChannelTest : public AppTest {
  protected:
    static Name Start(LocalChannel& channel, ChannelReceiver& receiver) {
        EXPECT_TRUE(channel.Initialize());
        EXPECT_TRUE(channel.CreateLock());
        EXPECT_TRUE(channel.TakeLock());
        const Name name = channel.Register(receiver);
        channel.ReleaseLock();
        return name;
    }

    // Returns what the running program answers to bytes, until it ends the connection or
    // has sent enough bytes.
    std::string Talk(const QByteArray& bytes, int enough) {
        QLocalSocket socket;
        Descriptor connected = ConnectTo(OpenFolder(Runtime()), kChannelSocket, kDeadlineMilliseconds);
        EXPECT_TRUE(connected.IsOpen());
        socket.setSocketDescriptor(connected.Release());
        socket.write(bytes);
        QByteArray answer;
        EXPECT_TRUE(RunUntil([&] {
            answer += socket.readAll();
            return answer.size() >= enough || socket.state() == QLocalSocket::UnconnectedState;
        }));
        return answer.toStdString();
    }

    RecordingReceiver receiver;
    LocalChannel first;
};

const QByteArray kHello = MakeFrame(kFrameOfTopic, kChannelTopic);

TEST_F(LocalChannelTest, TheFirstHoldsTheNameAndTheNextOneReachesIt) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    LocalChannel second;
    RecordingReceiver none;
    ASSERT_EQ(Start(second, none), Name::HeldByOther);
    // There is no answer until the first program processes its events.
    EXPECT_EQ(second.Send(ChannelMessage::File, "/a b,[c].twr", 1), Sent::NoAnswer);
    EXPECT_TRUE(RunUntil([&] { return !receiver.log.empty(); }));
    EXPECT_EQ(receiver.log, Strings{"F/a b,[c].twr"});
    EXPECT_EQ(none.log, Strings{});
}

TEST_F(LocalChannelTest, AConversationThatHasEndedIsTakenUpAnew) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    LocalChannel second;
    RecordingReceiver none;
    ASSERT_EQ(Start(second, none), Name::HeldByOther);
    first.Unregister();
    ASSERT_EQ(Start(first, receiver), Name::Held);
    second.Send(ChannelMessage::Commands, "Activate", 1);
    EXPECT_TRUE(RunUntil([&] { return !receiver.log.empty(); }));
    EXPECT_EQ(receiver.log, Strings{"XActivate"});
}

TEST_F(LocalChannelTest, EachDesktopHasItsOwnProgram) {
    LocalChannel here(":1"), there(":2"), again(":1");
    EXPECT_EQ(Start(here, receiver), Name::Held);
    EXPECT_EQ(Start(there, receiver), Name::Held);
    EXPECT_EQ(Start(again, receiver), Name::HeldByOther);
}

TEST_F(LocalChannelTest, ADesktopIsNamedByItsDisplay) {
    EXPECT_EQ(DesktopName(), "");
    qputenv("DISPLAY", ":0.1");
    EXPECT_EQ(DesktopName(), ":0");
    qputenv("DISPLAY", "brew.house:10.0");
    EXPECT_EQ(DesktopName(), "brew.house:10");
    qputenv("DISPLAY", "/tmp/x/display:7");
    EXPECT_EQ(DesktopName(), "_tmp_x_display:7");
    qputenv("WAYLAND_DISPLAY", "wayland-1");
    EXPECT_EQ(DesktopName(), "wayland-1");
    qputenv("WAYLAND_DISPLAY", QByteArray("/run/") + QByteArray(200, 'x') + "/wayland-3");
    EXPECT_EQ(DesktopName(), std::string(30, 'x') + "_wayland-3");
}

TEST_F(LocalChannelTest, TheFolderIsClosedToOthers) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    struct stat info {};
    ASSERT_EQ(stat(Runtime().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
    chmod(Runtime().c_str(), 0777);
    LocalChannel second;
    EXPECT_TRUE(second.Initialize());
    ASSERT_EQ(stat(Runtime().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
}

TEST_F(LocalChannelTest, ASocketLeftBehindIsReplaced) {
    ASSERT_TRUE(first.Initialize());
    { const Descriptor stale = ListenAt(OpenFolder(Runtime()), kChannelSocket); }
    ASSERT_TRUE(std::filesystem::exists(Runtime(kChannelSocket)));
    ASSERT_EQ(Start(first, receiver), Name::Held);
    EXPECT_EQ(Talk(kHello, 1), "+");
}

TEST_F(LocalChannelTest, AFileInTheSocketsPlaceIsReplacedAndAFolderIsAFailure) {
    ASSERT_TRUE(first.Initialize());
    std::ofstream(Runtime(kChannelSocket)) << "x";
    ASSERT_EQ(Start(first, receiver), Name::Held);
    first.Unregister();
    std::filesystem::create_directory(Runtime(kChannelSocket));
    std::ofstream(Runtime(kChannelSocket) + "/x") << "x";
    EXPECT_EQ(Start(first, receiver), Name::Failed);
}

TEST_F(LocalChannelTest, TheNameIsFreeWhenItsHolderGoes) {
    {
        LocalChannel gone;
        ASSERT_EQ(Start(gone, receiver), Name::Held);
    }
    EXPECT_FALSE(std::filesystem::exists(Runtime(kChannelSocket)));
    EXPECT_EQ(Start(first, receiver), Name::Held);
}

TEST_F(LocalChannelTest, AHolderThatEndsIsWaitedForAndOneThatHangsIsNot) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    first.Unregister();
    LocalChannel second;
    EXPECT_EQ(Start(second, receiver), Name::HeldByOther);
    EXPECT_EQ(second.Send(ChannelMessage::Commands, "Activate", 1), Sent::NoAnswer);
}

TEST_F(LocalChannelTest, LongPathsOfTheFolderDoNotMatter) {
    const std::string longPath = File(std::string(200, 'x'));
    std::filesystem::create_directory(longPath);
    qputenv("XDG_RUNTIME_DIR", longPath.c_str());
    ASSERT_EQ(Start(first, receiver), Name::Held);
    EXPECT_TRUE(std::filesystem::exists(longPath + "/tunwright/" + kChannelSocket));
}

TEST_F(LocalChannelTest, WithoutASessionsFolderTheCacheFolderServes) {
    std::filesystem::create_directory(File("cache"));
    qputenv("XDG_CACHE_HOME", File("cache").c_str());
    for (const char* none : {"", "relative", "/no/such/folder", "/dev/null"}) {
        qputenv("XDG_RUNTIME_DIR", none);
        EXPECT_EQ(RuntimeFolder(), File("cache/tunwright"));
    }
    qputenv("XDG_CACHE_HOME", "/dev/null");
    EXPECT_EQ(RuntimeFolder(), "");
    EXPECT_FALSE(first.Initialize());
}

TEST_F(LocalChannelTest, ALinkInTheFoldersPlaceIsNotFollowed) {
    std::filesystem::create_directory(File("elsewhere"));
    std::filesystem::create_directory_symlink(File("elsewhere"), File("tunwright"));
    qputenv("XDG_CACHE_HOME", File("cache").c_str());
    EXPECT_EQ(RuntimeFolder(), File("cache/tunwright"));
}

TEST_F(LocalChannelTest, SeveralTextsOfOneConversationComeInOrder) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    EXPECT_EQ(Talk(kHello + MakeFrame('X', "[A]") + MakeFrame('F', "b") + MakeFrame('X', ""), 4), "++++");
    EXPECT_EQ(receiver.log, (Strings{"X[A]", "Fb", "X"}));
}

TEST_F(LocalChannelTest, ARefusedTextIsAnsweredSoAndEndsTheConversation) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    receiver.most = 1;
    EXPECT_EQ(Talk(kHello + MakeFrame('F', "a") + MakeFrame('F', "b") + MakeFrame('F', "c"), 4), "++-");
    EXPECT_EQ(receiver.log, Strings{"Fa"});
}

TEST_F(LocalChannelTest, TheLongestTextArrivesAndALongerOneEndsTheConversation) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    const std::string longest(kMostFrameBytes, 'x');
    EXPECT_EQ(Talk(kHello + MakeFrame('X', longest), 2), "++");
    ASSERT_EQ(receiver.log.size(), 1u);
    EXPECT_EQ(receiver.log[0].size(), longest.size() + 1);
    EXPECT_EQ(Talk(kHello + MakeFrame('X', longest + "x") + MakeFrame('X', "a"), 3), "+");
    EXPECT_EQ(receiver.log.size(), 1u);
}

TEST_F(LocalChannelTest, WhatIsNoConversationIsDropped) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    EXPECT_EQ(Talk(MakeFrame('X', "[A]"), 2), "-");
    EXPECT_EQ(Talk(MakeFrame('C', "Recipes") + MakeFrame('X', "[A]"), 2), "-");
    EXPECT_EQ(Talk(kHello + MakeFrame('?', "[A]") + MakeFrame('X', "[A]"), 3), "+-");
    EXPECT_EQ(Talk("GET / HTTP/1.0\r\n\r\n", 1), "");
    EXPECT_EQ(receiver.log, Strings{});
    EXPECT_EQ(Talk(kHello + MakeFrame('X', "[A]"), 2), "++");
}

TEST_F(LocalChannelTest, AHalfTextDoesNothingAndOthersAreServedMeanwhile) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    Descriptor half = ConnectTo(OpenFolder(Runtime()), kChannelSocket, kDeadlineMilliseconds);
    const QByteArray bytes = kHello + MakeFrame('X', "[A]").chopped(1);
    ASSERT_EQ(write(half.Number(), bytes.constData(), static_cast<std::size_t>(bytes.size())), bytes.size());
    EXPECT_EQ(Talk(kHello + MakeFrame('X', "[B]"), 2), "++");
    EXPECT_EQ(receiver.log, Strings{"X[B]"});
}

TEST_F(LocalChannelTest, ATextIsTakenThoughItsSenderHasGone) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    {
        Descriptor gone = ConnectTo(OpenFolder(Runtime()), kChannelSocket, kDeadlineMilliseconds);
        const QByteArray bytes = kHello + MakeFrame('X', "[A]");
        ASSERT_EQ(write(gone.Number(), bytes.constData(), static_cast<std::size_t>(bytes.size())),
                  bytes.size());
    }
    EXPECT_TRUE(RunUntil([&] { return !receiver.log.empty(); }));
    EXPECT_EQ(receiver.log, Strings{"X[A]"});
}

TEST_F(LocalChannelTest, MoreConversationsThanItServesAreEnded) {
    ASSERT_EQ(Start(first, receiver), Name::Held);
    constexpr int kMany = 100;
    std::vector<Descriptor> idle;
    for (int i = 0; i < kMany; ++i)
        idle.push_back(ConnectTo(OpenFolder(Runtime()), kChannelSocket, kDeadlineMilliseconds));
    EXPECT_EQ(Talk(kHello, 1), "");
    idle.clear();
    EXPECT_TRUE(RunUntil([&] { return Talk(kHello, 1) == "+"; }));
}

// Another user, for tests that run as root.
constexpr uid_t kNobody = 65534;

// Runs work in a process of that user and returns its result. The process inherits the
// descriptors of this one.
int AsNobody(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        const bool changed = setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
        _exit(changed ? work() : 99);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 98;
}

// Grants other users the access that the program denies them, so that only the check of the peer remains.
void OpenTheWay(const std::string& home, const std::string& runtime) {
    chmod(home.c_str(), 0777);
    chmod(runtime.c_str(), 0777);
    chmod((runtime + kChannelSocket).c_str(), 0777);
}

TEST_F(LocalChannelTest, AnotherUserIsNotListenedTo) {
    if (geteuid() != 0) GTEST_SKIP() << "needs a second user";
    ASSERT_EQ(Start(first, receiver), Name::Held);
    OpenTheWay(File(""), Runtime());
    const QByteArray bytes = kHello + MakeFrame('X', "[A]");
    EXPECT_EQ(AsNobody([&] {
                  const Descriptor socket =
                      ConnectTo(OpenFolder(Runtime()), kChannelSocket, kDeadlineMilliseconds);
                  const auto size = static_cast<std::size_t>(bytes.size());
                  return send(socket.Number(), bytes.constData(), size, MSG_NOSIGNAL) == bytes.size() ? 0 : 1;
              }),
              0);
    EXPECT_EQ(Talk(kHello + MakeFrame('X', "[B]"), 2), "++");
    EXPECT_EQ(receiver.log, Strings{"X[B]"});
}

TEST_F(LocalChannelTest, AnotherUsersSocketIsNotTalkedTo) {
    if (geteuid() != 0) GTEST_SKIP() << "needs a second user";
    ASSERT_EQ(Start(first, receiver), Name::Held);
    first.Unregister();
    OpenTheWay(File(""), Runtime());
    int ready[2], stop[2];
    ASSERT_EQ(pipe(ready) | pipe(stop), 0);
    const pid_t impostor = fork();
    if (impostor == 0) {
        close(stop[1]);
        if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0) _exit(99);
        const Descriptor socket = ListenAt(OpenFolder(Runtime()), kChannelSocket);
        fcntl(socket.Number(), F_SETFL, O_NONBLOCK);
        char byte = socket.IsOpen() ? 'y' : 'n';
        if (write(ready[1], &byte, 1) != 1 || read(stop[0], &byte, 1) != 0) _exit(98);
        // 1 if another program has sent anything.
        int heard = 0;
        for (int other = 0; (other = accept(socket.Number(), nullptr, nullptr)) >= 0; close(other))
            if (recv(other, &byte, 1, MSG_DONTWAIT) > 0) heard = 1;
        _exit(heard);
    }
    char answer = 'n';
    ASSERT_EQ(read(ready[0], &answer, 1), 1);
    ASSERT_EQ(answer, 'y');
    LocalChannel second;
    EXPECT_EQ(Start(second, receiver), Name::HeldByOther);
    EXPECT_NE(second.Send(ChannelMessage::Commands, "[SECRET]", 1000), Sent::Taken);
    for (const int end : {stop[0], stop[1], ready[0], ready[1]}) close(end);
    int status = 0;
    waitpid(impostor, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(LocalChannelTest, AnotherUsersFolderIsNotUsed) {
    if (geteuid() != 0) GTEST_SKIP() << "needs a second user";
    std::filesystem::create_directory(Runtime());
    ASSERT_EQ(chown(Runtime().c_str(), kNobody, kNobody), 0);
    qputenv("XDG_CACHE_HOME", File("cache").c_str());
    EXPECT_EQ(RuntimeFolder(), File("cache/tunwright"));
}

}  // namespace
}  // namespace tw::test
