// The channel between starts of the program, on a local socket and two locked files in the user's own folder.
// A conversation is a row of frames, a kind, four bytes of length with the high byte first, and that many
// bytes of text, each answered by a byte. The first frame names the topic.
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
// A longer text is refused, and its conversation ended.
inline constexpr int kMostFrameBytes = 256 * 1024;

QByteArray MakeFrame(char kind, std::string_view text);

// The display that the programs of this desktop share, as a part of a file's name: a user may have several
// desktops, each with its own program. Empty without a display.
std::string DesktopName();

class LocalChannel final : public ChannelPort {
  public:
    // The names of the socket and of the locks end in desktop.
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
    QLocalSocket other_;  // the holder of the name
};

}  // namespace tw
