// What single words and numbers in arguments mean.
#pragma once

#include <array>

#include "platform/values/text.h"

namespace zentrox {

// The words of `System`, just as they stand. Every other word closes the room window.
namespace systemwort {
constexpr TextView Open = "Open";
constexpr TextView Save = "Save";
constexpr TextView Abspann = "Abspann";
inline constexpr std::array alle{Open, Save, Abspann};
}  // namespace systemwort
bool istSystemwort(TextView argument);

// The directions of `Blende`, by the first field of the argument; another one does nothing.
enum class Blendrichtung { keine, weiß, zurück };
Blendrichtung blendrichtung(TextView argument);

}  // namespace zentrox
