// The language of walks: what is read, and what is refused with its line.
#include <gtest/gtest.h>

#include "tools/probe/walk.h"

namespace zentrox::probe {
namespace {

std::string refusal(const std::string& line) {
    try {
        parseWalk("w", "wait 1\n" + line);
    } catch (const WalkError& error) {
        return error.what();
    }
    return {};
}

TEST(WalkLanguage, ReadsWordsQuotesAndComments) {
    const Walk walk =
        parseWalk("w", "# first\n\n  click right 3 -4   # the door\r\nuse \"rote Tür\"\nuse a#1\nsay state\n");
    ASSERT_EQ(walk.commands.size(), 4U);
    EXPECT_EQ(walk.commands[0].words, (std::vector<std::string>{"right", "3", "-4"}));
    EXPECT_EQ(walk.commands[0].line, 3);
    EXPECT_EQ(walk.commands[1].words, (std::vector<std::string>{"rote Tür"}));
}

TEST(WalkLanguage, TellsATimeBehindAConditionFromItsOwnNumber) {
    const auto until = [](const std::string& line) { return parseWalk("w", line).commands.at(0); };
    EXPECT_TRUE(until("until evil 3").words.empty());
    EXPECT_EQ(until("until evil 3 500").words, (std::vector<std::string>{"500"}));
    EXPECT_TRUE(until("until pixel 1 2 000000").words.empty());
    EXPECT_EQ(until("until not text \"500\" 20").words, (std::vector<std::string>{"20"}));
    EXPECT_TRUE(until("until text \"500\"").words.empty());
    EXPECT_TRUE(until("until not not idle").condition.negated == false);
}

TEST(WalkLanguage, RefusesWhatIsNoneOfIt) {
    for (const char* const line : {"jump",
                                   "wait",
                                   "wait ten",
                                   "wait 1 2",
                                   "click",
                                   "click 1",
                                   "click far 1 2",
                                   "key f13",
                                   "key",
                                   "type",
                                   "type \"open",
                                   "press left 3",
                                   "expect",
                                   "expect not",
                                   "expect idle now",
                                   "expect pixel 1 2 red",
                                   "use",
                                   "give a",
                                   "say",
                                   "say nothing",
                                   "use \"a\"b",
                                   "until 500",
                                   "choose first",
                                   "read unquoted",
                                   "expect window Fenster",
                                   "until window Fenster 500",
                                   "go",
                                   "down \"\""}) {
        const std::string message = refusal(line);
        EXPECT_EQ(message.rfind("w:2: expected ", 0), 0U) << line << ": " << message;
        EXPECT_NE(message.find(", found "), std::string::npos) << line;
    }
}

}  // namespace
}  // namespace zentrox::probe
