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
    : FormModel(kFormName), recipes_(recipes), messages_(messages), lost_(std::move(lost)) {
    AddControls({{"lstRecipes", [this] { return SelectedEntry(); },
                  [this](std::string_view entry) { return SelectEntry(entry); }}});
    const auto isOpen = [this] { return IsOpen(); };
    AddButtons({
        {"cmdRestore", [this] { RestoreSelected(); }, isOpen},
        {"cmdRestoreAll", [this] { RestoreAll(); }, isOpen},
        {"cmdDiscard", [this] { DiscardSelected(); }, isOpen},
        {"cmdDiscardAll", [this] { DiscardAll(); }, isOpen},
        {"cmdClose", [this] { Close(); }},
    });
    if (lost_.empty()) Close();
}

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

std::string RecoveryModel::SelectedEntry() const {
    return lost_.empty() ? std::string() : Entries()[static_cast<std::size_t>(selected_)];
}

bool RecoveryModel::SelectEntry(std::string_view entry) {
    const std::vector<std::string> entries = Entries();
    const auto found = std::ranges::find(entries, entry);
    if (found == entries.end()) return false;
    Select(static_cast<int>(found - entries.begin()));
    return true;
}

void RecoveryModel::Drop(int index) {
    lost_.erase(lost_.begin() + index);
    selected_ = std::clamp(selected_, 0, std::max(0, static_cast<int>(lost_.size()) - 1));
    if (lost_.empty()) Close();
}

// A recipe that cannot be restored has been reported, and leaves the list too.
void RecoveryModel::RestoreSelected() {
    if (RunShowingErrors(messages_, [&] { recipes_.Restore(lost_[static_cast<std::size_t>(selected_)]); }))
        Drop(selected_);
}

void RecoveryModel::RestoreAll() {
    selected_ = 0;
    while (IsOpen() && RunShowingErrors(messages_, [&] { recipes_.Restore(lost_.front()); })) Drop(0);
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
