// Virtual key codes, those that the game names.
#pragma once

namespace zentrox::key {

constexpr int backspace = 8;
constexpr int tab = 9;
constexpr int enter = 13;
constexpr int shift = 16;
constexpr int control = 17;
constexpr int alt = 18;
constexpr int pause = 19;
constexpr int capsLock = 20;
constexpr int escape = 27;
constexpr int space = 32;
constexpr int pageUp = 33;
constexpr int pageDown = 34;
constexpr int end = 35;
constexpr int home = 36;
constexpr int left = 37;
constexpr int up = 38;
constexpr int right = 39;
constexpr int down = 40;
constexpr int insert = 45;
constexpr int del = 46;
constexpr int f1 = 112;
constexpr int f2 = 113;
constexpr int f3 = 114;
constexpr int f4 = 115;
constexpr int f5 = 116;
constexpr int f6 = 117;
constexpr int f7 = 118;
constexpr int f8 = 119;
constexpr int f9 = 120;
constexpr int f10 = 121;
constexpr int f11 = 122;
constexpr int f12 = 123;
constexpr int comma = 188;
constexpr int period = 190;

}  // namespace zentrox::key
