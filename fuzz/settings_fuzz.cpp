// A file of settings from anywhere: what is believed of it lies in its bounds, and comes back from the file that is
// written over it. The same bytes as a table of captions.
#include <cstdlib>

#include "comfort/captions.h"
#include "comfort/settings.h"
#include "platform/values/limits.h"

namespace {

bool inBounds(const zentrox::Settings& settings, const zentrox::SettingsRow& row) {
    const auto* const number = std::get_if<int zentrox::Settings::*>(&row.field);
    if (number == nullptr) return true;
    const int value = settings.*(*number);
    if (row.choices.empty()) return value >= row.least && value <= row.most;
    for (const zentrox::Choice& choice : row.choices)
        if (choice.value == value) return true;
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const zentrox::Settings settings = zentrox::readSettings(bytes);
    for (const zentrox::SettingsRow& row : zentrox::settingsRows())
        if (!inBounds(settings, row)) std::abort();
    const std::string written = zentrox::writeSettings(settings, bytes);
    if (zentrox::readSettings(written) != settings) std::abort();
    if (zentrox::writeSettings(settings, written) != written) std::abort();
    for (const auto& [name, words] : zentrox::readTable(bytes))
        if (name.empty() || words.empty() || words.size() > zentrox::limits::captionLetters) std::abort();
    return 0;
}
