#include "tools/voices/level.h"

#include <algorithm>
#include <cmath>

namespace zentrox::voices {

namespace {

constexpr double fullScale = 32768;
constexpr double silence = -100;      // decibels
constexpr double pauseBelow = 0.001;  // of the energy of the loudest moment: 30 decibels
constexpr double knee = 0.7;          // from here on peaks are rounded off
constexpr double roomAboveKnee = 0.25;

double energyOf(const std::vector<std::int16_t>& samples, std::size_t begin, std::size_t end) {
    double sum = 0;
    for (std::size_t i = begin; i < end; ++i) sum += std::pow(samples[i] / fullScale, 2);
    return sum / static_cast<double>(end - begin);
}

double roundedOff(double value) {
    const double over = std::abs(value) - knee;
    return over <= 0 ? value : std::copysign(knee + roomAboveKnee * std::tanh(over / roomAboveKnee), value);
}

}  // namespace

double loudness(const std::vector<std::int16_t>& samples, int rate) {
    const auto step = static_cast<std::size_t>(std::max(rate / 100, 1));
    std::vector<double> energies;
    for (std::size_t i = 0; i < samples.size(); i += step)
        energies.push_back(energyOf(samples, i, std::min(i + step, samples.size())));
    const double loudest = energies.empty() ? 0 : *std::max_element(energies.begin(), energies.end());
    double sum = 0;
    int counted = 0;
    for (const double energy : energies) {
        if (energy == 0 || energy < loudest * pauseBelow) continue;
        sum += energy;
        ++counted;
    }
    return counted == 0 ? silence : 10 * std::log10(sum / counted);
}

void level(std::vector<std::int16_t>& samples, int rate, double decibels) {
    const double now = loudness(samples, rate);
    if (now <= silence) return;
    const double gain = std::pow(10, (decibels - now) / 20);
    for (std::int16_t& sample : samples)
        sample = static_cast<std::int16_t>(std::lround(roundedOff(sample / fullScale * gain) * fullScale));
}

}  // namespace zentrox::voices
