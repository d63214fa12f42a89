// Text files of the machine.
#pragma once

#include "help/HelpPorts.h"

namespace tw {

class SystemTextFiles final : public TextFilePort {
  public:
    std::string Read(const std::string& file) override;
    void Write(const std::string& file, std::string_view text) override;
};

}  // namespace tw
