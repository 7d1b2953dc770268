// Writes room and script files, the counterpart of the readers in engine/files.
#pragma once

#include "engine/state/zustand.h"

namespace zentrox::story {

// The bytes of a room file and of a script file: code page 1252, lines end in CR LF, texts in quotes, masks column
// by column. Throws `DataError` for a text that no file can hold.
std::string writeRoom(const Raum& room);
std::string writeScript(const Skript& script);

// True if a file can hold the text. A quote has a place only in a text that can stand without quotes around it.
bool writable(TextView text);

}  // namespace zentrox::story
