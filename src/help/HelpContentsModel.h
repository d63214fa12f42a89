// The table of contents of the help (frmHelpContents).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "help/Help.h"
#include "platform/DialogModel.h"

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

class HelpContentsModel final : public DialogModel {
  public:
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

    std::string FormName() const override { return "frmHelpContents"; }
    // TreeView1 shows the name of the selected topic.
    std::vector<DialogControl> Controls() const override;
    // TreeView1 takes the name of a topic; of two with the same name the first is meant.
    bool SetControl(std::string_view name, std::string_view text) override;
    // TreeView1: a double click on the selected topic.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    Help& help_;
    std::vector<HelpTopic> topics_;
    std::vector<int> topLevel_;
    int selected_ = HelpTopic::kTop;
    bool open_ = true;
};

}  // namespace tw
