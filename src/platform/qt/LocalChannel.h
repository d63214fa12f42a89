// The channel between running copies of the program, on a local socket and two lock files in the user's own
// folder. A conversation is a sequence of frames: one byte for the kind, four bytes for the length (high byte
// first) and that many bytes of text. Each frame is answered with one byte. The first frame names the topic.
#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <string>

#include "platform/ChannelPort.h"
#include "platform/FileLock.h"
#include "platform/LocalSocket.h"

namespace tw {

inline constexpr char kChannelSocket[] = "Tunwright";
inline constexpr char kFrameOfTopic = 'C';
inline constexpr char kFrameTaken = '+';
inline constexpr char kFrameRefused = '-';
// The longest text of a frame, in bytes. A longer text is refused and its conversation is ended.
inline constexpr int kMostFrameBytes = 256 * 1024;

// Returns the bytes of one frame.
QByteArray MakeFrame(char kind, std::string_view text);

// Returns the name of this session's display in a form that can be part of a file name. A user may have
// several desktops, each with its own running program. Empty if there is no display.
std::string DesktopName();

class LocalChannel final : public ChannelPort {
  public:
    // desktop is appended to the names of the socket and of the lock files.
    explicit LocalChannel(const std::string& desktop = {});
    ~LocalChannel() override;

    bool Initialize() override;
    bool CreateLock() override;
    bool TakeLock() override { return startLock_.Take(); }
    void ReleaseLock() override { startLock_.Release(); }
    Name Register(ChannelReceiver& receiver) override;
    void Unregister() override;
    Sent Send(ChannelMessage kind, std::string_view text, int timeoutMilliseconds) override;

  private:
    bool Listen(ChannelReceiver& receiver);
    bool Connect(int timeoutMilliseconds);
    void Accept(ChannelReceiver& receiver);

    std::string socket_, startLockName_, nameLockName_;
    std::string path_;
    Descriptor folder_;
    FileLock startLock_, nameLock_;
    QLocalServer server_;
    QLocalSocket other_;  // the connection to the holder of the name
};

}  // namespace tw
