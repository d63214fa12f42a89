#include "shell/InstanceService.h"

#include <algorithm>
#include <utility>

#include "platform/ScopeGuard.h"
#include "shell/ImportPath.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kActivate = "ACTIVATE";
constexpr std::string_view kImport = "IMPORT";
constexpr std::string_view kFatalInitError = "Fatal Init Error";
constexpr std::string_view kFatalError = "Fatal Error!";
constexpr std::string_view kAlreadyRunning = "Already Running";

std::size_t BytesOf(const DDECommand& command) {
    // Each parameter is stored twice, as it was sent and in upper case.
    std::size_t bytes = command.Verb().size();
    for (int i = 0; i < command.ParameterCount(); ++i)
        bytes += command.ParameterAsSent(i).size() + command.Parameters(i).size();
    return bytes;
}

}  // namespace

StartTest InstanceService::InitDDE(std::string_view path) {
    if (ddeActive_ || !channel_) return StartTest::OnlyInstance;
    ddeActive_ = true;
    if (!channel_->Initialize()) return Fail(kFatalInitError, "Could not initialize DDE!");
    if (!channel_->CreateLock())
        return Fail(kFatalError, "Failed to create Mutex used for DDE startup synchronization!");
    if (!channel_->TakeLock())
        return Fail(kFatalError, "Failed to attain ownership of Mutex used for DDE startup synchronization!");
    const ChannelPort::Name name = channel_->Register(*this);
    StartTest found = StartTest::OnlyInstance;
    if (name == ChannelPort::Name::Failed) found = Fail(kFatalInitError, "Could not register DDE service!");
    if (name == ChannelPort::Name::HeldByOther) {
        // The message is shown while the lock is held, so that a third start waits until it is answered.
        handedOver_ = HandOver(path);
        found = handedOver_ ? StartTest::HandedOver : StartTest::Failed;
        ShutdownDDE();
    }
    channel_->ReleaseLock();
    return found;
}

StartTest InstanceService::Fail(std::string_view title, std::string_view text) {
    messages_.ShowMessage(title, text);
    ShutdownDDE();
    return StartTest::Failed;
}

bool InstanceService::HandOver(std::string_view path) {
    ChannelPort::Sent sent = ChannelPort::Sent::NoAnswer;
    if (IsBlank(path)) {
        messages_.ShowMessage(
            kAlreadyRunning,
            "Another instance of Tunwright is already running.\r\nOnly one instance can run at a time.");
        sent = channel_->Send(ChannelMessage::Commands, "Activate", kSendMilliseconds);
    } else {
        sent = channel_->Send(ChannelMessage::File, Trim(path), kSendMilliseconds);
    }
    if (sent == ChannelPort::Sent::NoAnswer)
        messages_.ShowMessage(kAlreadyRunning, "The running instance of Tunwright does not answer.");
    if (sent == ChannelPort::Sent::Refused)
        messages_.ShowMessage(kAlreadyRunning,
                              "The running instance of Tunwright takes no more files for now.\r\n"
                              "Close the box that is open there, then try again.");
    return sent == ChannelPort::Sent::Taken;
}

void InstanceService::ShutdownDDE() {
    commands_.clear();
    waiting_ = waitingBytes_ = 0;
    if (!ddeActive_) return;
    channel_->Unregister();
    ddeActive_ = false;
}

bool InstanceService::AcceptsTopic(std::string_view topic) {
    return Upper(topic) == Upper(kChannelTopic);
}

bool InstanceService::Receive(ChannelMessage kind, std::string_view text) {
    text = text.substr(0, text.find('\0'));
    if (text.empty()) return true;
    if (kind == ChannelMessage::Commands) return ParseDDECommand(text);
    DDECommand command;
    command.SetVerb(kImport);
    command.AddPath(text);
    const bool taken = AddDDECommand(std::move(command));
    host_.BringToFront();
    return taken;
}

bool InstanceService::ParseDDECommand(std::string_view text) {
    std::vector<DDECommand> commands = ReadDDECommands(text);
    std::erase_if(commands, [](const DDECommand& command) { return command.Verb() == kActivate; });
    const bool taken = Queue(std::move(commands));
    // Even if the queue is full: the brewer can then close the dialog for which it is waiting.
    host_.BringToFront();
    return taken;
}

bool InstanceService::AddDDECommand(DDECommand command) {
    std::vector<DDECommand> commands;
    commands.push_back(std::move(command));
    return Queue(std::move(commands));
}

bool InstanceService::Queue(std::vector<DDECommand> commands) {
    std::size_t count = waiting_;
    std::size_t bytes = waitingBytes_;
    for (const DDECommand& command : commands) {
        count += std::max<std::size_t>(1, static_cast<std::size_t>(command.ParameterCount()));
        bytes += BytesOf(command);
    }
    if (count > kMostWaiting || bytes > kMostWaitingBytes) return false;
    waiting_ = count;
    waitingBytes_ = bytes;
    for (DDECommand& command : commands) {
        commands_.push_back(std::move(command));
        host_.CommandsWait();
    }
    return true;
}

void InstanceService::TickDDE() {
    if (!ticking_ || commands_.empty() || host_.IsDialogOpen()) return;
    const ScopedValue ticking(ticking_, false);
    waiting_ = waitingBytes_ = 0;
    for (const DDECommand& command : std::exchange(commands_, {})) Carry(command);
}

void InstanceService::Carry(const DDECommand& command) {
    if (command.Verb() != kImport) return;
    for (int i = 0; i < command.ParameterCount(); ++i) {
        // File names are case-sensitive here, so the upper-case form is used only if there is no file of the
        // name as sent.
        const std::string& sent = command.ParameterAsSent(i);
        const bool named = IsFile(sent) || IsFile(Unquoted(sent));
        host_.ImportFromPath(named ? sent : command.Parameters(i));
    }
}

}  // namespace tw
