// The program's own picture in title bars and task bars.
#pragma once

#include <SDL.h>

namespace zentrox::sdl {

void setIcon(SDL_Window& window);

}  // namespace zentrox::sdl
