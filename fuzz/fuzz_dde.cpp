// Reads any text as commands from another program. Reading raises no error; verbs and parameters are trimmed
// and contain no "[", and a parameter as sent contains no ",".
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
