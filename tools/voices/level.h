// Brings speech to one loudness.
#pragma once

#include <cstdint>
#include <vector>

namespace zentrox::voices {

// The loudness in decibels below full scale, over those hundredths of a second that are not pauses. Below -90 for
// silence.
double loudness(const std::vector<std::int16_t>& samples, int rate);

// Scales the samples to that loudness. Peaks are rounded off and never reach full scale. Silence stays silence.
void level(std::vector<std::int16_t>& samples, int rate, double decibels);

}  // namespace zentrox::voices
