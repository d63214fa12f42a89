// Errors that no routine of the core has trapped end here: in a box, and the program goes on.
#pragma once

#include "platform/Error.h"
#include "platform/Ports.h"

namespace tw {

// Shows "{description} ({number})" in a box titled "Error".
inline void ShowErrorBox(MessagePort& messages, const Error& error) {
    messages.ShowMessage("Error", error.WithNumber());
}

// Runs an operation; false when an error rose from it, which has been shown then. Handlers of events use it
// where Qt must not be left in the middle of its own work by an exception.
template <class Operation>
bool RunShowingErrors(MessagePort& messages, Operation operation) {
    try {
        operation();
        return true;
    } catch (const Error& error) {
        ShowErrorBox(messages, error);
        return false;
    }
}

}  // namespace tw
