#include <gtest/gtest.h>

#include "saves_fixture.h"

namespace zentrox::test {
namespace {

struct DialogPlay : SavesPlay {
    DialogPlay() {
        for (const char* name : {"zoo.xtc", "Anna.XTC", "berta.xtc", "notiz.txt", "tief/drin.xtc"})
            directory.write(std::string("saves/") + name, "");
        z.Übergabe = Text("Spiel laden");
    }
    Text show() {
        Dialog dialog(platform, z);
        dialog.showModal();
        return std::get<Text>(z.Übergabe);
    }
    Window& window() { return *platform.queue.active(); }
    template <class Kind>
    Kind& control(int nth = 0) {
        for (Control* const child : window().root().children())
            if (auto* const hit = dynamic_cast<Kind*>(child); hit != nullptr && nth-- == 0) return *hit;
        throw std::logic_error("no such control");
    }
};

TEST(Dialog, ShowsTheGamesUnderItsTitle) {
    DialogPlay play;
    play.z.LetzterSpielstand = "berta.xtc";
    play.backend.then([&] {
        EXPECT_EQ(play.window().title(), "Spiel laden");
        EXPECT_EQ(play.control<List>().items(), (std::vector<Text>{"Anna.XTC", "berta.xtc", "zoo.xtc"}));
        EXPECT_EQ(play.window().focus(), &play.control<Field>());
        EXPECT_EQ(play.control<Field>().selected(), "berta.xtc") << "typing replaces it";
        EXPECT_EQ(play.control<Field>().area(), Rect(0, 216, 393, 19));
        EXPECT_EQ(play.control<PushButton>(1).area(), Rect(312, 240, 81, 25));
    });
    play.backend.closeBox();
    EXPECT_EQ(play.show(), "") << "the close box cancels";
    EXPECT_EQ(play.z.LetzterSpielstand, "berta.xtc");
}

TEST(Dialog, IsPlayedByMouse) {
    DialogPlay play;
    play.backend.click({50, 2 + 13 + 5});
    play.backend.click({250, 250});
    EXPECT_EQ(play.show(), play.dir() + "berta.xtc");
    play.backend.doubleClick({50, 5});
    EXPECT_EQ(play.show(), play.dir() + "Anna.XTC") << "its own extension is enough";
    play.backend.click({50, 5});
    play.backend.click({330, 250});
    EXPECT_EQ(play.show(), "");
    EXPECT_EQ(play.z.LetzterSpielstand, "Anna.XTC");
}

TEST(Dialog, TakesTheChosenGameOnAClickBelowTheList) {
    constexpr Point below{50, 150};
    DialogPlay play;
    play.backend.click(below);
    play.backend.then([&] { EXPECT_EQ(play.control<Field>().text(), "") << "none is chosen yet"; });
    play.backend.click({50, 5});
    play.backend.key(key::tab);
    play.backend.type("x");
    play.backend.click(below);
    play.backend.then([&] { EXPECT_EQ(play.control<Field>().text(), "Anna.XTC"); });
    play.backend.doubleClick(below);
    EXPECT_EQ(play.show(), play.dir() + "Anna.XTC");

    play.backend.doubleClick(below);
    play.backend.then([&] { EXPECT_TRUE(play.window().isOpen()) << "a new window has none chosen"; });
    play.backend.key(key::escape);
    EXPECT_EQ(play.show(), "");
}

TEST(Dialog, OffersOnlyNamesThatItCanHandOut) {
    DialogPlay play;
    for (const char* name :
         {"a|b.xtc", "eins*.xtc", "wo?.xtc", "<>.xtc", "zwei\nZeilen.xtc", "tab\t.xtc", "привет.xtc",
          "u\u0308ber.xtc", "latin\xFC.xtc", "back\\slash.xtc", "größe \"1\": neu.xtc"})
        play.directory.write(std::string("saves/") + name, "");
    play.backend.then([&] {
        EXPECT_EQ(play.control<List>().items(),
                  (std::vector<Text>{"Anna.XTC", "berta.xtc", Text("größe \"1\": neu.xtc"_t), "zoo.xtc"}));
    });
    play.backend.key(key::escape);
    play.show();
}

TEST(Dialog, IsPlayedByKeys) {
    DialogPlay play;
    play.answer("Held");
    EXPECT_EQ(play.show(), play.dir() + "Held.xtc");

    play.backend.key(key::tab, true);  // to the list
    play.backend.key(key::end);
    play.backend.key(key::enter);
    EXPECT_EQ(play.show(), play.dir() + "zoo.xtc");

    play.backend.key(key::tab);
    play.backend.key(key::tab);
    play.backend.key(key::enter);  // on the button that cancels
    EXPECT_EQ(play.show(), "");
    play.backend.key(key::escape);
    EXPECT_EQ(play.show(), "");
}

TEST(Dialog, CleansNames) {
    const std::vector<std::pair<Text, Text>> cases{
        {"", ".xtc"},
        {"   ", "   .xtc"},
        {"Held", "Held.xtc"},
        {"HELD.XTC", "HELD.XTC"},
        {"a.xtc.bak", "a.xtc.bak.xtc"},
        {"xtc", "xtc.xtc"},
        {"*?/\\|<>", "_______.xtc"},
        {"a:b\"c", "a:b\"c.xtc"},
        {"..\\..\\weg", ".._.._weg.xtc"},
        {Text("Müßiggang €"_t), Text("Müßiggang €.xtc"_t)},
        {Text(300, 'n'), Text(300, 'n') + ".xtc"},
    };
    for (const auto& [typed, name] : cases) {
        DialogPlay play;
        play.answer(typed);
        EXPECT_EQ(play.show(), play.dir() + name);
        EXPECT_EQ(play.z.LetzterSpielstand, name);
    }
}

TEST(Dialog, BearsAMissingDirectory) {
    DialogPlay play;
    std::filesystem::remove_all(play.directory.path() / "saves");
    play.backend.key(key::escape);
    EXPECT_EQ(play.show(), "");
}

}  // namespace
}  // namespace zentrox::test
