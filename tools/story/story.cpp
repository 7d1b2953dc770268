#include "tools/story/story.h"

namespace zentrox::story {

namespace {

constexpr std::size_t extensionLength = 4;  // with the dot

}  // namespace

Place ScriptPlaces::argument(std::size_t index) const {
    const CommandPlace& command = commands[index];
    return command.argument.empty() ? command.command : command.argument.front();
}

Text itemScriptFile(TextView picture, std::size_t which) {
    const TextView base = picture.substr(0, picture.size() - std::min(picture.size(), extensionLength));
    return Text(base) + std::to_string(which) + ".skp";
}

}  // namespace zentrox::story
