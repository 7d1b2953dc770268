// Script files from anywhere: damaged, or a script that comes back from its source and from its own file.
#include "engine/files/raumdatei.h"
#include "fuzz/story_fuzz.h"
#include "tools/story/data.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox::story;
    Story story;
    Findings findings;
    readScriptData(fuzz::textOf(data, size), "fuzz1.skp", "fuzz1.skp", story, findings);
    for (const StoryScript& script : story.scripts) {
        const std::string written = writeScript(script.script);
        if (writeScript(zentrox::parseSkript(written, "fuzz1.skp")) != written) std::abort();
    }
    fuzz::lookOver(story, findings);
    fuzz::comesBack(story);
    return 0;
}
