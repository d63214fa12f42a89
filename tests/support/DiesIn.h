// Runs code in a process that is killed in the middle of its work, as by a power failure.
#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/Database.h"

namespace tw::test {

// Runs action in a child process, which action kills. Returns false if the child process ends in any other
// way, even with an error.
template <typename Action>
bool DiesIn(Action action) {
    const pid_t child = fork();
    if (child == 0) {
        try {
            action();
        } catch (const Error&) {
            _exit(2);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
}

// Kills this process before a statement, counted from 0 from this call on.
inline void DieAt(Database& database, int statement) {
    database.SetStatementHook([count = 0, statement](std::string_view) mutable {
        if (count++ == statement) raise(SIGKILL);
    });
}

}  // namespace tw::test
