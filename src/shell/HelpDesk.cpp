#include "shell/HelpDesk.h"

#include "help/HelpContentsModel.h"
#include "platform/ErrorBox.h"

namespace tw {

void HelpDesk::ShowContextHelp(std::string_view formName, std::string_view context) {
    Help* const help = environment_.help;
    if (help == nullptr) return;
    RunShowingErrors(environment_.platform.messages, [&] { help->ShowContextHelp(formName, context); });
}

void HelpDesk::ShowForActive() {
    const RecipeDocument* const active = documents_.Active();
    if (active != nullptr && !view_->IsMinimized(*active))
        ShowContextHelp(RecipeDocument::kFormName,
                        TabContext(static_cast<int>(active->Focus().CurrentTab()) + 1));
    else
        ShowContextHelp("", kWholeWindow);
}

void HelpDesk::ShowNews() {
    Help* const help = environment_.help;
    if (help == nullptr) return;
    RunShowingErrors(environment_.platform.messages, [&] { help->ShowHelpPage("news.html"); });
}

void HelpDesk::ShowContents() {
    if (environment_.help == nullptr) return;
    HelpContentsModel contents(*environment_.help, environment_.platform.messages);
    environment_.platform.dialogs.ShowModal(contents);
}

}  // namespace tw
