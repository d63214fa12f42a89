// Shows errors that no routine of the core has caught in a message box, after which the program continues.
#pragma once

#include <exception>
#include <string>

#include "platform/Error.h"
#include "platform/Ports.h"

namespace tw {

// Runs an operation. Returns false if it raised an exception, after showing that in a box titled "Error":
// "{description} ({number})" for an Error, the bare description of any other exception.
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
