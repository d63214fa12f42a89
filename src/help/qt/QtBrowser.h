// The desktop's browser.
#pragma once

#include "help/HelpPorts.h"

namespace tw {

class QtBrowser final : public BrowserPort {
  public:
    // Returns the codes for a file that is missing or unreadable, and for a type without a
    // program on the desktop.
    int Open(const std::string& file) override;
};

}  // namespace tw
