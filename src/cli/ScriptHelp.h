// The help for scripts: prints the page to show instead of opening a browser or writing a file.
#pragma once

#include <string>

#include "cli/ScriptPlatform.h"
#include "help/HelpPorts.h"

namespace tw {

// Pages are looked up and put into the frame as in the desktop program, with a template that consists
// only of the page's name.
class ScriptHelp final : public BrowserPort, public TextFilePort {
  public:
    explicit ScriptHelp(ScriptOutput& out) : out_(out) {}
    // Prints the page last written, or "home.html" for the index of the site.
    int Open(const std::string& file) override;
    std::string Read(const std::string& file) override;
    void Write(const std::string& file, std::string_view text) override;

  private:
    ScriptOutput& out_;
    std::string page_;
};

}  // namespace tw
