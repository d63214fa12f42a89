// Any text may come from another program. It is read without an error; what is read has no blanks at its ends
// and none of the marks that separate.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "shell/DDECommand.h"
#include "values/Text.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void RequireRead(const std::string& text) {
    Require(text == tw::Trim(text) && text.find('[') == text.npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (const tw::DDECommand& command : tw::ReadDDECommands(text)) {
        RequireRead(command.Verb());
        for (int i = 0; i < command.ParameterCount(); ++i) {
            RequireRead(command.Parameters(i));
            Require(text.find(command.ParameterAsSent(i)) != text.npos);
            Require(command.ParameterAsSent(i).find(',') == text.npos);
        }
    }
    return 0;
}
