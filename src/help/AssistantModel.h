// The welcome window (frmAssistant): five ways to start, and whether it comes up with the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "commands/Commands.h"
#include "platform/FormModel.h"

namespace tw {

// One of the links; its controls are "img{name}" and "lbl{name}".
struct AssistantLink {
    std::string_view name;
    std::string_view caption;  // with the mark of its access key
    CommandId command;         // what a click runs once the window is closed
};

inline constexpr AssistantLink kAssistantLinks[] = {
    {"New", "&Start a new recipe", CommandId::FileNew},
    {"Open", "&Open a recipe", CommandId::FileOpen},
    {"Explore", "&Explore recipes, styles and folders", CommandId::ToolsExplorer},
    {"Database", "Set up the &database of ingredients", CommandId::ToolsDataSetup},
    {"Help", "Read the &help", CommandId::HelpAuto},
};

// chkShowAtStartup; the captions of the links; cmdOK, or a link by one of its two names: each closes the
// window.
class AssistantModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmAssistant";

    explicit AssistantModel(bool showAtStartup);

    static constexpr std::string_view kTitle = "Tunwright Assistant";
    bool ShowAtStartup() const { return showAtStartup_; }
    void SetShowAtStartup(bool show) { showAtStartup_ = show; }
    // The command of the link that closed the window; nothing when something else did.
    std::optional<CommandId> Chosen() const { return chosen_; }

  private:
    void Follow(const AssistantLink& link);

    bool showAtStartup_;
    std::optional<CommandId> chosen_;
};

}  // namespace tw
