#include "tools/story/check.h"

namespace zentrox::story {

void checkForBuild(const Story& story, Findings& findings) {
    for (const ScriptView& view : scriptsOf(story)) checkCommands(view, {true, {}}, findings);
}

void check(const Story& story, const Surroundings& around, Findings& findings) {
    const bool wholeStory = around.wholeStory && !findings.hasBroken();
    CommandRules rules;
    for (const Story* part : {&story, around.rest})
        for (std::size_t i = 0; part && wholeStory && i < part->rooms.size(); ++i)
            rules.rooms.push_back(&part->rooms[i]);
    for (const StoryRoom& room : story.rooms) checkRuns(room, findings);
    for (const ScriptView& view : scriptsOf(story)) {
        checkCommands(view, rules, findings);
        checkRun(view, findings);
        checkTexts(view, around.fonts, findings);
    }
    if (around.data) checkFiles(story, around, findings);
    FileLooks fresh;
    if (around.data && around.wholeGame)
        checkMedia(story, *around.data, around.looks ? *around.looks : fresh, findings);
    checkRooms(story, around, wholeStory, findings);
    checkItems(story, around.rest, findings);
    if (!wholeStory) return;
    checkFlags(story, around.rest, findings);
    checkDropped(story, around.rest, findings);
}

}  // namespace zentrox::story
