// The anchor of the start: the least that shows a window with SDL.
#include <SDL.h>

int main() {
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    SDL_InitSubSystem(SDL_INIT_VIDEO);
    SDL_Window* const window =
        SDL_CreateWindow("bare", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, 640, 483, 0);
    SDL_Surface* const surface = SDL_GetWindowSurface(window);
    SDL_FillRect(surface, nullptr, 0xFF0000);
    SDL_UpdateWindowSurface(window);
    SDL_Event event;
    while (SDL_WaitEvent(&event) != 0 && event.type != SDL_QUIT) {
    }
    return 0;
}
