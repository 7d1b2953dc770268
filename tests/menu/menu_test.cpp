#include "menu/menu.h"

#include <gtest/gtest.h>

#include "platform/values/error.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

// The menu with or without a CD, played through the queue. Its lines stand at x 100 of the lower part.
struct MenuPlay : Stage {
    Zustand z;
    std::vector<Text> shown;  // the room that the room window was shown with, each time
    std::optional<int> ended;

    explicit MenuPlay(bool cd = true) {
        directory.write("spiel/leer", "");
        if (cd) directory.write("cd/Zentrox", "");
        backend.wait(200);
    }
    static Point line(int index) { return {100, 120 + 40 + 50 * index + 6}; }
    void run() {
        try {
            Menu menu(platform, z, {directory.path() / "cd"}, [this] {
                EXPECT_EQ(platform.queue.active(), nullptr) << "the menu is gone before";
                shown.push_back(std::get<Text>(z.Übergabe));
                Queue::endProgram(3);
            });
            menu.showModal();
        } catch (const ProgramEnd& end) {
            ended = end.status;
        }
    }
    // The captions of the lines; the marked one has a star.
    std::vector<Text> lines() {
        std::vector<Text> all;
        collect(platform.queue.active()->root(), all);
        return all;
    }

private:
    void collect(const Control& control, std::vector<Text>& into) {
        const auto* const label = dynamic_cast<const Label*>(&control);
        if (label != nullptr && label->font().points == 12 && label->visible())
            into.push_back((label->font().bold ? "*" : "") + label->text());
        for (const Control* const child : control.children()) collect(*child, into);
    }
};

using Lines = std::vector<Text>;

TEST(Menu, IsCalledAsTheStoryIs) {
    MenuPlay play;
    play.z.Titel.Name = Text("Das Fundbüro"_t);
    play.z.Titel.Bonus = "Fotos";
    play.z.Titel.Titelbild = "graphics\\fehlt.jpg";
    play.backend.then([&] {
        EXPECT_EQ(play.platform.queue.active()->title(), "Das Fundbüro - Menü"_t);
        EXPECT_EQ(play.lines()[2], "Fotos");
        Queue::endProgram();
    });
    play.run();
}

TEST(Menu, HasItsLinesInTheirPlaces) {
    MenuPlay play;
    play.backend.then([&] {
        Window& menu = *play.platform.queue.active();
        EXPECT_EQ(menu.title(), "Zentrox - Menü"_t);
        EXPECT_EQ(menu.client(), (Size{501, 397}));
        EXPECT_EQ(play.lines(),
                  (Lines{"*Spiel beginnen", "Altes Spiel laden", "Bonusmaterial", Text("Menü verlassen"_t)}));
        for (int i = 0; i < 4; ++i) {
            const Rect area = menu.controlAt(MenuPlay::line(i)).areaInWindow();
            EXPECT_EQ(area.x, 100 - area.w / 2);
            EXPECT_EQ(area.y, 160 + 50 * i);
        }
        EXPECT_TRUE(menu.shows("V. 1.3"));
        EXPECT_NE(menu.compose().pixel({250, 45}), 0) << "the title picture is there";
        EXPECT_NE(menu.compose().pixel({470, 140}), 0) << "and the wave";
    });
    play.backend.closeBox();
    play.run();
    EXPECT_FALSE(play.ended) << "the close box lets the loop end";
    EXPECT_TRUE(play.shown.empty());
}

TEST(Menu, IsPlayedByKeys) {
    MenuPlay play;
    play.backend.key(key::up);
    play.backend.then([&] { EXPECT_EQ(play.lines()[0], "*Spiel beginnen"); });
    for (int i = 0; i < 5; ++i) play.backend.key(key::down);
    play.backend.then([&] { EXPECT_EQ(play.lines()[3], "*Menü verlassen"_t); });
    play.backend.key(key::up);
    play.backend.key(key::enter);
    play.backend.then([&] {
        EXPECT_EQ(play.lines(), (Lines{"*Videos", "Bilder Sessions", "Mathe-Physik-LernCD", Text("Zurück"_t)}));
    });
    play.backend.key(key::down);
    play.backend.key(key::escape);
    play.backend.then([&] { EXPECT_EQ(play.lines()[0], "*Spiel beginnen") << "the mark goes to the first line"; });
    play.backend.key(key::escape);
    play.run();
    EXPECT_EQ(play.ended, 0);
}

TEST(Menu, IsPlayedByPointer) {
    MenuPlay play;
    play.backend.move(MenuPlay::line(1));
    play.backend.then([&] { EXPECT_EQ(play.lines()[1], "*Altes Spiel laden"); });
    play.backend.key(key::down);
    play.backend.then([&] { EXPECT_EQ(play.lines()[2], "*Bonusmaterial") << "keys go on from there"; });
    play.backend.move({300, 300});
    play.backend.then([&] { EXPECT_EQ(play.lines()[2], "*Bonusmaterial"); });
    play.backend.click(MenuPlay::line(2));
    play.backend.click(MenuPlay::line(3) - Point{20, 0});
    play.backend.then([&] { EXPECT_EQ(play.lines()[3], "Menü verlassen"_t); });
    play.backend.click(MenuPlay::line(3));
    play.run();
    EXPECT_EQ(play.ended, 0);
}

