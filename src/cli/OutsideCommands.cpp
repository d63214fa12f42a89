// Commands for input that other programs send to the running program.
#include "cli/Command.h"

namespace tw {
namespace {

void ReceiveCommands(Session& session, Arguments& arguments) {
    if (!session.Program().Instance().Receive(ChannelMessage::Commands, arguments.Text()))
        session.Out().Line("refused");
}

constexpr Command kCommands[] = {
    {"dde", "TEXT", "a command text from another program", ReceiveCommands},
};

}  // namespace

std::span<const Command> CommandsFromOutside() {
    return kCommands;
}

}  // namespace tw
