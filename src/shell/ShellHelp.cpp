// The help and the assistant as the main window opens them.
#include "help/AssistantModel.h"
#include "help/HelpContentsModel.h"
#include "shell/Shell.h"

namespace tw {

void Shell::ShowContextHelp(std::string_view formName, std::string_view context) {
    if (help_) Guard([&] { help_->ShowContextHelp(formName, context); });
}

void Shell::ShowHelpOfActive() {
    if (active_ && !(view_ && view_->IsMinimized(*active_)))
        ShowContextHelp("frmDocument", TabContext(static_cast<int>(active_->Focus().CurrentTab()) + 1));
    else
        ShowContextHelp("", kWholeWindow);
}

void Shell::ShowHelpContents() {
    if (!help_) return;
    HelpContentsModel contents(*help_, platform_.messages);
    platform_.dialogs.ShowModal(contents);
}

void Shell::ShowAssistantAtStartup() {
    if (settings_.showAssistantAtStartup) ShowAssistant();
}

void Shell::ShowAssistant() {
    AssistantModel assistant(settings_.showAssistantAtStartup);
    platform_.dialogs.ShowModal(assistant);
    settings_.showAssistantAtStartup = assistant.ShowAtStartup();
    // A link does what its menu item does, also where that is dark for want of a recipe.
    if (const auto chosen = assistant.Chosen()) RunAction(*chosen, ActionOf(*chosen));
}

}  // namespace tw
