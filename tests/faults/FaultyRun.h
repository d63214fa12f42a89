// Runs a program whose calls to the disk are counted, and one of which kills it or fails.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tw::test {

enum class Fault {
    None,
    Kill,  // the program ends at the call; what it writes there is written by half
    Fail,  // the call fails as on a dying disk
    Full,  // from the call on nothing fits onto the disk any more
};

// "kill", "fail" or "full"; empty for None.
const char* NameOf(Fault fault);

struct FaultyRun {
    bool killed = false;
    int status = 0;                  // the exit status of a program that was not killed
    std::string output;              // standard output and standard error
    std::vector<std::string> calls;  // "CALL PATH[ PATH]" in their order, also those that failed
};

// Runs the command in the folder; fault strikes at the call of that number, from 1, among those that change
// files below the folder. input becomes its standard input.
FaultyRun RunWithFault(const std::vector<std::string>& command, const std::filesystem::path& folder,
                       const std::string& input, Fault fault, std::size_t at);

}  // namespace tw::test
