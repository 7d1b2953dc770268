// What a walk knows of the story: flags, items, the places where things of a room take a click.
#pragma once

#include "engine/interpreter/raumfenster.h"
#include "engine/state/zustand.h"
#include "platform/probe/recorder.h"
#include "tools/probe/itemnames.h"
#include "tools/probe/player.h"

namespace zentrox::probe {

class Story : public Game {
public:
    Story(Platform& platform, Zustand& zustand, const Recorder& recorder)
        : platform_(platform),
          z_(zustand),
          recorder_(recorder) {}

    bool idle() override;
    bool scriptRuns() override { return z_.SkriptLäuft; }
    bool flag(TextView name) override;
    bool carries(TextView item) override;
    bool inRoom(TextView file) override;
    int evil() override { return z_.BösePunkte; }
    bool choiceOpen() override { return z_.SkriptLäuft && z_.AuswahlErgebnis == -1; }
    std::optional<std::vector<Text>> standingText() override;
    std::vector<Text> options() override;
    bool barOpen() override { return z_.LeisteOffen; }
    bool barSlides() override { return z_.LeisteBewegt; }
    std::optional<Point> object(TextView name) override;
    std::optional<Point> item(TextView name) override;
    std::optional<Point> option(int number) override;
    std::string whyNoObject(TextView name) override;
    std::string whyNoItem(TextView name) override;
    std::string whyNoSuchItem(TextView name) override;
    std::optional<Point> aboveBar() override;
    std::vector<Text> state() override;
    bool decide(bool won) override;
    void leaveGame() override;
    bool setFlag(TextView name) override;
    bool takeItem(TextView item) override;
    bool clearFlag(TextView name) override;
    bool dropItem(TextView item) override;
    bool setEvil(int points) override;
    bool goTo(TextView room) override;

private:
    // The room picture's place in the active window; nothing if that is not the room window.
    std::optional<Rect> picture() const;
    std::optional<Point> inPicture(Point p) const;
    // The row of the picture above which nothing is covered by the bar.
    int freeHeight() const;
    int lowestAt(int column, int row) const;
    // The room window if it is on top, else null.
    Raumfenster* room() const;

    // The name of an item's picture, for any name that the story has for the item.
    TextView itemName(TextView name) { return itemNames_.baseName(platform_.files, z_.PfadItems, name); }

    Platform& platform_;
    Zustand& z_;
    const Recorder& recorder_;
    ItemNames itemNames_;
};

}  // namespace zentrox::probe
