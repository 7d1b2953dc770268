// The one native window of the program, and the game's windows in it. It is made with the first window of the game
// and lives as long as the process: whichever window comes to be the bottommost one takes it over.
#pragma once

#include <SDL.h>

#include <memory>
#include <optional>

#include "platform/sdl/scene.h"

namespace zentrox::sdl {

class Screen {
public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    bool ready() const { return native_ != nullptr; }
    // Null before the first window has opened.
    SDL_Window* window() const { return native_.get(); }
    // Ends the program with a word on standard error if there is no display.
    void opened(Window& window);
    void closed(Window& window);
    void reshaped(Window& window);
    const Scene& scene() const { return scene_; }

    // True if something would look different after `show`.
    bool stale() const { return scene_.stale(); }
    void show();
    // All of it has to be shown again.
    void expose() { scene_.expose(); }
    void setFineLetters(bool on) { scene_.setFineLetters(on); }
    // See `Scene::overlay`.
    void setOverlay(std::function<void(Bitmap&, const Rect&, const Rect&)> overlay) {
        scene_.overlay = std::move(overlay);
    }

    // The native window may have another size now.
    void sizeChanged();
    // The window manager follows what we ask for a while later, and tells of sizes that were on the way meanwhile.
    // This is when it will have done so, in SDL's ticks; nothing if we wait for nothing.
    std::optional<Uint64> calmAt() const { return calmAt_; }
    // To be called then: takes what the window manager has made of it.
    void calm();
    // The client area that the bottommost window should have, if that is another one than it has.
    std::optional<Size> resizeWanted() const;

    // The size of the native window in the units that its events count in.
    Size nativePoints() const;

    bool fullScreen() const { return fullScreen_; }
    void setFullScreen(bool on);
    Enlarging enlarging() const { return enlarging_; }
    void setEnlarging(Enlarging how);

    // Coordinates are those of the native window's events. See `Scene`.
    Place placeAt(Point p) const { return scene_.placeAt(inPixels(p)); }
    Point inTop(Point p) const { return scene_.inTop(inPixels(p)); }
    void dragTop(Point to, Point grip) { scene_.dragTop(inPixels(to), grip); }
    void pressCloseBox(bool down) { scene_.pressCloseBox(down); }

private:
    struct WindowEnd {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };

    void create(Window& window);
    void takeOver(Window& window);
    void shape();
    void settle();
    void askedForSize();
    bool maximised() const;
    void measure();
    void layOutAll();
    Size wantedNative() const;
    double windowedScale(const Window& window) const;
    Ground ground() const;
    Ground baseGround() const;
    void showThroughCopy(SDL_Surface& target);
    Point inPixels(Point p) const;

    std::unique_ptr<SDL_Window, WindowEnd> native_;
    Scene scene_;
    Size size_;                 // of the native window, in its pixels
    double density_ = 1;        // its pixels for each unit that the window system counts in
    Size baseSize_;             // what the bottommost window alone wants of it, outside full screen
    Size stretchedSize_;        // what it was made larger to for the windows above, empty if it was not
    double windowedScale_ = 1;  // the scale that the bottommost window opened with
    std::optional<Uint64> calmAt_;
    bool leavesFullScreen_ = false;
    Size least_;  // the smallest size that the native window was told, empty if it is fixed
    bool fullScreen_ = false;
    Enlarging enlarging_ = Enlarging::whole;
};

}  // namespace zentrox::sdl
