// Runs a program, counts its calls to the disk, and makes one of them kill the program or fail.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tw::test {

enum class Fault {
    None,
    Kill,  // the program ends in the middle of the call, after writing half
    Fail,  // the call fails as on a defective disk
    Full,  // the disk is full from this call on
};

// Returns "kill", "fail" or "full"; empty for None.
const char* NameOf(Fault fault);

struct FaultyRun {
    bool killed = false;
    int status = 0;                  // the exit status of a program that was not killed
    std::string output;              // standard output and standard error
    std::vector<std::string> calls;  // "CALL PATH[ PATH]" in order, including those that failed
};

// Runs the command in the folder, with input as its standard input. The fault occurs at call number `at`,
// counted from 1 among the calls that change files below the folder.
FaultyRun RunWithFault(const std::vector<std::string>& command, const std::filesystem::path& folder,
                       const std::string& input, Fault fault, std::size_t at);

}  // namespace tw::test
