// The plain box with a text and one button.
#pragma once

#include "platform/values/text.h"

namespace zentrox {

class Platform;
class Window;

struct MessageBox {
    enum class Icon { none, information, critical };
    Text title;
    Text text;  // lines end with carriage return, line feed or both
    Icon icon = Icon::none;
};

// Shows it and returns when it has been closed, by its button, Enter, Escape, space or its close box.
void showMessageBox(Platform& platform, const MessageBox& box);

// True if the window is such a box with the icon of a failure.
bool tellsOfFailure(const Window& window);

}  // namespace zentrox
