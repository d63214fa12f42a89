// Tests of what the commands on water refuse.
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "cli/Console.h"

namespace tw {
namespace {

struct Outcome {
    ExitStatus status;
    std::string out;
    std::string errors;
};

Outcome RunLine(const std::string& line) {
    MemorySettings settings;
    std::ostringstream out;
    std::ostringstream errors;
    Console console(":memory:", settings, out, errors);
    std::istringstream script(line + "\n");
    const ExitStatus status = console.Run(script, "s.tws");
    return {status, out.str(), errors.str()};
}

std::string Repeat(const std::string& part, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += part;
    return all;
}

TEST(LinearProgramCommand, RefusesWhatIsNoProgram) {
    for (const std::string& line : std::vector<std::string>{"lp min",
                                                            "lp least 1",
                                                            "lp min x",
                                                            "lp min 1,,2",
                                                            "lp min ,1",
                                                            "lp min 1 2",
                                                            "lp min 1 ;",
                                                            "lp min 1 ; ; 1 <= 2",
                                                            "lp min 1 ; 1",
                                                            "lp min 1 ; 1 < 2",
                                                            "lp min 1 ; 1 => 2",
                                                            "lp min 1 ; 1 == 2",
                                                            "lp min 1 ; 1 <= ",
                                                            "lp min 1 ; <= 1",
                                                            "lp min 1 ; 1 <= 2 3",
                                                            "lp min 1 ; 1,2 <= 2",
                                                            "lp min 1,2 ; 1 <= 2",
                                                            "lp min 1 ; 1 <= 2 ; limit",
                                                            "lp min 1 ; limit x",
                                                            "lp min 1 ; limit -1",
                                                            "lp min 1 ; limit 1.5",
                                                            "lp min 1 ; limit 1 2",
                                                            "lp min 1 ; limit 100001",
                                                            "lp min 1 ; limit 3 ; 1 <= 2"}) {
        const Outcome outcome = RunLine(line);
        EXPECT_EQ(outcome.status, ExitStatus::BadLine) << line;
        EXPECT_EQ(outcome.out, "") << line;
        EXPECT_EQ(outcome.errors.substr(0, 9), "s.tws:1: ") << line;
    }
}

TEST(LinearProgramCommand, NamesTheRowAtFault) {
    EXPECT_EQ(RunLine("lp min 1,2 ; 1,2 >= 3 ; 1 <= 2").errors,
              "s.tws:1: the row '1 <= 2' needs 2 coefficients\n");
}

TEST(LinearProgramCommand, HasABoundOnWhatOneLineMayAskFor) {
    EXPECT_EQ(RunLine("lp min 0" + Repeat(",0", 199)).status, ExitStatus::Done);
    EXPECT_EQ(RunLine("lp min 0" + Repeat(",0", 200)).status, ExitStatus::BadLine);
    EXPECT_EQ(RunLine("lp min 1" + Repeat(" ; 1 >= 2", 200)).out, "status 0\n2\n");
    EXPECT_EQ(RunLine("lp min 1" + Repeat(" ; 1 >= 2", 201)).status, ExitStatus::BadLine);
    EXPECT_EQ(RunLine("lp min " + Repeat("9", 400)).status, ExitStatus::BadLine);
}

// 9e307 / 0.1 is out of the range of a double: a message is shown and the script continues.
TEST(LinearProgramCommand, ShowsAnArithmeticErrorInABox) {
    const Outcome outcome = RunLine("lp max 1 ; 0.1 <= 9" + Repeat("0", 307));
    EXPECT_EQ(outcome.status, ExitStatus::Done);
    EXPECT_EQ(outcome.out, "[Error] Overflow (6)\n");
}

}  // namespace
}  // namespace tw
