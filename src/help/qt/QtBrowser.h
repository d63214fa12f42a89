// The desktop's browser.
#pragma once

#include "help/HelpPorts.h"

namespace tw {

class QtBrowser final : public BrowserPort {
  public:
    // Returns one of the codes in help/HelpPorts.h: for a file that is missing or unreadable, for a type
    // without a program on the desktop, or for success.
    int Open(const std::string& file) override;
};

}  // namespace tw
