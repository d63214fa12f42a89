// The welcome window (frmAssistant): seven ways to start, and whether to show the window when the
// program starts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "commands/Commands.h"
#include "platform/FormModel.h"

namespace tw {

// A link of the window. Its controls are named "img{name}" and "lbl{name}".
struct AssistantLink {
    std::string_view name;
    std::string_view caption;  // "&" marks the access key
    CommandId command;         // what a click runs after the window has closed
    std::string_view image;    // the name of its picture
    bool original = true;      // false for a link that came later, whose caption is not listed by Controls
};

inline constexpr AssistantLink kAssistantLinks[] = {
    {"New", "&Start a new recipe", CommandId::FileNew, "high/New"},
    {"Sample", "Open the &first recipe, a finished pale ale", CommandId::HelpSample, "tunwright", false},
    {"Open", "&Open a recipe", CommandId::FileOpen, "high/Open"},
    {"Explore", "&Explore recipes, styles and folders", CommandId::ToolsExplorer, "high/Explorer"},
    {"Brewhouse", "Your &brewhouse: sizes, yield, water", CommandId::ToolsBrewhouse, "high/Gal", false},
    {"Database", "Set up the &database of ingredients", CommandId::ToolsDataSetup, "high/Setup"},
    {"Help", "Read the &help", CommandId::HelpAuto, "help"},
};

// Controls: chkShowAtStartup and the captions of the links. Buttons: cmdOK and each link, by either of its
// two names; each closes the window.
class AssistantModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmAssistant";

    explicit AssistantModel(bool showAtStartup);

    static constexpr std::string_view kTitle = "Tunwright Assistant";
    bool ShowAtStartup() const { return showAtStartup_; }
    void SetShowAtStartup(bool show) { showAtStartup_ = show; }
    // Returns the command of the link that closed the window; none if it was closed in another way.
    std::optional<CommandId> Chosen() const { return chosen_; }

  private:
    void Follow(const AssistantLink& link);

    bool showAtStartup_;
    std::optional<CommandId> chosen_;
};

}  // namespace tw
