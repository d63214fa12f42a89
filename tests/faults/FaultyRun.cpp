#include "faults/FaultyRun.h"

#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace tw::test {
namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// Replaces the child process by the command. Does not return.
[[noreturn]] void Become(const std::vector<std::string>& command, const fs::path& folder,
                         const fs::path& beside, Fault fault, std::size_t at) {
    const int in = open((beside / "input").c_str(), O_RDONLY);
    const int out = open((beside / "output").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(out, STDERR_FILENO);
    setenv("TUNWRIGHT_FAULT_FOLDER", folder.c_str(), 1);
    setenv("TUNWRIGHT_FAULT_LOG", (beside / "calls").c_str(), 1);
    setenv("TUNWRIGHT_FAULT_AT", std::to_string(fault == Fault::None ? 0 : at).c_str(), 1);
    setenv("TUNWRIGHT_FAULT_HOW", NameOf(fault), 1);
    setenv("LD_PRELOAD", DISK_FAULTS, 1);
    std::vector<char*> arguments;
    // execv changes no argument, although its type would allow it.
    for (const std::string& word : command)
        arguments.push_back(
            const_cast<char*>(word.c_str()));  // NOLINT(cppcoreguidelines-pro-type-const-cast)
    arguments.push_back(nullptr);
    if (chdir(folder.c_str()) == 0) execv(arguments[0], arguments.data());
    _exit(127);
}

}  // namespace

const char* NameOf(Fault fault) {
    switch (fault) {
        case Fault::Kill:
            return "kill";
        case Fault::Fail:
            return "fail";
        case Fault::Full:
            return "full";
        case Fault::None:
            break;
    }
    return "";
}

FaultyRun RunWithFault(const std::vector<std::string>& command, const fs::path& folder,
                       const std::string& input, Fault fault, std::size_t at) {
    const fs::path beside = folder.string() + ".run";
    fs::remove_all(beside);
    fs::create_directories(beside);
    std::ofstream(beside / "input", std::ios::binary) << input;
    const pid_t child = fork();
    if (child == 0) Become(command, folder, beside, fault, at);
    int status = 0;
    waitpid(child, &status, 0);
    FaultyRun run;
    run.killed = WIFSIGNALED(status);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    EXPECT_NE(run.status, 127) << command[0];
    run.output = ReadAll(beside / "output");
    std::ifstream calls(beside / "calls");
    for (std::string line; std::getline(calls, line);) run.calls.push_back(line);
    return run;
}

}  // namespace tw::test
