// What the riddle answers, and its window.
#include <gtest/gtest.h>

#include <set>

#include "games/riddle/raetsel.h"
#include "games/riddle/riddle.h"
#include "platform/window/controls/field.h"
#include "platform/window/controls/textbox.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

using Ausgang = Rätselantwort::Ausgang;

TEST(Riddle, FindsItsWordsAnywhereAndLetsTheLastRowAnswer) {
    struct Case {
        TextView attempt;
        TextView reply;  // its beginning
    };
    for (const Case& c : {
             Case{"SPRANG", "So weit"},
             Case{"schwamm", "Lies dir"},
             Case{"bekam rabatt", "Es war ein Esel! Er konnte nicht sprechen"},
             Case{"verkaufte", "Niemand kaufte"},
             Case{"verlieh", "Niemand wollte"},
             Case{"FÄLLTE"_t, "Es war zum Fällen"_t},
             // rows of two words
             Case{"tat nix", "So kam er"},
             Case{"tat nichts", "So kam er"},
             Case{"GING IN DIE GASTSTÄTTE"_t, "Er war schon stoned"},
             // the last row that fits
             Case{"flog und sprang", "Er hatte Höhenangst!"_t},
             Case{"nahm sein geld und kaufte", "Er gehörte zu"_t},
             Case{"bat und tat nichts", "So kam er"},
             // no vowel, as it was typed
             Case{"", "Gib mal ein deutsches Wort ein, nicht ..."},
             Case{"   ", "Gib mal ein deutsches Wort ein, nicht ..."},
             Case{"  XyZ ", "Gib mal ein deutsches Wort ein, nicht XyZ..."},
             Case{"fällt"_t, "Gib mal ein deutsches Wort ein, nicht fällt..."_t},
         }) {
        Random random(1);
        const auto [outcome, reply, growth] = Rätsel().Versuch(c.attempt, random);
        EXPECT_EQ(outcome, Ausgang::weiter) << c.attempt;
        EXPECT_TRUE(reply.starts_with(c.reply)) << c.attempt << ": " << reply;
    }
}

TEST(Riddle, IsSolvedOrGivenUpWhateverElseIsSaid) {
    for (const TextView solved : {"gab auf"_t, "aufgab"_t, "Gab es AUF"_t, " gab nach langem kiffen auf"_t,
                                  "gab aufgeben"_t, "begab sich auf den weg"_t}) {
        Random random(1);
        EXPECT_EQ(Rätsel().Versuch(solved, random).ausgang, Ausgang::gelöst) << solved;
    }
    for (const TextView lost : {"aufgeben"_t, "  AufGeben "_t}) {
        Random random(1);
        EXPECT_EQ(Rätsel().Versuch(lost, random).ausgang, Ausgang::aufgegeben) << lost;
    }
}

TEST(Riddle, SaysAnythingWhereItKnowsNoWord) {
    for (const TextView unknown : {"gibt auf"_t, "ich will aufgeben"_t, "kneipe"_t, "ging"_t, "nichts tun"_t}) {
        std::array<Text, 6> said;
        for (unsigned seed = 0; seed < 60; ++seed) {
            Random random(seed);
            Random same(seed);
            const auto [outcome, reply, growth] = Rätsel().Versuch(unknown, random);
            EXPECT_EQ(outcome, Ausgang::weiter) << unknown;
            Text& before = said[static_cast<std::size_t>(same.below(6))];
            if (before.empty()) before = reply;
            EXPECT_EQ(reply, before) << "the same draw, the same reply";
        }
        EXPECT_EQ(std::set<Text>(said.begin(), said.end()).size(), 6U) << unknown;
        EXPECT_EQ(said[0], "Das ist Blödsinn!"_t);
        EXPECT_EQ(said[5], "Gib mal was sinnvolles ein!");
    }
}

struct Donkey : Stage {
    Zustand z;
    Medien media{platform, z};
    Donkey() { z.Übergabe = Text("1"); }

