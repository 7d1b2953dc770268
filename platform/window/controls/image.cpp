#include "platform/window/controls/image.h"

#include <utility>

namespace zentrox {

Image::Image(Control* parent, const Rect& area, bool stretches) : Control(parent, area), stretches_(stretches) {}

void Image::setPicture(Bitmap picture) {
    picture_ = std::move(picture);
    changed();
}

void Image::paint(Bitmap& onto, Point at) {
    if (picture_.empty()) return;
    if (stretches_)
        onto.stretch(picture_, picture_.bounds(), {at, area().size()});
    else
        onto.copy(picture_, at);
}

}  // namespace zentrox
