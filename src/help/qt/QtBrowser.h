// The desktop's browser.
#pragma once

#include "help/HelpPorts.h"

namespace tw {

class QtBrowser final : public BrowserPort {
  public:
    // The code for a missing or unreadable file, and for one that the desktop has no program for.
    int Open(const std::string& file) override;
};

}  // namespace tw