    Window& window() { return *platform.queue.active(); }
    TextBox& transcript() { return dynamic_cast<TextBox&>(window().controlAt({100, 100})); }
    Field& input() { return dynamic_cast<Field&>(window().controlAt({100, 353})); }
    void say(TextView attempt) {
        backend.type(attempt);
        backend.key(key::enter);
    }
    void show() { Form2Zeigen(platform, z, media); }
};

TEST(RiddleWindow, AnswersAndEndsWithTheSolution) {
    Donkey game;
    game.backend.then([&] {
        EXPECT_EQ(game.window().client(), (Size{450, 364}));
        EXPECT_TRUE(game.transcript().text().starts_with("ESEL\r\n----\r\n\r\n Es war einmal"));
        EXPECT_EQ(game.transcript().topLine(), 0);
    });
    game.say(" Sprang ");
    game.backend.then([&] {
        EXPECT_TRUE(
            game.transcript().text().ends_with("verloren!\r\n\r\nEr Sprang\r\nSo weit konnte er nicht springen!"));
        EXPECT_EQ(game.input().text(), "");
    });
    game.say("");
    game.backend.then([&] {
        EXPECT_TRUE(game.transcript().text().ends_with("\r\n\r\nEr \r\nGib mal ein deutsches Wort ein, nicht ..."));
    });
    game.say("gab auf");
    game.show();
    EXPECT_EQ(game.z.Übergabe, Übergabewert(true));
}

TEST(RiddleWindow, IsNotSolvedByGivingUpNorByItsCloseBox) {
    for (const bool closeBox : {false, true}) {
        Donkey game;
        closeBox ? game.backend.closeBox() : game.say("aufgeben");
        game.show();
        EXPECT_EQ(game.z.Übergabe, Übergabewert(false)) << closeBox;
    }
}

TEST(RiddleWindow, ScrollsAndSelectsItsTranscript) {
    Donkey game;
    for (int i = 0; i < 12; ++i) game.say("sprang");
    int bottom = 0;
    game.backend.then([&] {
        bottom = game.transcript().topLine();
        EXPECT_EQ(bottom, game.transcript().lineCount() - game.transcript().visibleLines());
    });
    game.backend.wheel({100, 100}, 3);
    game.backend.then([&] { EXPECT_EQ(game.transcript().topLine(), bottom - 3); });
    game.backend.key(key::pageUp);
    game.backend.then(
        [&] { EXPECT_LT(game.transcript().topLine(), bottom - 3) << "while the input has the focus"; });
    game.backend.key(key::pageDown);
    game.backend.key(key::pageDown);
    game.backend.then([&] { EXPECT_EQ(game.transcript().topLine(), bottom); });
    game.backend.click({440, 12});
    game.backend.then([&] { EXPECT_EQ(game.transcript().topLine(), bottom - 1) << "the bar"; });
    game.backend.click({100, 100});
    game.backend.key(key::home);
    game.backend.then([&] { EXPECT_EQ(game.transcript().topLine(), 0); });
    game.backend.doubleClick({8, 8});
    game.backend.then([&] { EXPECT_EQ(game.transcript().selected(), "ESEL"); });
    game.backend.key('C', false, true);
    game.backend.then([&] { EXPECT_EQ(game.backend.clip, "ESEL"); });
    game.backend.type("fuhr");
    game.backend.then([&] {
        EXPECT_EQ(game.input().text(), "fuhr") << "typing goes to the input line";
        EXPECT_EQ(game.transcript().text().find("fuhr"), Text::npos);
    });
    game.backend.closeBox();
    game.show();
}

TEST(RiddleWindow, TakesTenThousandPastedCharacters) {
    Donkey game;
    game.backend.clip = std::string(10'000, 'x') + "\nzweite Zeile";
    for (int i = 0; i < 3; ++i) {
        game.backend.key('V', false, true);
        game.backend.key(key::enter);
    }
    game.backend.then([&] {
        EXPECT_TRUE(game.transcript().text().ends_with(Text(10'000, 'x') + "..."));
        EXPECT_EQ(game.input().text(), "");
    });
    game.backend.closeBox();
    game.show();
}

}  // namespace
}  // namespace zentrox::test
