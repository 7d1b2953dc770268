// The story flags. A name counts without blanks at its ends and in upper case.
#pragma once

#include "engine/state/zustand.h"

namespace zentrox {

// An empty name is set as long as a slot is free, since a free slot holds the empty text.
bool MerkerGesetzt(const Zustand& z, TextView name);
// Takes the lowest free slot; nothing happens if the flag is set already or if no slot is free.
void MerkerSetzen(Zustand& z, TextView name);
void MerkerLöschen(Zustand& z, TextView name);

}  // namespace zentrox
