// What the keyboard says, in the game's codes.
#include "platform/sdl/keys.h"

#include <gtest/gtest.h>

#include "platform/values/keys.h"

namespace zentrox::sdl {
namespace {

SDL_Keysym sym(SDL_Scancode place, SDL_Keycode label, int mod = KMOD_NONE) {
    return {place, label, static_cast<Uint16>(mod), 0};
}

TEST(Keys, FollowTheLabelAndElseThePlace) {
    struct Case {
        const char* what;
        SDL_Keysym key;
        int code;
    };
    for (const Case& c : {
             Case{"a", sym(SDL_SCANCODE_A, SDLK_a), 'A'},
             Case{"a on a French layout", sym(SDL_SCANCODE_Q, SDLK_a), 'A'},
             Case{"z on a German layout", sym(SDL_SCANCODE_Y, SDLK_z), 'Z'},
             Case{"the letter where o lies, Cyrillic", sym(SDL_SCANCODE_O, 0x449), 'O'},
             Case{"the letter where p lies, Greek", sym(SDL_SCANCODE_P, 0x3C0), 'P'},
             Case{"comma where m lies", sym(SDL_SCANCODE_M, SDLK_COMMA), key::comma},
             Case{"& on the digit key 1", sym(SDL_SCANCODE_1, SDLK_AMPERSAND), '1'},
             Case{"0", sym(SDL_SCANCODE_0, SDLK_0), '0'},
             Case{"ö on a German layout", sym(SDL_SCANCODE_SEMICOLON, 0xF6), 186},
             Case{"minus on a German layout", sym(SDL_SCANCODE_SLASH, SDLK_MINUS), 189},
             Case{"F1", sym(SDL_SCANCODE_F1, SDLK_F1), key::f1},
             Case{"F7", sym(SDL_SCANCODE_F7, SDLK_F7), key::f7},
             Case{"F13", sym(SDL_SCANCODE_F13, SDLK_F13), key::f1 + 12},
             Case{"Enter on the keypad", sym(SDL_SCANCODE_KP_ENTER, SDLK_KP_ENTER), key::enter},
             Case{"right shift", sym(SDL_SCANCODE_RSHIFT, SDLK_RSHIFT), key::shift},
             Case{"an arrow", sym(SDL_SCANCODE_UP, SDLK_UP), key::up},
             Case{"a key without a code", sym(SDL_SCANCODE_MUTE, SDLK_MUTE), 0},
         })
        EXPECT_EQ(virtualCode(c.key), c.code) << c.what;
}

TEST(Keys, TheKeypadHasDigitsWithNumLockOnly) {
    const auto at = [](SDL_Scancode place, int mod) {
        return virtualCode(sym(place, SDL_SCANCODE_TO_KEYCODE(place), mod));
    };
    EXPECT_EQ(at(SDL_SCANCODE_KP_8, KMOD_NUM), 104);
    EXPECT_EQ(at(SDL_SCANCODE_KP_8, KMOD_NONE), key::up);
    EXPECT_EQ(at(SDL_SCANCODE_KP_8, KMOD_NUM | KMOD_LSHIFT), key::up);
    EXPECT_EQ(at(SDL_SCANCODE_KP_2, KMOD_NONE), key::down);
    EXPECT_EQ(at(SDL_SCANCODE_KP_4, KMOD_NONE), key::left);
    EXPECT_EQ(at(SDL_SCANCODE_KP_6, KMOD_NONE), key::right);
    EXPECT_EQ(at(SDL_SCANCODE_KP_PERIOD, KMOD_NONE), key::del);
}

TEST(Keys, GiveCharacters) {
    EXPECT_EQ(controlCharacter(sym(SDL_SCANCODE_RETURN, SDLK_RETURN)), '\r');
    EXPECT_EQ(controlCharacter(sym(SDL_SCANCODE_C, SDLK_c, KMOD_LCTRL)), '\x03');
    EXPECT_EQ(controlCharacter(sym(SDL_SCANCODE_Q, SDLK_q, KMOD_LCTRL | KMOD_RALT)), '\0');
    EXPECT_EQ(controlCharacter(sym(SDL_SCANCODE_A, SDLK_a)), '\0');
}

TEST(Keys, ATapCountsOnceAndNotLater) {
    Taps taps;
    KeyStates keys{};
    taps.note('P', 1000);
    taps.addTo(keys, 1020);
    EXPECT_EQ(keys['P'], 128);
    keys = {};
    taps.addTo(keys, 1040);
    EXPECT_EQ(keys['P'], 0);

    taps.note('P', 2000);
    taps.addTo(keys, 2500);
    EXPECT_EQ(keys['P'], 0);
    taps.note('P', 3000);
    taps.forget();
    taps.addTo(keys, 3001);
    EXPECT_EQ(keys['P'], 0);
}

}  // namespace
}  // namespace zentrox::sdl
