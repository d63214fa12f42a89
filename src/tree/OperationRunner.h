// Runs the operations on objects: reports their errors and refusals, and updates the tree after them.
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
    // The number of errors about a missing object.
    static constexpr int kMissingNumber = 5;

    // REQUIRES: all arguments outlive the object.
    OperationRunner(Database& database, TreeObjects& tree, MessagePort& messages, ObjectListener& listener)
        : database_(database), tree_(tree), messages_(messages), listener_(listener) {}

    // Runs the operation and returns its result. If it raises an error, shows that unless asking is Quietly,
    // and returns false.
    bool Trap(const std::string& title, Asking asking, const std::function<bool()>& operation);
    // Runs a deletion as one unit of work. Raises its error.
    void RunDeletion(const std::function<void()>& deletion);

    // Shows the message unless asking is Quietly. Returns false.
    bool Refuse(std::string_view title, std::string_view text, Asking asking);
    bool RefuseSubFolder(Asking asking);
    // Refuses with an error message that there is no such object.
    bool RefuseMissing(std::string_view title, std::string_view object, Asking asking);

  private:
    // Reads the tree again after an error; if the caller has a unit of work, after the end of that.
    void ShowWhatIsLeft(bool deletion);

    Database& database_;
    TreeObjects& tree_;
    MessagePort& messages_;
    ObjectListener& listener_;
};

}  // namespace tw
