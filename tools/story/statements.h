// What single statements may look like: how many words they have, and which names. What does not fit is a finding.
#pragma once

#include "tools/story/scanner.h"

namespace zentrox::story {

// The keyword stands alone.
bool noWords(const Statement& s, Findings& findings);
// Just one name stands behind the keyword, and a file can hold it.
bool oneName(const Statement& s, Findings& findings);

// A room's file, perhaps in directories below that of the rooms.
bool isRoomFile(const Token& name, Findings& findings);
// A picture of an item: a file without a directory.
bool isItemPicture(const Token& name, Findings& findings);
bool isScriptFile(const Token& name, Findings& findings);

// Why this is no word of the language, and what may be meant.
std::string unknownWord(TextView word, const std::vector<Text>& known);

}  // namespace zentrox::story
