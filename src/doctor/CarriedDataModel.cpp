#include "doctor/CarriedDataModel.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/ErrorBox.h"

namespace tw {

CarriedDataModel::CarriedDataModel(Database& database, std::int64_t recipeId, std::string recipe,
                                   MessagePort& messages, ClipboardPort& clipboard)
    : FormModel(kFormName),
      carried_(database),
      recipeId_(recipeId),
      recipe_(std::move(recipe)),
      messages_(messages),
      clipboard_(clipboard),
      fragments_(carried_.Of(recipeId)),
      fields_(ReadCarriedFields(fragments_)) {
    if (!fields_.empty()) selected_ = 0;
    const auto isFilled = [this] { return !fields_.empty(); };
    AddControls({
        {"lblSource", [this] { return SourceText(ShortDate); }},
        {"treeFields", [this] { return SelectedField() ? SelectedField()->Line() : std::string(); },
         [this](std::string_view text) { return SelectNamed(text); }},
    });
    AddButtons({
        {"treeFields", [this] { CopySelected(); }, isFilled},
        {"cmdDrop", [this] { Drop(); }, isFilled},
        {"cmdClose", [this] { Close(); }},
    });
}

const CarriedField* CarriedDataModel::SelectedField() const {
    return selected_ == CarriedField::kTop ? nullptr : &fields_[static_cast<std::size_t>(selected_)];
}

std::string CarriedDataModel::SourceText(const std::function<std::string(const DateTime&)>& dateText) const {
    const CarriedField* const field = SelectedField();
    if (!field) return "This recipe carries no data of another program.";
    const CarriedFragment& fragment = fragments_[field->fragment];
    const std::optional<DateTime> imported = ParseDateText(fragment.imported);
    return "From " + fragment.source + ", imported " + (imported ? dateText(*imported) : fragment.imported);
}

void CarriedDataModel::CopySelected() {
    if (SelectedField()) clipboard_.SetText(BranchText(fields_, static_cast<std::size_t>(selected_)));
}

bool CarriedDataModel::SelectNamed(std::string_view text) {
    const auto found = std::ranges::find_if(
        fields_, [&](const CarriedField& field) { return field.Line() == text || field.name == text; });
    if (found == fields_.end()) return false;
    selected_ = static_cast<int>(found - fields_.begin());
    return true;
}

void CarriedDataModel::Drop() {
    const std::string question =
        "Drop the carried data of '" + recipe_ + "'?\r\nAn export can then no longer give these fields back.";
    if (messages_.Ask("Carried Data", question, Question::YesNo) != Answer::Yes) return;
    if (!RunShowingErrors(messages_, [this] { carried_.Drop(recipeId_); })) return;
    selected_ = CarriedField::kTop;
    fields_.clear();
    fragments_.clear();
    Close();
}

}  // namespace tw
