#include "document/OpenRecipe.h"

#include <utility>

namespace tw {

OpenRecipe::OpenRecipe(RecipeDocument& document, DocumentHost& theHost, Platform& thePlatform,
                       Database& theDatabase, const ColorTable& colors)
    : host(theHost),
      platform(thePlatform),
      database(theDatabase),
      calculator(record, commands, colors),
      recorder([this] { RefreshUndoCommands(); }),
      document_(document) {}

void OpenRecipe::MarkChanged() {
    if (!filled_) return;
    const bool first = !std::exchange(changed_, true);
    if (IsActive())
        host.Commands().EnableSave(true);
    else
        host.Commands().CheckEnableSaveAll();
    if (first) Renamed();
    host.DocumentEdited(document_);
}

void OpenRecipe::ClearChanged() {
    changed_ = false;
    if (IsActive())
        host.Commands().EnableSave(false);
    else
        host.Commands().CheckEnableSaveAll();
    Renamed();
}

bool OpenRecipe::SetFilled(bool filled) {
    return std::exchange(filled_, filled);
}

void OpenRecipe::RefreshUndoCommands() {
    if (!IsActive()) return;
    const UndoStack& stack = recorder.Stack();
    host.Commands().EnableUndo(stack.CanUndo(), stack.UndoType());
    host.Commands().EnableRedo(stack.CanRedo(), stack.RedoType());
}

void OpenRecipe::ActiveCommands::EnableResizeRecipe(bool enabled) {
    if (recipe_.IsActive()) recipe_.host.Commands().EnableResizeRecipe(enabled);
}

void OpenRecipe::ActiveCommands::EnableChangeStrength(bool enabled) {
    if (recipe_.IsActive()) recipe_.host.Commands().EnableChangeStrength(enabled);
}

void OpenRecipe::ActiveCommands::EnableChangeBitterness(bool enabled) {
    if (recipe_.IsActive()) recipe_.host.Commands().EnableChangeBitterness(enabled);
}

void OpenRecipe::ActiveCommands::EnableChangeCarbonation(bool enabled) {
    if (recipe_.IsActive()) recipe_.host.Commands().EnableChangeCarbonation(enabled);
}

OneStep::OneStep(OpenRecipe& recipe, ChangeType type)
    : recipe_(recipe), open_(recipe.recorder.Tracking() && !recipe.recorder.InCompound()) {
    if (!open_) return;
    changedBefore_ = recipe.Changed();
    redo_ = recipe.recorder.Stack().TakeRedo();
    positionBefore_ = recipe.recorder.Stack().StackPosition();
    recipe.recorder.BeginCompoundEdit(type);
}

void OneStep::Keep() {
    if (!std::exchange(open_, false)) return;
    recipe_.recorder.EndCompoundEdit();
    if (recipe_.recorder.Stack().StackPosition() == positionBefore_)
        recipe_.recorder.PutBackRedo(std::move(redo_));
}

OneStep::~OneStep() {
    if (!open_) return;
    EditRecorder& recorder = recipe_.recorder;
    recorder.EndCompoundEdit();
    if (recorder.Stack().StackPosition() > positionBefore_)
        recipe_.replay->TakeBack(*recorder.Stack().StepBack());
    recorder.Stack().DropRedo();
    recorder.PutBackRedo(std::move(redo_));
    recipe_.RefreshUndoCommands();
    if (!changedBefore_) recipe_.ClearChanged();
}

}  // namespace tw
