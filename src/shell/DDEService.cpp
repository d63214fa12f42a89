#include "shell/DDEService.h"

#include <utility>

#include "shell/ImportPath.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kActivate = "ACTIVATE";
constexpr std::string_view kImport = "IMPORT";
constexpr std::string_view kFatalInitError = "Fatal Init Error";
constexpr std::string_view kFatalError = "Fatal Error!";
constexpr std::string_view kAlreadyRunning = "Already Running";

// Switches the ticks off for as long as it lives.
class NoTicks {
  public:
    explicit NoTicks(bool& ticking) : ticking_(ticking) { ticking_ = false; }
    ~NoTicks() { ticking_ = true; }
    NoTicks(const NoTicks&) = delete;
    NoTicks& operator=(const NoTicks&) = delete;

  private:
    bool& ticking_;
};

}  // namespace

StartTest DDEService::InitDDE(std::string_view path) {
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
        // The box stands inside the lock, so that a third start waits until it has been answered.
        handedOver_ = HandOver(path);
        found = handedOver_ ? StartTest::HandedOver : StartTest::Failed;
        ShutdownDDE();
    }
    channel_->ReleaseLock();
    return found;
}

StartTest DDEService::Fail(std::string_view title, std::string_view text) {
    messages_.ShowMessage(title, text);
    ShutdownDDE();
    return StartTest::Failed;
}

bool DDEService::HandOver(std::string_view path) {
    bool taken = false;
    if (IsBlank(path)) {
        messages_.ShowMessage(
            kAlreadyRunning,
            "Another instance of Tunwright is already running.\r\nOnly one instance can run at a time.");
        taken = channel_->Send(ChannelMessage::Commands, "Activate", kSendMilliseconds);
    } else {
        taken = channel_->Send(ChannelMessage::File, Trim(path), kSendMilliseconds);
    }
    if (!taken) messages_.ShowMessage(kAlreadyRunning, "The running instance of Tunwright does not answer.");
    return taken;
}

void DDEService::ShutdownDDE() {
    commands_.clear();
    if (!ddeActive_) return;
    channel_->Unregister();
    ddeActive_ = false;
}

bool DDEService::AcceptsTopic(std::string_view topic) {
    return Upper(topic) == Upper(kChannelTopic);
}

void DDEService::Receive(ChannelMessage kind, std::string_view text) {
    text = text.substr(0, text.find('\0'));
    if (text.empty()) return;
    if (kind == ChannelMessage::Commands) return ParseDDECommand(text);
    DDECommand command;
    command.SetVerb(kImport);
    command.AddPath(text);
    AddDDECommand(std::move(command));
    host_.BringToFront();
}

void DDEService::ParseDDECommand(std::string_view text) {
    for (DDECommand& command : ReadDDECommands(text))
        if (command.Verb() != kActivate) AddDDECommand(std::move(command));
    host_.BringToFront();
}

void DDEService::AddDDECommand(DDECommand command) {
    commands_.push_back(std::move(command));
    host_.CommandsWait();
}

void DDEService::TickDDE() {
    if (!ticking_ || commands_.empty() || host_.IsDialogOpen()) return;
    const NoTicks off(ticking_);
    for (const DDECommand& command : std::exchange(commands_, {})) Carry(command);
}

void DDEService::Carry(const DDECommand& command) {
    if (command.Verb() != kImport) return;
    for (int i = 0; i < command.ParameterCount(); ++i) {
        // Parameters are in upper case, which names no file here unless its name is.
        const std::string& sent = command.ParameterAsSent(i);
        const bool named = IsFile(sent) || IsFile(Unquoted(sent));
        host_.ImportFromPath(named ? sent : command.Parameters(i));
    }
}

}  // namespace tw
