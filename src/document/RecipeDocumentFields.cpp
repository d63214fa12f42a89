// The text boxes of a recipe: typing, validation, commit.
#include "calc/FieldRules.h"
#include "document/RecipeDocument.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

bool IsFreeText(const TextBox& box) {
    return RuleOf(box).takes == FieldTakes::FreeText;
}

Reading<double> ReadMultiplier(std::string_view text) {
    if (IsBlank(text)) return 1.0;
    const std::optional<double> number = ParseReal(text);
    if (!number) return Refusal{kInvalidEntry, "Please enter a valid decimal number"};
    if (*number < 0) return Refusal{kInvalidEntry, "Please enter a positive decimal number"};
    return *number;
}

}  // namespace

void RecipeDocument::SetText(TextBox& box, std::string_view text) {
    if (box.Computed() || box.Text() == text) return;
    RecordText(box, text, ChangeType::Typing);
    box.SetText(text);
    if (!IsFreeText(box)) return;
    MarkChanged();
    if (box.Id() == FieldId::Name) host_.DocumentRenamed(*this);
}

void RecipeDocument::RestoreField(TextBox& box) {
    if (box.Computed() || box.Text() == box.Committed()) return;
    const std::string committed = box.Committed();
    // Free text has no refusals; what was typed since it was left is typed back.
    RecordText(box, committed, IsFreeText(box) ? ChangeType::Typing : ChangeType::Abort);
    box.SetText(committed);
    if (box.Id() == FieldId::Name) host_.DocumentRenamed(*this);
}

bool RecipeDocument::CommitField(TextBox& box, Asking asking) {
    if (box.Computed()) return true;
    // Where a quantity belongs, blanks alone are the empty text.
    if (!IsFreeText(box) && IsBlank(box.Text())) SetText(box, {});
    if (box.Text() == box.Committed()) return true;
    if (IsFreeText(box)) {
        box.SetCommitted(box.Text());
        return true;
    }
    const Commit commit = CommitQuantity(box);
    // The record is whole again before the box, behind which the program goes on.
    if (!commit && asking == Asking::Aloud) ShowRefusal(platform_.messages, commit.Why());
    if (commit) MarkChanged();
    return static_cast<bool>(commit);
}

// Takes the text of a box that holds a quantity, and runs its chain. A refused text leaves the record as it
// was.
Commit RecipeDocument::CommitQuantity(TextBox& box) {
    const std::string oldText = box.Committed();
    const double oldValue = box.Value();
    const auto goBack = [&] {
        box.SetValue(oldValue);
        box.SetCommitted(oldText);
    };
    bool chainRan = false;
    try {
        const Reading<double> value = ReadField(box, box.Text());
        if (!value) return Commit::Refused(value.Why());
        box.SetValue(*value);
        // The text being committed counts in its own chain.
        box.SetCommitted(box.Text());
        chainRan = true;
        Commit commit = RunFieldChain(box);
        if (!commit) goBack();
        return commit;
    } catch (const Error&) {
        goBack();
        RestoreField(box);
        // The chain of the old value refuses nothing that it did not refuse when that was committed.
        if (chainRan) (void)RunFieldChain(box);
        throw;
    }
}

void RecipeDocument::FlushEditsQuietly() {
    for (TextBox* box : record_.TextBoxes()) {
        if (IsBlank(box->Text())) continue;
        const std::string typed = box->Text();
        if (!Quietly([&] { return CommitField(*box, Asking::Quietly); })) SetText(*box, typed);
    }
}

Reading<double> RecipeDocument::ReadField(const TextBox& box, std::string_view text) {
    switch (RuleOf(box).takes) {
        case FieldTakes::Gallons:
            return ValidateVolume(text);
        case FieldTakes::Percent:
            return ValidatePercent(text);
        case FieldTakes::SpecificGravity:
            return ValidateGravity(text);
        case FieldTakes::Fahrenheit:
            return ValidateTemperature(text);
        case FieldTakes::Multiplier:
            return ReadMultiplier(text);
        case FieldTakes::FreeText:
            break;
    }
    return box.Value();
}

Commit RecipeDocument::RunFieldChain(const TextBox& box) {
    const auto chain = RuleOf(box).chain;
    return chain ? chain(calculator_) : Commit::Accepted();
}

}  // namespace tw
