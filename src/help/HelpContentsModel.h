// The table of contents of the help (frmHelpContents).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "help/Help.h"
#include "platform/FormModel.h"

namespace tw {

// A topic and its place in the tree.
struct HelpTopic {
    static constexpr int kTop = -1;

    std::int64_t id = 0;
    std::string key;  // "T{id}"
    std::string name;
    std::string page;
    int parent = kTop;               // index in the list of topics; kTop for a top-level topic
    std::vector<int> children = {};  // indexes in the list of topics, in order
};

// Reads all topics of help.mdb that descend from a top-level topic; parents come before their children.
// Raises Error if the database cannot be read or lists a topic twice; topics then holds the topics read
// before the error.
void ReadHelpTopics(const Help& help, std::vector<HelpTopic>& topics);

// TreeView1 shows the name of the selected topic and accepts a name, which selects the first topic with it;
// pressing TreeView1 is a double click. lblSel shows the selected topic.
class HelpContentsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmHelpContents";

    // Reads the topics and selects the first one. If reading fails, shows a message and keeps the topics read
    // so far. REQUIRES: help outlives the object.
    HelpContentsModel(Help& help, MessagePort& messages);

    // The topics of TreeView1.
    const std::vector<HelpTopic>& Topics() const { return topics_; }
    // Indexes in Topics.
    const std::vector<int>& TopLevel() const { return topLevel_; }
    // Returns the index of the selected topic; HelpTopic::kTop if there are no topics.
    int Selected() const { return selected_; }
    // REQUIRES: topic is an index in Topics.
    void Select(int topic) { selected_ = topic; }
    // Returns the text of lblSel: the name of the selected topic, with each "&" doubled.
    std::string SelectedText() const;
    // Shows the page of the selected topic, as a double click or Enter does.
    void ShowSelected();

  private:
    // Returns an empty text if there are no topics.
    std::string SelectedName() const;
    bool SelectNamed(std::string_view name);

    Help& help_;
    std::vector<HelpTopic> topics_;
    std::vector<int> topLevel_;
    int selected_ = HelpTopic::kTop;
};

}  // namespace tw
