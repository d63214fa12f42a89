#include "shell/DDECommand.h"

#include <utility>

#include "platform/Error.h"
#include "values/Split.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kSubscriptOutOfRange = 9;

DDECommand ReadPiece(std::string_view piece) {
    if (piece.ends_with(']')) piece.remove_suffix(1);
    DDECommand command;
    const std::size_t split = piece.find_first_of("( ");
    command.SetVerb(piece.substr(0, split));
    if (split == piece.npos) return command;
    std::string_view rest = piece.substr(split + 1);
    if (rest.ends_with(')')) rest.remove_suffix(1);
    // Without this, an empty text after the verb would count as one empty parameter.
    if (rest.empty()) return command;
    for (const std::string_view part : Split(rest, ',')) command.AddParameter(part);
    return command;
}

}  // namespace

void DDECommand::SetVerb(std::string_view text) {
    verb_ = Upper(Trim(text));
}

void DDECommand::AddParameter(std::string_view text) {
    const std::string_view trimmed = Trim(text);
    parameters_.push_back({Upper(trimmed), std::string(trimmed)});
}

void DDECommand::AddPath(std::string_view path) {
    parameters_.push_back({std::string(path), std::string(path)});
}

const DDECommand::Parameter& DDECommand::At(int index) const {
    if (index < 0 || index >= ParameterCount())
        throw Error("DDECommand", "Subscript out of range", kSubscriptOutOfRange);
    return parameters_[static_cast<std::size_t>(index)];
}

std::vector<DDECommand> ReadDDECommands(std::string_view text) {
    std::vector<DDECommand> commands;
    for (const std::string_view part : Split(text, '[')) {
        const std::string_view piece = Trim(part);
        if (!piece.empty()) commands.push_back(ReadPiece(piece));
    }
    return commands;
}

}  // namespace tw
