#include "shell/DDECommand.h"

#include <gtest/gtest.h>

#include "platform/Error.h"

namespace tw {
namespace {

// Returns the commands in text, each as "VERB|PARAMETER|PARAMETER".
std::vector<std::string> Read(std::string_view text) {
    std::vector<std::string> lines;
    for (const DDECommand& command : ReadDDECommands(text)) {
        std::string line = command.Verb();
        for (int i = 0; i < command.ParameterCount(); ++i) line += "|" + command.Parameters(i);
        lines.push_back(line);
    }
    return lines;
}

using Strings = std::vector<std::string>;

TEST(DDECommand, KeepsItsVerbAndParametersTrimmedAndInUpperCase) {
    DDECommand command;
    command.SetVerb("  Import ");
    command.AddParameter(" kölsch.twr ");
    command.AddParameter("");
    EXPECT_EQ(command.Verb(), "IMPORT");
    ASSERT_EQ(command.ParameterCount(), 2);
    EXPECT_EQ(command.Parameters(0), "KÖLSCH.TWR");
    EXPECT_EQ(command.ParameterAsSent(0), "kölsch.twr");
    EXPECT_EQ(command.Parameters(1), "");
}

TEST(DDECommand, KeepsAPathAsItIs) {
    DDECommand command;
    command.AddPath(" a,B ");
    EXPECT_EQ(command.Parameters(0), " a,B ");
    EXPECT_EQ(command.ParameterAsSent(0), " a,B ");
}

TEST(DDECommand, RaisesForAParameterBeyondTheEnd) {
    DDECommand command;
    command.AddParameter("a");
    for (const int index : {-1, 1}) {
        try {
            command.Parameters(index);
            FAIL() << index;
        } catch (const Error& error) {
            EXPECT_EQ(error.WithNumber(), "Subscript out of range (9)");
        }
    }
    command.ClearParameters();
    EXPECT_EQ(command.ParameterCount(), 0);
    EXPECT_THROW(command.ParameterAsSent(0), Error);
}

TEST(DDEText, ABareWordIsACommand) {
    EXPECT_EQ(Read("Activate"), Strings{"ACTIVATE"});
    EXPECT_EQ(Read(" activate "), Strings{"ACTIVATE"});
    EXPECT_EQ(Read("[ACTIVATE]"), Strings{"ACTIVATE"});
}

TEST(DDEText, ParametersStandInParentheses) {
    EXPECT_EQ(Read("[Import(/a/b.twr,c d.twr)]"), Strings{"IMPORT|/A/B.TWR|C D.TWR"});
}

TEST(DDEText, OrBehindABlankWhichSeparatesOnce) {
    EXPECT_EQ(Read("[Import /a/b.twr, c d.twr]"), Strings{"IMPORT|/A/B.TWR|C D.TWR"});
}

TEST(DDEText, TheEarlierOfParenthesisAndBlankSplits) {
    EXPECT_EQ(Read("[Import(a b)]"), Strings{"IMPORT|A B"});
    EXPECT_EQ(Read("[Import (a b)]"), Strings{"IMPORT|(A B"});
    EXPECT_EQ(Read("[Import a(1)]"), Strings{"IMPORT|A(1"});
}

TEST(DDEText, OneClosingParenthesisIsDropped) {
    EXPECT_EQ(Read("[Import(a(1))]"), Strings{"IMPORT|A(1)"});
    EXPECT_EQ(Read("[Import(a"), Strings{"IMPORT|A"});
}

TEST(DDEText, OneClosingBracketIsDroppedAtTheEndAlone) {
    EXPECT_EQ(Read("[Import(a)]]"), Strings{"IMPORT|A)]"});
    EXPECT_EQ(Read("[Import(a)] "), Strings{"IMPORT|A"});
    EXPECT_EQ(Read("[Import(a)] b"), Strings{"IMPORT|A)] B"});
    EXPECT_EQ(Read("Import a]"), Strings{"IMPORT|A"});
}

TEST(DDEText, CommasCutAPathAndQuotesProtectNothing) {
    EXPECT_EQ(Read("[IMPORT(\"a, b\")]"), Strings{"IMPORT|\"A|B\""});
    EXPECT_EQ(Read("[IMPORT(a,,b,)]"), Strings{"IMPORT|A||B|"});
}

TEST(DDEText, ABracketInAPathBeginsACommand) {
    EXPECT_EQ(Read("[IMPORT(a[1].twr)]"), (Strings{"IMPORT|A", "1].TWR)"}));
}

TEST(DDEText, CommandsKeepTheirOrder) {
    EXPECT_EQ(Read("[ACTIVATE][import(a)] [import b]x"), (Strings{"ACTIVATE", "IMPORT|A", "IMPORT|B]X"}));
    EXPECT_EQ(Read("first[second]"), (Strings{"FIRST", "SECOND"}));
}

TEST(DDEText, PiecesOfBlanksAlonePassAndEmptyVerbsDoNot) {
    EXPECT_EQ(Read(""), Strings{});
    EXPECT_EQ(Read("   "), Strings{});
    EXPECT_EQ(Read("[[ ["), Strings{});
    EXPECT_EQ(Read("[]"), Strings{""});
    EXPECT_EQ(Read("[(a)]"), Strings{"|A"});
}

TEST(DDEText, WithoutTextBehindTheSplitThereIsNoParameter) {
    EXPECT_EQ(Read("[IMPORT()]"), Strings{"IMPORT"});
    EXPECT_EQ(Read("[IMPORT("), Strings{"IMPORT"});
    EXPECT_EQ(Read("[IMPORT ]"), Strings{"IMPORT"});
}

TEST(DDEText, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(Read("[IMPORT(\ta\n)]"), Strings{"IMPORT|\tA\n"});
}

TEST(DDEText, KeepsWhatTheSenderWrote) {
    const std::vector<DDECommand> commands = ReadDDECommands("[import( Old Ale.twr )]");
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_EQ(commands[0].ParameterAsSent(0), "Old Ale.twr");
}

}  // namespace
}  // namespace tw
