// The welcome window (frmAssistant): five ways to start, and whether it comes up with the program.
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"

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

// chkShowAtStartup; the captions of the links; cmdOK, or a link by one of its two names: each closes the
// window.
class AssistantModel final : public FormModel {
  public:
    explicit AssistantModel(bool showAtStartup);

    static constexpr std::string_view kTitle = "Tunwright Assistant";
    bool ShowAtStartup() const { return showAtStartup_; }
    void SetShowAtStartup(bool show) { showAtStartup_ = show; }
    // The menu item of the link that closed the window; empty when something else did.
    std::string_view Chosen() const { return chosen_; }

  private:
    void Follow(const AssistantLink& link);

    bool showAtStartup_;
    std::string_view chosen_;
};

}  // namespace tw
