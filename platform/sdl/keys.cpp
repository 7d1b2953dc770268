#include "platform/sdl/keys.h"

#include <algorithm>

#include "platform/values/keys.h"

namespace zentrox::sdl {

namespace {

struct Key {
    SDL_Scancode place;
    int code;
};

constexpr std::array places{
    Key{SDL_SCANCODE_BACKSPACE, key::backspace},
    Key{SDL_SCANCODE_TAB, key::tab},
    Key{SDL_SCANCODE_RETURN, key::enter},
    Key{SDL_SCANCODE_KP_ENTER, key::enter},
    Key{SDL_SCANCODE_LSHIFT, key::shift},
    Key{SDL_SCANCODE_RSHIFT, key::shift},
    Key{SDL_SCANCODE_LCTRL, key::control},
    Key{SDL_SCANCODE_RCTRL, key::control},
    Key{SDL_SCANCODE_LALT, key::alt},
    Key{SDL_SCANCODE_RALT, key::alt},
    Key{SDL_SCANCODE_PAUSE, key::pause},
    Key{SDL_SCANCODE_CAPSLOCK, key::capsLock},
    Key{SDL_SCANCODE_ESCAPE, key::escape},
    Key{SDL_SCANCODE_SPACE, key::space},
    Key{SDL_SCANCODE_PAGEUP, key::pageUp},
    Key{SDL_SCANCODE_PAGEDOWN, key::pageDown},
    Key{SDL_SCANCODE_END, key::end},
    Key{SDL_SCANCODE_HOME, key::home},
    Key{SDL_SCANCODE_LEFT, key::left},
    Key{SDL_SCANCODE_UP, key::up},
    Key{SDL_SCANCODE_RIGHT, key::right},
    Key{SDL_SCANCODE_DOWN, key::down},
    Key{SDL_SCANCODE_PRINTSCREEN, 44},
    Key{SDL_SCANCODE_INSERT, key::insert},
    Key{SDL_SCANCODE_DELETE, key::del},
    Key{SDL_SCANCODE_LGUI, 91},
    Key{SDL_SCANCODE_RGUI, 92},
    Key{SDL_SCANCODE_APPLICATION, 93},
    Key{SDL_SCANCODE_KP_MULTIPLY, 106},
    Key{SDL_SCANCODE_KP_PLUS, 107},
    Key{SDL_SCANCODE_KP_MINUS, 109},
    Key{SDL_SCANCODE_KP_DIVIDE, 111},
    Key{SDL_SCANCODE_NUMLOCKCLEAR, 144},
    Key{SDL_SCANCODE_SCROLLLOCK, 145},
    Key{SDL_SCANCODE_SEMICOLON, 186},
    Key{SDL_SCANCODE_EQUALS, 187},
    Key{SDL_SCANCODE_COMMA, key::comma},
    Key{SDL_SCANCODE_MINUS, 189},
    Key{SDL_SCANCODE_PERIOD, key::period},
    Key{SDL_SCANCODE_SLASH, 191},
    Key{SDL_SCANCODE_GRAVE, 192},
    Key{SDL_SCANCODE_LEFTBRACKET, 219},
    Key{SDL_SCANCODE_BACKSLASH, 220},
    Key{SDL_SCANCODE_NONUSHASH, 220},
    Key{SDL_SCANCODE_RIGHTBRACKET, 221},
    Key{SDL_SCANCODE_APOSTROPHE, 222},
    Key{SDL_SCANCODE_NONUSBACKSLASH, 226},
};

// With its digits, and without.
struct KeypadKey {
    SDL_Scancode place;
    int digit;
    int arrow;
};

constexpr std::array keypad{
    KeypadKey{SDL_SCANCODE_KP_0, 96, key::insert},    KeypadKey{SDL_SCANCODE_KP_1, 97, key::end},
    KeypadKey{SDL_SCANCODE_KP_2, 98, key::down},      KeypadKey{SDL_SCANCODE_KP_3, 99, key::pageDown},
    KeypadKey{SDL_SCANCODE_KP_4, 100, key::left},     KeypadKey{SDL_SCANCODE_KP_5, 101, 12},
    KeypadKey{SDL_SCANCODE_KP_6, 102, key::right},    KeypadKey{SDL_SCANCODE_KP_7, 103, key::home},
    KeypadKey{SDL_SCANCODE_KP_8, 104, key::up},       KeypadKey{SDL_SCANCODE_KP_9, 105, key::pageUp},
    KeypadKey{SDL_SCANCODE_KP_PERIOD, 110, key::del}, KeypadKey{SDL_SCANCODE_KP_COMMA, 110, key::del},
};

constexpr std::uint64_t tapLasts = 100;  // milliseconds

// Marks that lie elsewhere on each layout; the codes follow the label.
int markCode(SDL_Keycode label) {
    switch (label) {
        case SDLK_COMMA: return key::comma;
        case SDLK_PERIOD: return key::period;
        case SDLK_MINUS: return 189;
        case SDLK_PLUS:
        case SDLK_EQUALS: return 187;
        default: return 0;
    }
}

int keypadCode(const SDL_Keysym& sym) {
    const bool digits = (sym.mod & KMOD_NUM) != 0 && (sym.mod & KMOD_SHIFT) == 0;
    for (const KeypadKey& known : keypad)
        if (known.place == sym.scancode) return digits ? known.digit : known.arrow;
    return 0;
}

int functionKey(SDL_Scancode place) {
    if (place >= SDL_SCANCODE_F1 && place <= SDL_SCANCODE_F12) return key::f1 + (place - SDL_SCANCODE_F1);
    if (place >= SDL_SCANCODE_F13 && place <= SDL_SCANCODE_F24) return key::f1 + 12 + (place - SDL_SCANCODE_F13);
    return 0;
}

}  // namespace

int virtualCode(const SDL_Keysym& sym) {
    if (sym.sym >= SDLK_a && sym.sym <= SDLK_z) return sym.sym - SDLK_a + 'A';
    if (sym.sym >= SDLK_0 && sym.sym <= SDLK_9) return sym.sym;
    // A layout whose digits need the shift key still has them on the digit keys.
    if (sym.scancode >= SDL_SCANCODE_1 && sym.scancode <= SDL_SCANCODE_9)
        return '1' + (sym.scancode - SDL_SCANCODE_1);
    if (sym.scancode == SDL_SCANCODE_0) return '0';
    for (const int code : {markCode(sym.sym), functionKey(sym.scancode), keypadCode(sym)})
        if (code != 0) return code;
    for (const Key& known : places)
        if (known.place == sym.scancode) return known.code;
    const bool letterKey = sym.scancode >= SDL_SCANCODE_A && sym.scancode <= SDL_SCANCODE_Z;
    return letterKey ? 'A' + (sym.scancode - SDL_SCANCODE_A) : 0;
}

char controlCharacter(const SDL_Keysym& sym) {
    switch (virtualCode(sym)) {
        case key::backspace: return '\b';
        case key::tab: return '\t';
        case key::enter: return '\r';
        case key::escape: return '\x1B';
        default: break;
    }
    const bool control = (sym.mod & KMOD_CTRL) != 0 && (sym.mod & KMOD_ALT) == 0;
    const bool letter = sym.sym >= SDLK_a && sym.sym <= SDLK_z;
    return control && letter ? static_cast<char>(sym.sym - SDLK_a + 1) : '\0';
}

KeyStates heldKeys() {
    KeyStates keys{};
    const auto mod = static_cast<Uint16>(SDL_GetModState());
    int count = 0;
    const Uint8* const held = SDL_GetKeyboardState(&count);
    for (int place = 0; held != nullptr && place < count; ++place) {
        if (held[place] == 0) continue;
        const auto scancode = static_cast<SDL_Scancode>(place);
        const SDL_Keysym sym{scancode, SDL_GetKeyFromScancode(scancode), mod, 0};
        const int code = virtualCode(sym);
        if (code > 0 && code < 256) keys[static_cast<std::size_t>(code)] = 128;
    }
    return keys;
}

void Taps::note(int code, std::uint64_t now) {
    if (code > 0 && code < 256) pressedAt_[static_cast<std::size_t>(code)] = std::max<std::uint64_t>(now, 1);
}

void Taps::addTo(KeyStates& keys, std::uint64_t now) {
    for (std::size_t i = 0; i < keys.size(); ++i)
        if (pressedAt_[i] != 0 && now - pressedAt_[i] <= tapLasts) keys[i] = 128;
    forget();
}

}  // namespace zentrox::sdl
