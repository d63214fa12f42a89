#include "document/RecipeFields.h"

#include <string>

#include "record/Entries.h"
#include "record/FieldRules.h"
#include "values/Text.h"

namespace tw {
namespace {

bool IsFreeText(const TextBox& box) {
    return RuleOf(box).takes == FieldTakes::FreeText;
}

std::string_view Characters(std::string_view text, TextSelection selection) {
    const std::size_t begin = CodePointOffset(text, static_cast<std::size_t>(selection.start));
    const std::string_view rest = text.substr(begin);
    return rest.substr(0, CodePointOffset(rest, static_cast<std::size_t>(selection.length)));
}

}  // namespace

std::string_view SelectedText(const TextBox& box) {
    return Characters(box.Text(), box.Selection());
}

void RecipeFields::SetText(TextBox& box, std::string_view text) {
    if (box.Computed() || box.Text() == text) return;
    Record(box, text, ChangeType::Typing);
    box.SetText(text);
    if (!IsFreeText(box)) return;
    recipe_.MarkChanged();
    if (box.Id() == FieldId::Name) recipe_.Renamed();
}

void RecipeFields::RestoreField(TextBox& box) {
    if (box.Computed() || box.Text() == box.Committed()) return;
    const std::string committed = box.Committed();
    // Free text is never refused; restoring it counts as typing, which takes back what was typed since the
    // box was left.
    Record(box, committed, IsFreeText(box) ? ChangeType::Typing : ChangeType::Abort);
    box.SetText(committed);
    if (box.Id() == FieldId::Name) recipe_.Renamed();
}

bool RecipeFields::CommitField(TextBox& box, Asking asking) {
    if (box.Computed()) return true;
    // Blanks alone count as an empty text where a quantity is expected.
    if (!IsFreeText(box) && IsBlank(box.Text())) SetText(box, {});
    if (box.Text() == box.Committed()) return true;
    if (IsFreeText(box)) {
        box.SetCommitted(box.Text());
        return true;
    }
    const Commit commit = CommitQuantity(box);
    // The record is consistent again before the message is shown, because the program keeps running
    // behind it.
    if (!commit && asking == Asking::Aloud) recipe_.Tell(commit.Why());
    if (commit) recipe_.MarkChanged();
    return static_cast<bool>(commit);
}

bool RecipeFields::CommitIfReadable(TextBox& box) {
    try {
        return CommitField(box, Asking::Quietly);
    } catch (const Error&) {
        return false;
    }
}

// Commits the text of a box that holds a quantity, and recalculates what depends on it. A refused text leaves
// the record as it was.
Commit RecipeFields::CommitQuantity(TextBox& box) {
    const std::string oldText = box.Committed();
    const double oldValue = box.Value();
    const bool oldOwn = box.HasOwnNumber();
    const auto goBack = [&] {
        box.SetValue(oldValue);
        box.SetCommitted(oldText);
        box.SetOwnNumber(oldOwn);
    };
    bool chainRan = false;
    try {
        const Reading<double> value = ReadEntry(box, box.Text());
        if (!value) return Commit::Refused(value.Why());
        box.SetValue(*value);
        // The chain must already see the text being committed.
        box.SetCommitted(box.Text());
        box.SetOwnNumber(false);
        chainRan = true;
        Commit commit = RunChain(box);
        if (!commit) goBack();
        return commit;
    } catch (const Error&) {
        goBack();
        RestoreField(box);
        // The result is ignored: the chain accepted the old value when that was committed.
        if (chainRan) (void)RunChain(box);
        throw;
    }
}

Commit RecipeFields::RunChain(const TextBox& box) {
    const auto chain = RuleOf(box).chain;
    return chain ? chain(recipe_.calculator) : Commit::Accepted();
}

void RecipeFields::CommitDefault(TextBox& box, std::string_view text) {
    box.SetText(text);
    if (!CommitIfReadable(box)) RestoreField(box);
}

void RecipeFields::Replace(TextBox& box, TextSelection characters, std::string_view with, ChangeType type) {
    if (box.Computed()) return;
    const CompoundEdit compound(recipe_.recorder, type);
    const std::string_view old = box.Text();
    const std::string_view replaced = Characters(old, characters);
    std::string text(old.data(), replaced.data());
    text += with;
    text.append(replaced.data() + replaced.size(), old.data() + old.size());
    SetText(box, text);
    box.Select({characters.start + static_cast<int>(CodePointCount(with)), 0});
}

EditValue RecipeFields::StateOf(const TextBox& box) {
    // Only the committed text can have a number of its own.
    return box.HasOwnNumber() && box.Text() == box.Committed()
               ? EditValue::OfTextAndNumber(box.Text(), CellValue::Of(box.Value()))
               : EditValue::OfText(box.Text());
}

// Records an edit of the text. The old selection is what the new text replaces; the new one is a caret
// behind that.
void RecipeFields::Record(TextBox& box, std::string_view newText, ChangeType type) {
    const TextSpan span = ChangedSpan(box.Text(), newText);
    EditRecorder::Edit edit{ControlType::TextBox, type};
    edit.selection.oldStart = span.start;
    edit.selection.oldLength = span.oldLength;
    edit.selection.newStart = span.start + span.newLength;
    EditValue newValue = box.HasOwnNumber() && newText == box.Committed()
                             ? EditValue::OfTextAndNumber(newText, CellValue::Of(box.Value()))
                             : EditValue::OfText(newText);
    recipe_.recorder.RecordEdit(box.Name(), StateOf(box), std::move(newValue), edit);
}

void RecipeFields::PutBack(TextBox& box, const EditValue& value) {
    SetText(box, value.AsText());
    const bool committed = box.Text() == box.Committed();
    const CellValue* const own = value.OwnNumber();
    if (!own && !committed) {
        // A text that was refused when it was typed is restored as it was: shown, but not committed.
        if (!CommitIfReadable(box)) SetText(box, value.AsText());
        return;
    }
    // There is nothing to validate, but the same text may have had another number.
    const double before = box.Value();
    Restore(box, value);
    if (committed && box.Value() == before) return;
    recipe_.MarkChanged();
    try {
        (void)RunChain(box);
    } catch (const Error&) {
        // A figure that cannot be calculated stays as it is; the box has had that number before.
    }
}

void RecipeFields::Restore(TextBox& box, const EditValue& value) {
    const CellValue* const own = value.OwnNumber();
    box.SetText(value.AsText());
    box.SetCommitted(value.AsText());
    box.SetValue(own ? own->number : NumberTold(box, value.AsText()).value_or(box.Value()));
    box.SetOwnNumber(own != nullptr);
}

}  // namespace tw
