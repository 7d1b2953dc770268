// How loud each kind of sound is.
#pragma once

#include <SDL_audio.h>

namespace zentrox {

// All are kept at full.
constexpr int voiceLevel = SDL_MIX_MAXVOLUME;
constexpr int effectLevel = SDL_MIX_MAXVOLUME;
constexpr int songLevel = SDL_MIX_MAXVOLUME;
constexpr int videoLevel = SDL_MIX_MAXVOLUME;

}  // namespace zentrox
