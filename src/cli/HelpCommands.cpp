// Commands on the help.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "help/HelpContentsModel.h"

namespace tw {
namespace {

void ShowPage(Session& session, Arguments& arguments) {
    const std::string form = arguments.Word("FORM");
    const std::string context = arguments.Word("CONTEXT");
    arguments.End();
    session.HelpPages().ShowContextHelp(form, context);
}

void PrintContents(Session& session, Arguments& arguments) {
    arguments.End();
    const HelpContentsModel contents(session.HelpPages(), session.Messages());
    // The topics still to be printed, the next one last, with their depth.
    std::vector<std::pair<int, std::size_t>> waiting;
    const auto add = [&](const std::vector<int>& topics, std::size_t depth) {
        std::for_each(topics.rbegin(), topics.rend(), [&](int topic) { waiting.emplace_back(topic, depth); });
    };
    add(contents.TopLevel(), 0);
    while (!waiting.empty()) {
        const auto [place, depth] = waiting.back();
        waiting.pop_back();
        const HelpTopic& topic = contents.Topics()[static_cast<std::size_t>(place)];
        session.Out().Line(std::string(2 * depth, ' ') + EscapeText(topic.name + " " + topic.page));
        add(topic.children, depth + 1);
    }
}

constexpr Command kCommands[] = {
    {"help", "FORM CONTEXT", "the page that F1 opens there; \"?\" is the context of a whole window",
     ShowPage},
    {"contents", "", "the topics of the help with their pages", PrintContents},
};

}  // namespace

std::span<const Command> CommandsOfHelp() {
    return kCommands;
}

}  // namespace tw
