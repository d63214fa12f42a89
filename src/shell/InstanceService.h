// One program on a desktop, and the commands that reach it from outside: the test at the start, the queue,
// and the timer that works it off.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/ChannelPort.h"
#include "platform/Ports.h"
#include "shell/DDECommand.h"

namespace tw {

inline constexpr int kDDETickMilliseconds = 250;
// How long a start waits for the answer of the program that runs.
inline constexpr int kSendMilliseconds = 5000;
// So much may wait, while a box is open or a start is not over: commands, their parameters counted too, and
// the bytes of their texts.
inline constexpr std::size_t kMostWaiting = 10000;
inline constexpr std::size_t kMostWaitingBytes = 16 << 20;

// What the commands act on.
class InstanceHost {
  public:
    virtual ~InstanceHost() = default;
    // A window other than the main window and the recipes' windows is active.
    virtual bool IsDialogOpen() const = 0;
    virtual void BringToFront() = 0;
    // Imports the file of that path; shows its own errors.
    virtual void ImportFromPath(std::string_view path) = 0;
    // A command has been queued: TickDDE is due every kDDETickMilliseconds until the queue is empty.
    virtual void CommandsWait() = 0;
};

// What a start has found.
enum class StartTest {
    OnlyInstance,
    HandedOver,  // another one runs and has been told
    Failed,      // the box has been shown: there is no channel, or the other one does not answer
};

class InstanceService final : public ChannelReceiver {
  public:
    // Both must outlive the object.
    InstanceService(InstanceHost& host, MessagePort& messages) : host_(host), messages_(messages) {}

    // The channel of this program; it must outlive the object. Without one nothing is tested and nobody
    // heard.
    void SetChannel(ChannelPort* channel) { channel_ = channel; }
    // The test at the start, once. Where another program runs it is told to come to the front, or to import
    // the file of path if that is not blank; only a start without a path is worth a box then. A start that
    // may not go on is to end at once.
    StartTest InitDDE(std::string_view path);
    // Whether that test has found another program, which has been told.
    bool HandedOver() const { return handedOver_; }
    // Hears no more, and drops what waits.
    void ShutdownDDE();

    // ChannelReceiver: commands are taken at once, an empty text does nothing at all.
    bool AcceptsTopic(std::string_view topic) override;
    bool Receive(ChannelMessage kind, std::string_view text) override;

    // Queues the commands of a text and brings the main window to the front, whatever they are; ACTIVATE is
    // that alone and never waits. False, and none of them is queued, when too much would wait then.
    bool ParseDDECommand(std::string_view text);
    bool AddDDECommand(DDECommand command);
    int DDECommandCount() const { return static_cast<int>(commands_.size()); }

    // Switches the ticks (tmrProcessDDE), which are off at first. Commands that come meanwhile wait.
    void SetTicking(bool on) { ticking_ = on; }
    // Works the queue off unless a dialog is open. Commands that come during that wait for the next tick;
    // unknown verbs are dropped without a word.
    void TickDDE();

  private:
    StartTest Fail(std::string_view title, std::string_view text);
    bool HandOver(std::string_view path);
    // All of the commands or none, as ParseDDECommand.
    bool Queue(std::vector<DDECommand> commands);
    void Carry(const DDECommand& command);

    InstanceHost& host_;
    MessagePort& messages_;
    ChannelPort* channel_ = nullptr;
    bool ddeActive_ = false;
    bool handedOver_ = false;
    bool ticking_ = false;
    std::vector<DDECommand> commands_;
    std::size_t waiting_ = 0;  // of kMostWaiting
    std::size_t waitingBytes_ = 0;
};

}  // namespace tw
