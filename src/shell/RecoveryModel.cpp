#include "shell/RecoveryModel.h"

#include <algorithm>

#include "platform/ErrorBox.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kTitle = "Unsaved Changes";

std::string NameOf(const LostRecipe& lost) {
    const std::string name = lost.snapshot.Name();
    return IsBlank(name) ? "Untitled" : std::string(Trim(name));
}

std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

RecoveryModel::RecoveryModel(LostRecipes& recipes, MessagePort& messages, std::vector<LostRecipe> lost)
    : recipes_(recipes), messages_(messages), lost_(std::move(lost)), open_(!lost_.empty()) {}

std::vector<std::string> RecoveryModel::Entries() const {
    std::vector<std::string> entries;
    for (const LostRecipe& lost : lost_)
        entries.push_back(NameOf(lost) + ", " + ShortDate(lost.keptWhen) + " " +
                          TwoDigits(lost.keptWhen.hour) + ":" + TwoDigits(lost.keptWhen.minute));
    return entries;
}

void RecoveryModel::Select(int index) {
    if (index >= 0 && index < static_cast<int>(lost_.size())) selected_ = index;
}

std::vector<DialogControl> RecoveryModel::Controls() const {
    return {{"lstRecipes", lost_.empty() ? std::string() : Entries()[static_cast<std::size_t>(selected_)]}};
}

bool RecoveryModel::SetControl(std::string_view name, std::string_view text) {
    const std::vector<std::string> entries = Entries();
    const auto found = std::ranges::find(entries, text);
    if (name != "lstRecipes" || found == entries.end()) return false;
    Select(static_cast<int>(found - entries.begin()));
    return true;
}

bool RecoveryModel::Press(std::string_view button) {
    if (button == "cmdClose") {
        open_ = false;
        return true;
    }
    struct Row {
        std::string_view name;
        void (RecoveryModel::*action)();
    };
    static constexpr Row kRows[] = {{"cmdRestore", &RecoveryModel::RestoreSelected},
                                    {"cmdRestoreAll", &RecoveryModel::RestoreAll},
                                    {"cmdDiscard", &RecoveryModel::DiscardSelected},
                                    {"cmdDiscardAll", &RecoveryModel::DiscardAll}};
    const auto found = std::ranges::find(kRows, button, &Row::name);
    if (found == std::end(kRows)) return false;
    if (open_) (this->*found->action)();
    return true;
}

void RecoveryModel::Drop(int index) {
    lost_.erase(lost_.begin() + index);
    selected_ = std::clamp(selected_, 0, std::max(0, static_cast<int>(lost_.size()) - 1));
    if (lost_.empty()) open_ = false;
}

// One that cannot be restored has been reported and is offered no more.
void RecoveryModel::RestoreSelected() {
    if (RunShowingErrors(messages_, [&] { recipes_.Restore(lost_[static_cast<std::size_t>(selected_)]); }))
        Drop(selected_);
}

void RecoveryModel::RestoreAll() {
    selected_ = 0;
    while (open_ && RunShowingErrors(messages_, [&] { recipes_.Restore(lost_.front()); })) Drop(0);
}

void RecoveryModel::DiscardSelected() {
    const LostRecipe& lost = lost_[static_cast<std::size_t>(selected_)];
    const std::string question = "Throw away the unsaved changes of recipe '" + NameOf(lost) + "'?";
    if (messages_.Ask(kTitle, question, Question::YesNo) != Answer::Yes) return;
    recipes_.Discard(lost);
    Drop(selected_);
}

void RecoveryModel::DiscardAll() {
    if (lost_.size() == 1) return DiscardSelected();
    const std::string question =
        "Throw away the unsaved changes of all " + std::to_string(lost_.size()) + " recipes?";
    if (messages_.Ask(kTitle, question, Question::YesNo) != Answer::Yes) return;
    for (const LostRecipe& lost : lost_) recipes_.Discard(lost);
    while (!lost_.empty()) Drop(0);
}

}  // namespace tw
