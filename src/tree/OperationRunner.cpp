#include "tree/OperationRunner.h"

#include "platform/Error.h"

namespace tw {

bool OperationRunner::Trap(const std::string& title, Asking asking, const std::function<bool()>& operation) {
    try {
        const bool done = operation();
        tree_.CatchUp();
        return done;
    } catch (const Error& error) {
        ShowWhatIsLeft(false);
        return Refuse(title, error.WithSource(), asking);
    }
}

void OperationRunner::RunDeletion(const std::function<void()>& deletion) {
    try {
        UnitOfWork unit(database_);
        deletion();
        unit.Commit();
    } catch (const Error&) {
        ShowWhatIsLeft(true);
        throw;
    }
    tree_.CatchUp();
    listener_.DeletionEnded();
}

bool OperationRunner::Refuse(std::string_view title, std::string_view text, Asking asking) {
    if (asking == Asking::Aloud) messages_.ShowMessage(title, text);
    return false;
}

bool OperationRunner::RefuseSubFolder(Asking asking) {
    return Refuse("Could not move folder", "The destination folder is a sub-folder of the source folder",
                  asking);
}

bool OperationRunner::RefuseMissing(std::string_view title, std::string_view object, Asking asking) {
    const Error error("DB_IO", "There is no such " + std::string(object) + ".", kMissingNumber);
    return Refuse(title, error.WithSource(), asking);
}

void OperationRunner::ShowWhatIsLeft(bool deletion) {
    database_.AfterUnit([&tree = tree_, &listener = listener_, deletion] {
        tree.Reload();
        if (deletion) listener.DeletionEnded();
    });
}

}  // namespace tw
