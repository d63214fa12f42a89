#include "shell/AutoSaver.h"

#include "platform/ErrorBox.h"
#include "platform/ScopeGuard.h"

namespace tw {

void AutoSaver::Tick() {
    // Minutes spent saving are not counted. During an import nothing is saved: a save would belong to the
    // import's unit of work, and be lost if that is.
    if (!settings_.doAutoSave || saving_ || files_.IsRunning() || data_.database->ReadOnly()) return;
    if (!minutes_.Tick(!documents_.All().empty(), settings_.doAutoSaveEvery)) return;
    Run();
    minutes_.Reset();
}

void AutoSaver::Run() {
    if (documents_.All().empty() || saving_) return;
    const ScopedValue saving(saving_, true);
    AutoSaveModel progress = Progress();
    RunShowingErrors(data_.platform.messages, [&] { data_.platform.dialogs.ShowModal(progress); });
}

AutoSaveModel AutoSaver::Progress() {
    return {documents_, [this](RecipeDocument& document) {
                RunShowingErrors(data_.platform.messages, [&] { saver_.Save(document, Asking::Quietly); });
            }};
}

}  // namespace tw
