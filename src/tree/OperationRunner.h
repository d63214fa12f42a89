// Runs the operations on objects: what an error or a refusal says, and what the tree shows behind it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/ObjectListener.h"
#include "tree/TreeObjects.h"

namespace tw {

class OperationRunner {
  public:
    // Of the errors that tell of a missing object.
    static constexpr int kMissingNumber = 5;

    // REQUIRES: all of them live for as long.
    OperationRunner(Database& database, TreeObjects& tree, MessagePort& messages, ObjectListener& listener)
        : database_(database), tree_(tree), messages_(messages), listener_(listener) {}

    // Runs the operation, and returns what it does; an error in it is shown, unless asking is Quietly, and
    // gives false.
    bool Trap(const std::string& title, Asking asking, const std::function<bool()>& operation);
    // Runs a deletion as one unit. An error in it rises.
    void RunDeletion(const std::function<void()>& deletion);

    // Shows the message unless asking is Quietly. Returns false.
    bool Refuse(std::string_view title, std::string_view text, Asking asking);
    bool RefuseSubFolder(Asking asking);
    // Refuses in the form of an error: there is no such object.
    bool RefuseMissing(std::string_view title, std::string_view object, Asking asking);

  private:
    // Shows what an error has left. Within a unit of the caller's that is known behind its end.
    void ShowWhatIsLeft(bool deletion);

    Database& database_;
    TreeObjects& tree_;
    MessagePort& messages_;
    ObjectListener& listener_;
};

}  // namespace tw
