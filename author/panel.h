// The author's panel, a second window beside the game: what the game remembers, what it does, and a hand in both.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "author/trace.h"
#include "author/workbench.h"
#include "platform/sdl/sidewindow.h"
#include "tools/probe/itemnames.h"

namespace zentrox::author {

// Its controls are a few flat rows drawn into a picture of its own, since the windows of the game stand on each
// other and stop what lies below, and a toolkit would be one more package for players.
class Panel {
public:
    // All must outlive it. Takes keys and looks of the comforts.
    Panel(Workbench& bench, sdl::Desktop& desktop);
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

private:
    enum class Page { trace, rooms, flags, items };
    struct Spot {
        Rect area;
        std::function<void()> click;
    };

    void showOrHide();
    void look();
    bool click(Point at);
    void wheel(int lines);

    // --- the hand in the game
    void holdBeforeCommand();
    void step();
    void goOn();
    bool heldInput(const Input& input);
    void toggleFlag(const Text& name);
    void toggleItem(const Text& file);
    void changeEvil(int by);
    void openEditor(const Trace::Entry& entry);

    // --- what is known
    std::vector<Text> roomFiles() const;
    std::vector<Text> flags() const;
    bool carries(const Text& file) const;
    Text fingerprint() const;

    // --- the picture
    void paint();
    int header(int y);
    int tabs(int y);
    void list(int y);
    void traceRows();
    void nameRows();
    void row(const Text& text, Colour colour, std::function<void()> click, bool marked = false);
    int text(Point at, const Text& text, Colour colour, bool bold = false);
    int button(Point at, const Text& label, bool down, std::function<void()> click);

    Workbench& bench_;
    Comforts& comforts_;
    Zustand& z_;
    sdl::Desktop& desktop_;
    Trace trace_;
    std::unique_ptr<sdl::SideWindow> window_;
    Timer timer_;
    std::vector<Point> clicks_;  // to be done in a turn of the queue of their own
    bool closed_ = false;
    Text shown_;  // what the picture was painted from
    Bitmap picture_;
    std::vector<Spot> spots_;
    Page page_ = Page::trace;
    int scroll_ = 0;  // rows, from the end of the trace and from the top of the others
    Rect listArea_;
    int rowY_ = 0;
    bool stepping_ = false;
    bool held_ = false;  // a command waits
    bool mayRun_ = false;
};

}  // namespace zentrox::author
