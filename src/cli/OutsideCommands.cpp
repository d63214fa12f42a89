// What comes from outside while the program runs.
#include "cli/Command.h"

namespace tw {
namespace {

void ReceiveCommands(Session& session, Arguments& arguments) {
    session.Program().DDE().Receive(ChannelMessage::Commands, arguments.Text());
}

constexpr Command kCommands[] = {
    {"dde", "TEXT", "a command text from another program", ReceiveCommands},
};

}  // namespace

std::span<const Command> CommandsFromOutside() {
    return kCommands;
}

}  // namespace tw
