// How walks spell names, texts and keys.
#pragma once

#include <string>

#include "platform/values/text.h"

namespace zentrox::author {

// UTF-8, in quotes.
std::string inQuotes(TextView text);
// The same, without quotes where none are needed.
std::string word(TextView text);

// The name of a key by its virtual code, empty for one that walks can't press.
std::string keyName(int code);
// True of a key that gives a character by itself.
bool typesCharacter(int code);

}  // namespace zentrox::author
