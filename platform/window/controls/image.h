// A picture in a window, or the empty place of one. It can be clicked like anything else.
#pragma once

#include "platform/window/controls/look.h"

namespace zentrox {

class Image : public Control {
public:
    // With `stretches` the picture fills the area, else it stands unscaled in the upper left corner.
    Image(Control* parent, const Rect& area, bool stretches = false);

    const Bitmap& picture() const { return picture_; }
    // An empty bitmap takes the picture away; what lies under the control then shows.
    void setPicture(Bitmap picture);

    TextView kind() const override { return "picture"; }
    void paint(Bitmap& onto, Point at) override;

private:
    Bitmap picture_;
    bool stretches_;
};

}  // namespace zentrox
