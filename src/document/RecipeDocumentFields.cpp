// The text boxes of a recipe: typing, validation, commit.
#include "document/RecipeDocument.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

using FieldValidator = Validator;

// The quantity that a text box holds; nullptr for free text.
FieldValidator ValidatorOf(const RecipeRecord& r, const TextBox& box) {
    if (&box == &r.txtBoilVol || &box == &r.txtTotalVol || &box == &r.txtDilutions || &box == &r.txtFinalVol)
        return ValidateVolume;
    if (&box == &r.txtExtract) return ValidatePercent;
    // The computed gravities are read from a stored text alone.
    if (&box == &r.txtFG || &box == &r.txtOG || &box == &r.txtBG) return ValidateGravity;
    if (&box == &r.txtTemp) return ValidateTemperature;
    return nullptr;
}

}  // namespace

bool RecipeDocument::IsFreeText(const TextBox& box) const {
    return &box == &record_.txtName || &box == &record_.txtNumBatches || &box == &record_.txtNotes;
}

void RecipeDocument::SetText(TextBox& box, std::string_view text) {
    if (box.Computed() || box.Text() == text) return;
    RecordText(box, text, ChangeType::Typing);
    box.SetText(text);
    if (!IsFreeText(box)) return;
    MarkChanged();
    if (&box == &record_.txtName) host_.DocumentRenamed(*this);
}

void RecipeDocument::RestoreField(TextBox& box) {
    if (box.Computed() || box.Text() == box.Committed()) return;
    const std::string committed = box.Committed();
    // Free text has no refusals; what was typed since it was left is typed back.
    RecordText(box, committed, IsFreeText(box) ? ChangeType::Typing : ChangeType::Abort);
    box.SetText(committed);
    if (&box == &record_.txtName) host_.DocumentRenamed(*this);
}

bool RecipeDocument::CommitField(TextBox& box, bool quiet) {
    if (box.Computed()) return true;
    // Where a quantity belongs, blanks alone are the empty text.
    if (!IsFreeText(box) && IsBlank(box.Text())) SetText(box, {});
    if (box.Text() == box.Committed()) return true;
    if (IsFreeText(box)) {
        box.SetCommitted(box.Text());
        return true;
    }
    const std::string oldText = box.Committed();
    const double oldValue = box.Value();
    const auto goBack = [&] {
        box.SetValue(oldValue);
        box.SetCommitted(oldText);
    };
    bool chainRan = false;
    try {
        double value = 0;
        if (!ValidateField(box, box.Text(), quiet, value)) return false;
        box.SetValue(value);
        // The text being committed counts in its own chain.
        box.SetCommitted(box.Text());
        chainRan = true;
        if (!RunFieldChain(box)) {
            goBack();
            // The record is whole again before the box, behind which the program goes on.
            if (!quiet)
                platform_.messages.ShowMessage("Error calculating carbonation",
                                               "Please enter a more reasonable temperature.");
            return false;
        }
    } catch (const Error&) {
        goBack();
        RestoreField(box);
        if (chainRan) RunFieldChain(box);
        throw;
    }
    MarkChanged();
    return true;
}

void RecipeDocument::FlushEditsQuietly() {
    for (TextBox* box : record_.TextBoxes()) {
        if (IsBlank(box->Text())) continue;
        const std::string typed = box->Text();
        if (!Quietly([&] { return CommitField(*box, true); })) SetText(*box, typed);
    }
}

bool RecipeDocument::ValidateField(const TextBox& box, std::string_view text, bool quiet, double& value) {
    if (&box == &record_.txtHopExtraction) return ValidateHopExtraction(text, quiet, value);
    return ValidatorOf(record_, box)(text, value, quiet ? nullptr : &platform_.messages);
}

bool RecipeDocument::ValidateHopExtraction(std::string_view text, bool quiet, double& value) {
    if (IsBlank(text)) {
        value = 1;
        return true;
    }
    double number = 0;
    const char* refusal = nullptr;
    if (!ParseReal(text, number))
        refusal = "Please enter a valid decimal number";
    else if (number < 0)
        refusal = "Please enter a positive decimal number";
    if (!refusal) {
        value = number;
        return true;
    }
    if (!quiet) platform_.messages.ShowMessage(kInvalidEntry, refusal);
    return false;
}

// False when the chain refuses the value; the record is then to be set back.
bool RecipeDocument::RunFieldChain(TextBox& box) {
    if (&box == &record_.txtBoilVol) calculator_.BoilVolCommitted();
    if (&box == &record_.txtTotalVol) calculator_.TotalVolCommitted();
    if (&box == &record_.txtFinalVol) calculator_.FinalVolCommitted();
    if (&box == &record_.txtExtract) calculator_.ExtractCommitted();
    if (&box == &record_.txtHopExtraction) calculator_.HopExtractionCommitted();
    if (&box == &record_.txtFG) calculator_.FGCommitted();
    if (&box != &record_.txtTemp) return true;
    bool ok = true;
    calculator_.TempCommitted(ok);
    return ok;
}

}  // namespace tw
