#include "help/HelpContentsModel.h"

#include <algorithm>
#include <set>

#include "platform/Error.h"
#include "store/Database.h"

namespace tw {
namespace {

constexpr std::int64_t kNoParent = -1;

// Appends the children of a topic to the list of all topics.
void AppendChildren(Database& database, int parent, std::vector<HelpTopic>& topics,
                    std::set<std::int64_t>& seen) {
    const std::int64_t parentId =
        parent == HelpTopic::kTop ? kNoParent : topics[static_cast<std::size_t>(parent)].id;
    Recordset rows = database.OpenRecordset(
        "SELECT TOPIC_NAME, TOPIC_ID, TOPIC_HELP_URL FROM HELP_CONTENTS"
        " WHERE PARENT_TOPIC_ID = ? ORDER BY TOPIC_ID",
        {parentId});
    for (; !rows.AtEnd(); rows.MoveNext()) {
        const std::int64_t id = rows.Fields("TOPIC_ID").Integer();
        // A tree cannot have two nodes with the same key, and a cycle of topics would never end.
        if (!seen.insert(id).second)
            throw Error("HelpContents", "The topic " + std::to_string(id) + " is listed twice", 0);
        if (parent != HelpTopic::kTop)
            topics[static_cast<std::size_t>(parent)].children.push_back(static_cast<int>(topics.size()));
        topics.push_back({id, "T" + std::to_string(id), rows.Fields("TOPIC_NAME").Text(),
                          rows.Fields("TOPIC_HELP_URL").Text(), parent});
    }
}

}  // namespace

void ReadHelpTopics(const Help& help, std::vector<HelpTopic>& topics) {
    const auto database = Database::OpenDatabase(help.DatabasePath(), false);
    std::set<std::int64_t> seen = {kNoParent};
    topics.clear();
    AppendChildren(*database, HelpTopic::kTop, topics, seen);
    for (int topic = 0; topic < static_cast<int>(topics.size()); ++topic)
        AppendChildren(*database, topic, topics, seen);
}

HelpContentsModel::HelpContentsModel(Help& help, MessagePort& messages) : FormModel(kFormName), help_(help) {
    AddControls({
        {"TreeView1", [this] { return SelectedName(); },
         [this](std::string_view name) { return SelectNamed(name); }},
        {"lblSel", [this] { return SelectedText(); }},
    });
    AddButtons({{"TreeView1", [this] { ShowSelected(); }}});
    try {
        ReadHelpTopics(help, topics_);
    } catch (const Error& error) {
        messages.ShowMessage("Error Loading Help Topics", "Error: " + error.Description());
    }
    for (int topic = 0; topic < static_cast<int>(topics_.size()); ++topic)
        if (topics_[static_cast<std::size_t>(topic)].parent == HelpTopic::kTop) topLevel_.push_back(topic);
    if (!topics_.empty()) selected_ = 0;
}

std::string HelpContentsModel::SelectedName() const {
    return selected_ == HelpTopic::kTop ? std::string() : topics_[static_cast<std::size_t>(selected_)].name;
}

std::string HelpContentsModel::SelectedText() const {
    std::string text;
    for (const char c : SelectedName()) text.append(c == '&' ? 2 : 1, c);
    return text;
}

void HelpContentsModel::ShowSelected() {
    if (selected_ != HelpTopic::kTop) help_.ShowHelpPage(topics_[static_cast<std::size_t>(selected_)].page);
}

bool HelpContentsModel::SelectNamed(std::string_view name) {
    const auto found = std::ranges::find(topics_, name, &HelpTopic::name);
    if (found == topics_.end()) return false;
    selected_ = static_cast<int>(found - topics_.begin());
    return true;
}

}  // namespace tw
