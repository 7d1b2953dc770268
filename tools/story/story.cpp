#include "tools/story/story.h"

#include <algorithm>

#include "engine/state/felder.h"

namespace zentrox::story {

namespace {

constexpr std::size_t extensionLength = 4;  // with the dot

}  // namespace

Place ScriptPlaces::argument(std::size_t index) const {
    const CommandPlace& command = commands[index];
    return command.argument.empty() ? command.command : command.argument.front();
}

std::vector<ScriptView> scriptsOf(const StoryRoom& room) {
    using Role = ScriptView::Role;
    std::vector<ScriptView> views{{room.room.Startskript, room.start, &room, Role::start}};
    for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
        for (std::size_t which = 0; which < room.room.Objekte[i].Aktion.size(); ++which)
            views.push_back(
                {room.room.Objekte[i].Aktion[which], room.objects[i].action[which], &room, Role::action, which});
    views.push_back({room.room.CountDownSkript, room.countDown, &room, Role::countDown});
    return views;
}

std::vector<ScriptView> scriptsOf(const Story& story) {
    std::vector<ScriptView> views;
    for (const StoryRoom& room : story.rooms) {
        for (const ScriptView& view : scriptsOf(room)) views.push_back(view);
    }
    for (const StoryScript& script : story.scripts)
        views.push_back({script.script, script.places, nullptr, ScriptView::Role::item});
    return views;
}

Text itemName(TextView picture) {
    const Text file = Dateiname(picture);
    return file.substr(0, file.size() - std::min(file.size(), extensionLength));
}

Text itemScriptFile(TextView picture, std::size_t which) {
    return itemName(picture) + std::to_string(which) + ".skp";
}

}  // namespace zentrox::story
