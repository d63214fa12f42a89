// The text boxes of a recipe: typing, committing, and restoring a box after a refused entry.
#pragma once

#include <string_view>

#include "document/OpenRecipe.h"

namespace tw {

class RecipeFields {
  public:
    explicit RecipeFields(OpenRecipe& recipe) : recipe_(recipe) {}

    // Changes the text, as typing does; the new text is not committed yet. Does nothing for a computed box.
    void SetText(TextBox& box, std::string_view text);
    // Validates the text, commits it and recalculates the figures that depend on it. To be called when the
    // box loses the focus or when edits are flushed. Returns false if the entry is refused (after a message,
    // if asking is Aloud): the text stays, and the box keeps the focus. Raises Error for an arithmetic fault;
    // the field then has its last committed text again.
    bool CommitField(TextBox& box, Asking asking = Asking::Aloud);
    // As CommitField, but shows no message, and returns false instead of raising for an arithmetic fault.
    bool CommitIfReadable(TextBox& box);
    // Restores the last committed text, after Escape or a refused entry of a script. The history records this
    // as an edit, so that it stays consistent with the typing before.
    void RestoreField(TextBox& box);
    // Replaces characters of the text as one step of the history with the name of type, then puts the caret
    // behind them. Does nothing for a computed box.
    void Replace(TextBox& box, TextSelection characters, std::string_view with, ChangeType type);

    // For an undo or redo: restores what the box held, with its number if the text would give another one.
    // Not recorded while tracking is off.
    void PutBack(TextBox& box, const EditValue& value);
    // Returns what the history stores for the box.
    static EditValue StateOf(const TextBox& box);
    // Puts a committed text back into the box, with its number, and recalculates nothing.
    static void Restore(TextBox& box, const EditValue& value);
    // Commits the text without a message. If it cannot be read, such as a bad default in the settings,
    // restores the last committed text, which is empty in a new recipe.
    void CommitDefault(TextBox& box, std::string_view text);

  private:
    Commit CommitQuantity(TextBox& box);
    Commit RunChain(const TextBox& box);
    void Record(TextBox& box, std::string_view newText, ChangeType type);

    OpenRecipe& recipe_;
};

// Returns the characters selected in the box; valid until its text changes.
std::string_view SelectedText(const TextBox& box);

}  // namespace tw
