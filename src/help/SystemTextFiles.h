// Text files on the file system.
#pragma once

#include "help/HelpPorts.h"
#include "platform/OwnFiles.h"

namespace tw {

class SystemTextFiles final : public TextFilePort {
  public:
    // own: the program's own files, which must not be written. Must outlive the port.
    explicit SystemTextFiles(const OwnFiles& own) : own_(own) {}
    std::string Read(const std::string& file) override;
    void Write(const std::string& file, std::string_view text) override;

  private:
    const OwnFiles& own_;
};

}  // namespace tw
