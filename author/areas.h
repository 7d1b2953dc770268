// What an author sees over the picture of a room: the areas of its objects, and the hand that draws new ones.
#pragma once

#include <optional>

#include "author/workbench.h"

namespace zentrox::author {

class Areas {
public:
    // Takes keys, looks and overlay of the comforts, which outlive it.
    explicit Areas(Workbench& bench);
    Areas(const Areas&) = delete;
    Areas& operator=(const Areas&) = delete;

    bool shown() const { return shown_; }
    void showOrHide();
    // A hand that draws; where no room is on top there is nothing to draw on.
    bool drawing() const { return drawing_; }
    void beginOrEnd();

private:
    bool look(const Input& input);
    bool key(const Input& input);
    void press(const Input& input, Point at);
    void release(Point at);
    void finish(const std::string& line);
    void giveUpShape();
    bool write(const std::string& line, bool further);

    // Where the picture of the room stands in the window; nothing if no room is on top.
    std::optional<Rect> room() const;
    int objectAt(Point inRoom) const;
    void next(int step);

    void draw(Bitmap& picture, const Rect& base) const;
    void drawObject(Bitmap& picture, Point at, int object) const;
    void drawName(Bitmap& picture, Point at, int object) const;
    void drawShape(Bitmap& picture, Point at) const;
    void drawHelp(Bitmap& picture, const Rect& area) const;

    Workbench& bench_;
    const Zustand& z_;
    bool shown_ = false;
    bool drawing_ = false;
    int chosen_ = -1;  // the object that is drawn for
    bool further_ = false;
    bool pressed_ = false;
    Point from_;
    Point pointer_;
    std::vector<Point> corners_;
};

}  // namespace zentrox::author
