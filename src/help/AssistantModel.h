// The welcome window (frmAssistant): five ways to start, and whether it comes up with the program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"

namespace tw {

// One of the links; its controls are "img{name}" and "lbl{name}".
struct AssistantLink {
    std::string_view name;
    std::string_view caption;   // with the mark of its access key
    std::string_view menuItem;  // what a click runs once the window is closed
};

inline constexpr AssistantLink kAssistantLinks[] = {
    {"New", "&Start a new recipe", "mnuFileNew"},
    {"Open", "&Open a recipe", "mnuFileOpen"},
    {"Explore", "&Explore recipes, styles and folders", "mnuToolsExplorer"},
    {"Database", "Set up the &database of ingredients", "mnuToolsDataSetup"},
    {"Help", "Read the &help", "mnuHelpAuto"},
};

class AssistantModel final : public DialogModel {
  public:
    explicit AssistantModel(bool showAtStartup) : showAtStartup_(showAtStartup) {}

    static constexpr std::string_view kTitle = "Tunwright Assistant";
    // chkShowAtStartup.
    bool ShowAtStartup() const { return showAtStartup_; }
    void SetShowAtStartup(bool show) { showAtStartup_ = show; }
    // The menu item of the link that closed the window; empty when something else did.
    std::string_view Chosen() const { return chosen_; }

    std::string FormName() const override { return "frmAssistant"; }
    std::vector<DialogControl> Controls() const override;
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK, or a link by one of its two names; each closes the window.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    bool showAtStartup_;
    std::string_view chosen_;
    bool open_ = true;
};

}  // namespace tw