TEST(Menu, BeginsAGameInsideItsLoop) {
    const std::vector<std::pair<int, Text>> cases{{0, ""}, {1, "Laden.lsd"}};
    for (const auto& [index, room] : cases) {
        MenuPlay play;
        play.backend.click(MenuPlay::line(index));
        play.run();
        EXPECT_EQ(play.shown, std::vector<Text>{room});
        EXPECT_EQ(play.ended, 3);
        EXPECT_EQ(play.z.PfadRooms, Files::gamePath(play.directory.path()) + "\\cd\\Spiel\\Rooms\\");
        EXPECT_EQ(play.platform.queue.reasons(), "") << "every wait is left";
    }
}

TEST(Menu, WithoutACdThereIsNoBonusMaterial) {
    MenuPlay play(false);
    play.backend.then([&] { EXPECT_EQ(play.lines().size(), 3U); });
    play.backend.key(key::down);
    play.backend.key(key::down);
    play.backend.then([&] { EXPECT_EQ(play.lines()[2], "*Menü verlassen"_t) << "over the hidden line"; });
    play.backend.key(key::up);
    play.backend.then([&] { EXPECT_EQ(play.lines()[1], "*Altes Spiel laden"); });
    play.backend.click(MenuPlay::line(2));
    play.backend.closeBox();
    play.run();
    EXPECT_TRUE(play.backend.started.empty());
}

TEST(Menu, OpensTheBonusMaterialAsItIsFound) {
    MenuPlay play;
    play.directory.write("cd/VIDEOS/film.mpg", "");
    play.directory.write("cd/Bilder/Index.HTML", "");
    play.backend.click(MenuPlay::line(2));
    for (int i = 0; i < 2; ++i) play.backend.click(MenuPlay::line(i) - Point{30, 0});
    play.backend.then([&] { play.backend.startWorks = false; });
    play.backend.click(MenuPlay::line(2) - Point{30, 0});
    play.backend.then([&] { EXPECT_EQ(play.platform.queue.active()->name(), "MsgBox"); });
    play.backend.key(key::enter);
    play.backend.closeBox();
    play.run();
    const std::string cd = (play.directory.path() / "cd").string();
    EXPECT_EQ(play.backend.started, (std::vector<std::vector<std::string>>{{"xdg-open", cd + "/VIDEOS"},
                                                                           {"xdg-open", cd + "/Bilder/Index.HTML"},
                                                                           {"xdg-open", cd + "/LernCD"}}));
    ASSERT_EQ(play.backend.boxes.size(), 1U);
    EXPECT_EQ(play.backend.boxes[0].text,
              "\"LernCD\" kann nicht geöffnet werden, weil das Programm xdg-open fehlt."_t);
}

TEST(Menu, OpensNothingOutsideOfTheCdAndNoProgram) {
    MenuPlay play;
    std::filesystem::create_directory_symlink("/usr", play.directory.path() / "cd/Videos");
    play.directory.write("cd/LernCD", "#!/bin/sh");
    play.backend.click(MenuPlay::line(2));
    for (const int line : {0, 2}) {
        play.backend.click(MenuPlay::line(line) - Point{30, 0});
        play.backend.then([&] { EXPECT_EQ(play.platform.queue.active()->name(), "MsgBox"); });
        play.backend.key(key::enter);
    }
    play.backend.closeBox();
    play.run();
    EXPECT_TRUE(play.backend.started.empty());
    ASSERT_EQ(play.backend.boxes.size(), 2U);
    EXPECT_EQ(play.backend.boxes[1].text,
              "\"LernCD\" kann nicht geöffnet werden, weil es kein Verzeichnis auf der CD ist."_t);
}

// The typed text stands in the surface over the lines: is anything in the cell of a letter?
bool typed(Window& menu, int column, int row) {
    const Bitmap& picture = menu.compose();
    for (int y = 0; y < 13; ++y)
        for (int x = 0; x < 6; ++x)
            if (picture.pixel({184 + 2 + 8 * column + x, 120 + 2 + 14 * row + y}) != 0) return true;
    return false;
}

TEST(Menu, TypesTwelveLettersASecondAndStartsAnewWithTheScreen) {
    MenuPlay play;
    play.backend.wait(2000);
    play.backend.then([&] {
        Window& menu = *play.platform.queue.active();
        EXPECT_TRUE(typed(menu, 20, 0));
        EXPECT_FALSE(typed(menu, 29, 0)) << "2.2 seconds are 27 letters";
    });
    play.backend.click(MenuPlay::line(2));
    play.backend.wait(160);
    play.backend.then([&] {
        Window& menu = *play.platform.queue.active();
        EXPECT_TRUE(typed(menu, 0, 0));
        EXPECT_FALSE(typed(menu, 5, 0)) << "cleared at once";
    });
    play.backend.closeBox();
    play.run();
}

TEST(Menu, TheLoopSleepsBetweenItsTicks) {
    MenuPlay play;
    play.backend.wait(10'000);
    play.backend.closeBox();
    play.run();
    EXPECT_LE(play.backend.sleeps, 10'200 / 16 + 10);
}

}  // namespace
}  // namespace zentrox::test
