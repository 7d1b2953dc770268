// The language of walks: a row for each form of a command, with what plays it.
#pragma once

#include <span>

#include "tools/probe/player.h"

namespace zentrox::probe {

// The letters of `words` say what each word is:
//   n number   w any word   q quoted word   b button   k key   i the word "item"   c condition to the end of the
//   line
//   * any number of quoted words
struct Verb {
    const char* name;
    const char* words;
    const char* shown;  // the forms of this name, for messages
    void (Player::*play)(const Command&);
};

// The forms of one name stand side by side.
std::span<const Verb> verbs();

}  // namespace zentrox::probe
