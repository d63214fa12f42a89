// What the active recipe carries from another program: whether there is anything, and the window that shows
// it.
#pragma once

#include <cstdint>
#include <optional>

#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/OpenedDatabase.h"

namespace tw {

class CarriedDesk {
  public:
    // All arguments must outlive the object.
    CarriedDesk(OpenedDatabase& data, DocumentManager& documents, CommandStates& states)
        : data_(data), documents_(documents), states_(states) {}

    // True if the active document is that of a stored recipe that carries something. Raises nothing: false if
    // the database cannot be read. Runs no statement if nothing is carried in the whole database.
    bool ActiveCarries() const;
    // Shows what the active recipe carries. Does nothing without an active document. Raises the store's
    // errors.
    void Show();

  private:
    // Returns the id of the stored recipe of the active document; nullopt if there is none.
    std::optional<std::int64_t> ActiveId() const;

    OpenedDatabase& data_;
    DocumentManager& documents_;
    CommandStates& states_;
};

}  // namespace tw
