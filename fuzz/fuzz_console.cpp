// Runs any text as a script. The console ends with one of its three statuses, reports an error exactly if it
// stops at a line, and prints only whole lines. Whatever the commands do to a recipe and its database, no
// exception may reach the fuzzer.
#include <cstdint>
#include <cstdlib>
#include <sqlite3.h>
#include <sstream>
#include <string>

#include "cli/Console.h"

namespace {

using namespace tw;

void Require(bool holds) {
    if (!holds) std::abort();
}

void LimitMemory() {
    // A statement that asks for more memory than this is refused by the store.
    constexpr sqlite3_int64 kMostMemory = sqlite3_int64{256} * 1024 * 1024;
    sqlite3_hard_heap_limit64(kMostMemory);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool limited = (LimitMemory(), true);
    Require(limited);
    const std::string text(reinterpret_cast<const char*>(data), size);
    // A random script must not write files.
    for (const char* word : {"export", "import", "filesql", "report"})
        if (text.find(word) != std::string::npos) return 0;
    std::istringstream script(text);
    std::ostringstream out;
    std::ostringstream errors;
    MemorySettings settings;
    Console console(":memory:", settings, out, errors);
    const ExitStatus status = console.Run(script, "script");
    if (status == ExitStatus::Done) console.End();
    Require(status != ExitStatus::NoDatabase);
    Require((status == ExitStatus::BadLine) == !errors.str().empty());
    Require(out.str().find('\r') == std::string::npos);
    Require(out.str().empty() || out.str().back() == '\n');
    return 0;
}
