// The help as a script sees it: no browser opens and no file is written; the page wanted is printed.
#pragma once

#include <string>

#include "cli/ScriptPlatform.h"
#include "help/HelpPorts.h"

namespace tw {

// The pages are looked up and framed as in the windows, in a template that holds nothing but the page's name.
class ScriptHelp final : public BrowserPort, public TextFilePort {
  public:
    explicit ScriptHelp(ScriptOutput& out) : out_(out) {}
    // Prints the page that was framed last, "home.html" for the site's own index.
    int Open(const std::string& file) override;
    std::string Read(const std::string& file) override;
    void Write(const std::string& file, std::string_view text) override;

  private:
    ScriptOutput& out_;
    std::string page_;
};

}  // namespace tw
