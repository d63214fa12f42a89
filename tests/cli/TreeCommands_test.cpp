// Tests of the lines that the commands on the tree refuse.
#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "cli/Console.h"

namespace tw {
namespace {

// Returns what the console writes to standard error for one line, without the line number.
std::string RefusalOf(const std::string& line) {
    MemorySettings settings;
    std::ostringstream out;
    std::ostringstream errors;
    Console console(":memory:", settings, out, errors);
    std::istringstream script(line + "\n");
    EXPECT_EQ(console.Run(script, "s"), ExitStatus::BadLine) << line;
    EXPECT_EQ(out.str(), "");
    const std::string text = errors.str();
    return text.substr(0, text.find('\n')).substr(std::string("s:1: ").size());
}

TEST(TreeCommands, NeedTheirKeysAndNames) {
    EXPECT_EQ(RefusalOf("folder"), "PARENTKEY is missing");
    EXPECT_EQ(RefusalOf("move"), "the KEY to move is missing");
    EXPECT_EQ(RefusalOf("move F:1"), "the KEY to move to is missing");
    EXPECT_EQ(RefusalOf("rename"), "KEY is missing");
    EXPECT_EQ(RefusalOf("rename F:1"), "NAME is missing");
    EXPECT_EQ(RefusalOf("remove"), "KEY is missing");
    EXPECT_EQ(RefusalOf("can drop F:1"), "the KEY to drop on is missing");
}

TEST(TreeCommands, RefuseWhatTheyDoNotKnow) {
    EXPECT_EQ(RefusalOf("can fly F:1"), "'fly' is none of delete, rename, hold, drop");
    EXPECT_EQ(RefusalOf("tree f:0"), "there is no entry 'f:0' in the tree");
}

}  // namespace
}  // namespace tw
