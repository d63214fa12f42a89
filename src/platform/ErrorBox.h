// Errors that no routine of the core has trapped end here: in a box, and the program goes on.
#pragma once

#include <exception>
#include <string>

#include "platform/Error.h"
#include "platform/Ports.h"

namespace tw {

// Runs an operation. False when an error rose from it, which has been shown then in a box titled "Error":
// "{description} ({number})", or the bare description of any other exception.
template <class Operation>
bool RunShowingErrors(MessagePort& messages, Operation operation) {
    std::string text;
    try {
        operation();
        return true;
    } catch (const Error& error) {
        text = error.WithNumber();
    } catch (const std::exception& error) {
        text = error.what();
    }
    messages.ShowMessage("Error", text);
    return false;
}

}  // namespace tw
