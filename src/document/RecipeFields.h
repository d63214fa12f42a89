// The text boxes of a recipe: typing, commit, and the way back from a refused entry.
#pragma once

#include <string_view>

#include "document/OpenRecipe.h"

namespace tw {

class RecipeFields {
  public:
    explicit RecipeFields(OpenRecipe& recipe) : recipe_(recipe) {}

    // Each change while typing. A computed box refuses it.
    void SetText(TextBox& box, std::string_view text);
    // What runs when the box loses the focus or edits are flushed: validation, then the field's chain. False
    // for a bad entry (whose box has been shown, if aloud): the text stays and the box keeps the focus.
    // Raises for an arithmetic fault; the field then has its last committed text again.
    bool CommitField(TextBox& box, Asking asking = Asking::Aloud);
    // As CommitField without a word. False for an arithmetic fault too.
    bool CommitIfReadable(TextBox& box);
    // Puts the last committed text back (Escape, a refused entry of a script); the typing stays balanced in
    // the history.
    void RestoreField(TextBox& box);
    // Replaces characters of the text as one step of the history, whose name is that of the type. The caret
    // stands behind them then. Nothing in a computed box.
    void Replace(TextBox& box, TextSelection characters, std::string_view with, ChangeType type);

    // For an undo: what the box held, with its number where the text does not tell it. Nothing is recorded
    // while the history does not track.
    void PutBack(TextBox& box, const EditValue& value);
    // What the box holds, for the history.
    static EditValue StateOf(const TextBox& box);
    // Commits the text without a word; one that cannot be read, such as a bad default of the settings, leaves
    // the field empty.
    void CommitDefault(TextBox& box, std::string_view text);

  private:
    Commit CommitQuantity(TextBox& box);
    Commit RunChain(const TextBox& box);
    void Record(TextBox& box, std::string_view newText, ChangeType type);

    OpenRecipe& recipe_;
};

// The characters that are selected in the box.
std::string_view SelectedText(const TextBox& box);

}  // namespace tw
