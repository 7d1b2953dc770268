// The author's panel, a second window beside the game: what the game remembers, what it does, and a hand in both.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "author/areas.h"
#include "author/sheet.h"
#include "author/trace.h"
#include "author/workbench.h"
#include "platform/sdl/sidewindow.h"

namespace zentrox::author {

// Its controls are a few flat rows drawn into a picture of its own. The controls of the game would not do: its
// windows stand on each other, and the topmost one stops what lies below. A toolkit would be one more package for
// every player, its own loop beside the queue, and letters of another kind, all for four lists and a few buttons.
class Panel {
public:
    // All must outlive it. Takes keys and looks of the comforts. `open`: it stands as soon as the game does.
    Panel(Workbench& bench, Areas& areas, sdl::Desktop& desktop, bool open);
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    // It stands from now on, or no longer.
    std::function<void(bool stands)> onShown;

private:
    enum class Page { trace, rooms, flags, items };

    void addKeys();
    void showOrHide();
    void open();
    void look();
    void wheel(int lines);
    void turnTo(Page page);
    void erase(bool all);

    // --- the hand in the game
    void holdBeforeCommand();
    void step();
    void goOn();
    bool heldInput(const Input& input);
    void jumpTo(const Text& room);
    void toggleFlag(const Text& name);
    void toggleItem(const Text& file);
    void changeEvil(int by);
    void openEditor(const std::filesystem::path& file, int line);

    // --- what is known
    std::vector<Text> roomFiles() const;
    std::vector<Text> flags() const;
    bool carries(const Text& file) const;
    Text fingerprint() const;

    // --- the picture
    void paint();
    int header(int y);
    int evilCounter(int y);
    int script(int y);
    int buttons(int y);
    int findings();
    int tabs(int y);
    Text label(Page page) const;
    std::vector<Sheet::Row> traceRows();
    std::vector<Sheet::Row> nameRows();
    int width() const;

    Workbench& bench_;
    Areas& areas_;
    Comforts& comforts_;
    Zustand& z_;
    sdl::Desktop& desktop_;
    Trace trace_;
    std::unique_ptr<sdl::SideWindow> window_;
    Timer timer_;
    std::vector<Point> clicks_;  // to be done in a turn of the queue of their own
    bool wanted_ = false;        // it shall stand
    Text shown_;                 // what the picture was painted from
    Sheet sheet_;
    Page page_ = Page::trace;
    Text filter_;  // what names of a list have to hold
    int scroll_ = 0;
    bool stepping_ = false;
    bool held_ = false;  // a command waits
    bool mayRun_ = false;
};

}  // namespace zentrox::author
