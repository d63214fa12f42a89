// Keeps one instance of the program on a desktop, and receives commands from outside: the test at start-up,
// the command queue, and the timer that processes it.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/ChannelPort.h"
#include "platform/Ports.h"
#include "shell/DDECommand.h"

namespace tw {

inline constexpr int kDDETickMilliseconds = 250;
// How long a start waits for the answer of the running instance.
inline constexpr int kSendMilliseconds = 5000;
// Limits of the queue, which grows while a dialog is open or before the start is complete: the number of
// commands, where a command counts once per parameter, and the bytes of their texts.
inline constexpr std::size_t kMostWaiting = 10000;
inline constexpr std::size_t kMostWaitingBytes = 16 << 20;

// The program on which the commands act.
class InstanceHost {
  public:
    virtual ~InstanceHost() = default;
    // True if a window other than the main window and the recipe windows is open.
    virtual bool IsDialogOpen() const = 0;
    virtual void BringToFront() = 0;
    // Imports the file at path and shows its own errors.
    virtual void ImportFromPath(std::string_view path) = 0;
    // A command has been queued: TickDDE must be called every kDDETickMilliseconds until the queue is empty.
    virtual void CommandsWait() = 0;
};

// The result of the test at start-up.
enum class StartTest {
    OnlyInstance,
    HandedOver,  // another instance is running and has been notified
    Failed,      // after a message: the channel failed, or the other instance did not answer or refused
};

class InstanceService final : public ChannelReceiver {
  public:
    // Both arguments must outlive the object.
    InstanceService(InstanceHost& host, MessagePort& messages) : host_(host), messages_(messages) {}

    // Sets the channel of this program, which must outlive the object. Without a channel there is no test at
    // start-up, and no commands are received.
    void SetChannel(ChannelPort* channel) { channel_ = channel; }
    // Runs the test at start-up; to be called once. If another instance is running, it is asked to come to
    // the front or, if path is not blank, to import the file at path; only without a path does this instance
    // show a message about it. Unless the result is OnlyInstance, the program must end at once.
    StartTest InitDDE(std::string_view path);
    // True if that test has notified another instance.
    bool HandedOver() const { return handedOver_; }
    // Stops receiving, and drops queued commands.
    void ShutdownDDE();

    // ChannelReceiver. Commands are queued at once; an empty text has no effect.
    bool AcceptsTopic(std::string_view topic) override;
    bool Receive(ChannelMessage kind, std::string_view text) override;

    // Queues the commands in text and brings the main window to the front, whatever they are. ACTIVATE does
    // only the latter and is never queued. False, without queuing any, if the queue would exceed its limits.
    bool ParseDDECommand(std::string_view text);
    bool AddDDECommand(DDECommand command);
    int DDECommandCount() const { return static_cast<int>(commands_.size()); }

    // Switches the ticks (tmrProcessDDE) on or off; they are off at first. Meanwhile commands are queued.
    void SetTicking(bool on) { ticking_ = on; }
    // Processes the queue unless a dialog is open. Commands that arrive during that are left for the next
    // tick; unknown verbs are ignored.
    void TickDDE();

  private:
    StartTest Fail(std::string_view title, std::string_view text);
    bool HandOver(std::string_view path);
    // Queues all of the commands or none, as ParseDDECommand does.
    bool Queue(std::vector<DDECommand> commands);
    void Carry(const DDECommand& command);

    InstanceHost& host_;
    MessagePort& messages_;
    ChannelPort* channel_ = nullptr;
    bool ddeActive_ = false;
    bool handedOver_ = false;
    bool ticking_ = false;
    std::vector<DDECommand> commands_;
    std::size_t waiting_ = 0;  // queued commands, limited by kMostWaiting
    std::size_t waitingBytes_ = 0;
};

}  // namespace tw
