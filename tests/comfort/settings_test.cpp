// The file of the settings: what a player writes by hand, what a disk damages, what a later version knows.
#include <gtest/gtest.h>

#include <set>

#include "comfort/settings.h"
#include "platform/machine/whole_file.h"

namespace zentrox {
namespace {

TEST(SettingsFile, EverySettingComesBack) {
    Settings chosen;
    for (const SettingsRow& row : settingsRows()) {
        if (const auto* const field = std::get_if<bool Settings::*>(&row.field))
            chosen.*(*field) = !(chosen.*(*field));
        else
            chosen.*std::get<int Settings::*>(row.field) =
                row.choices.empty() ? row.least : row.choices.back().value;
    }
    ASSERT_NE(chosen, Settings());
    EXPECT_EQ(readSettings(writeSettings(chosen, "")), chosen);
    EXPECT_EQ(readSettings(writeSettings(Settings(), writeSettings(chosen, ""))), Settings());
    EXPECT_EQ(writeSettings(Settings(), ""), "") << "nothing chosen, nothing written";
}

TEST(SettingsPage, TellsOfEachSettingAndItsValues) {
    const std::string page = readFile(COMFORTS_PAGE).value_or("");
    for (const SettingsRow& row : settingsRows()) {
        const auto at = page.find("`" + std::string(row.key) + "`");
        ASSERT_NE(at, std::string::npos) << row.key;
        const std::string line = page.substr(at, page.find('\n', at) - at);
        const std::string shownOn = row.shown ? "| " + toUtf8(row.page) + " |" : "";
        EXPECT_NE(page.find(shownOn), std::string::npos) << row.key;
        for (const Choice& choice : row.choices)
            EXPECT_NE(line.find("`" + std::string(choice.word) + "`"), std::string::npos) << row.key;
    }
}

TEST(SettingsFile, LinesOfOthersStayWhereTheyAre) {
    const std::string before = "# mine\r\n\nmusik=70\r\nzukunft = 3\nmusik = 20\n  vollbild =  ja  ";
    Settings settings = readSettings(before);
    EXPECT_EQ(settings.music, 20);
    EXPECT_TRUE(settings.fullScreen);
    settings.music = 50;
    settings.muted = true;
    EXPECT_EQ(writeSettings(settings, before),
              "# mine\r\n\nmusik = 50\r\nzukunft = 3\nmusik = 50\nvollbild = ja\nstumm = ja\n");
}

TEST(SettingsFile, DamageIsAsOutOfTheBox) {
    for (const char* const line :
         {"musik = 101", "musik = -1", "musik = 99999999999999", "musik = 5x", "musik =", "musik",
          "stumm = vielleicht", "vergroesserung = 2", "= ja", "MUSIK = 10", "musik = 50\nmusik = kaputt"})
        EXPECT_EQ(readSettings(line), Settings()) << line;
    const std::string zeros("\0\0\0=\0musik = 30\0\n\xFF\xFE", 19);
    EXPECT_EQ(readSettings(zeros), Settings());
    EXPECT_EQ(writeSettings(Settings(), zeros), zeros + "\n") << "what is not known is left alone";
}

TEST(SettingsFile, NoTwoSettingsShareAKey) {
    std::set<std::string> keys;
    for (const SettingsRow& row : settingsRows()) EXPECT_TRUE(keys.insert(row.key).second) << row.key;
}

}  // namespace
}  // namespace zentrox
