// The table of contents of the help (frmHelpContents).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "help/Help.h"
#include "platform/FormModel.h"

namespace tw {

// A topic and where it stands.
struct HelpTopic {
    static constexpr int kTop = -1;

    std::int64_t id = 0;
    std::string key;  // "T{id}"
    std::string name;
    std::string page;
    int parent = kTop;               // its place in the list of topics, kTop for a top-level one
    std::vector<int> children = {};  // likewise, in their order
};

// All topics of help.mdb that hang together with a top-level one, parents before their children. Raises Error
// when it cannot be read, and for a topic that stands in it twice: what topics holds then has been read
// before.
void ReadHelpTopics(const Help& help, std::vector<HelpTopic>& topics);

// TreeView1 shows and takes the name of a topic, of two with the same name the first; a press on it is a
// double click. lblSel.
class HelpContentsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmHelpContents";

    // Reads the topics; a failure is shown in a box, and the tree holds what was read before it. The first
    // topic is selected. REQUIRES: both outlive the object.
    HelpContentsModel(Help& help, MessagePort& messages);

    // TreeView1.
    const std::vector<HelpTopic>& Topics() const { return topics_; }
    // Places in Topics.
    const std::vector<int>& TopLevel() const { return topLevel_; }
    // HelpTopic::kTop without a topic.
    int Selected() const { return selected_; }
    // REQUIRES: there is such a topic.
    void Select(int topic) { selected_ = topic; }
    // lblSel: the name of the selected topic, each "&" doubled.
    std::string SelectedText() const;
    // A double click, or Enter: shows the page of the selected topic.
    void ShowSelected();

  private:
    // Empty without a topic.
    std::string SelectedName() const;
    bool SelectNamed(std::string_view name);

    Help& help_;
    std::vector<HelpTopic> topics_;
    std::vector<int> topLevel_;
    int selected_ = HelpTopic::kTop;
};

}  // namespace tw
