// Commands on folders, styles and stored recipes, by the keys of the tree.
#include <string>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "tree/TWNodes.h"

namespace tw {
namespace {

TWNode& NodeAt(Session& session, const std::string& key) {
    TWNode* const node = session.Program().Opened()->data.tree.Nodes(key);
    if (node == nullptr) throw ScriptError("there is no entry '" + key + "' in the tree");
    return *node;
}

void PrintTree(Session& session, Arguments& arguments) {
    const std::string key = arguments.AtEnd() ? std::string(kDatabaseKey) : arguments.Word("KEY");
    arguments.End();
    // The nodes still to be printed, the next one last. Not recursive, since folders can be nested as
    // deeply as the data says.
    std::vector<std::pair<TWNode*, std::size_t>> open;
    const auto openChildren = [&](TWNode& node, std::size_t level) {
        if (!node.HasChildren()) return;
        for (std::size_t i = node.Children().Count(); i-- > 0;)
            open.emplace_back(&node.Children().Item(i), level);
    };
    openChildren(NodeAt(session, key), 0);
    while (!open.empty()) {
        const auto [node, level] = open.back();
        open.pop_back();
        session.Out().Line(std::string(2 * level, ' ') + EscapeText(node->Key()) + " " +
                           EscapeText(node->Name()));
        openChildren(*node, level + 1);
    }
}

void CreateFolder(Session& session, Arguments& arguments) {
    const std::string parentKey = arguments.Word("PARENTKEY");
    const std::string name = arguments.Text();
    const std::string key = session.Program().Opened()->data.objects.CreateFolderObject(parentKey, name);
    if (!key.empty()) session.Out().Line(key);
}

void Move(Session& session, Arguments& arguments) {
    const std::string source = arguments.Word("the KEY to move");
    const std::string dest = arguments.Word("the KEY to move to");
    arguments.End();
    session.Program().Opened()->data.objects.MoveObject(source, dest);
}

void Rename(Session& session, Arguments& arguments) {
    const std::string key = arguments.Word("KEY");
    const std::string name = arguments.LastName("NAME");
    session.Program().Opened()->data.objects.RenameObject(key, name);
}

void Remove(Session& session, Arguments& arguments) {
    const std::string key = arguments.Word("KEY");
    arguments.End();
    session.Program().Opened()->data.objects.DeleteObject(key);
}

void Can(Session& session, Arguments& arguments) {
    const std::string what = arguments.Word("delete, rename, hold or drop");
    const std::string key = arguments.Word("KEY");
    bool can = false;
    if (what == "delete")
        can = CanDeleteNode(key);
    else if (what == "rename")
        can = CanRenameNode(key);
    else if (what == "hold")
        can = CanHoldFolders(key);
    else if (what == "drop")
        can = CanDropOn(key, arguments.Word("the KEY to drop on"));
    else
        throw ScriptError("'" + what + "' is none of delete, rename, hold, drop");
    arguments.End();
    session.Out().Line(YesNo(can));
}

constexpr Command kCommands[] = {
    {"tree", "[KEY]", "the entries below, or all", PrintTree},
    {"folder", "PARENTKEY [NAME]", "makes a folder: its key", CreateFolder},
    {"move", "KEY KEY", "moves an object onto another", Move},
    {"rename", "KEY NAME", "renames an object", Rename},
    {"remove", "KEY", "deletes an object with what hangs on it, without a question", Remove},
    {"can", "delete|rename|hold|drop KEY [KEY]", "whether a key allows that", Can},
};

}  // namespace

std::span<const Command> CommandsOnTree() {
    return kCommands;
}

}  // namespace tw
