#include "cli/ScriptHelp.h"

#include <utility>

namespace tw {

int ScriptHelp::Open(const std::string& /*file*/) {
    const std::string page = std::exchange(page_, {});
    out_.Text(page.empty() ? "home.html" : page);
    return kOpenedCode;
}

std::string ScriptHelp::Read(const std::string& /*file*/) {
    return "$START_PAGE";
}

void ScriptHelp::Write(const std::string& /*file*/, std::string_view text) {
    page_ = text;
}

}  // namespace tw
