// Room files from anywhere: damaged, or a room that comes back from its source and from its own file.
#include "engine/files/raumdatei.h"
#include "fuzz/story_fuzz.h"
#include "tools/story/data.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox::story;
    Story story;
    Findings findings;
    readRoomData(fuzz::textOf(data, size), "Fuzz.lsd", "Fuzz.lsd", story, findings);
    for (const StoryRoom& room : story.rooms) {
        const std::string written = writeRoom(room.room);
        if (writeRoom(zentrox::parseRoom(written, "Fuzz.lsd")) != written) std::abort();
    }
    fuzz::lookOver(story, findings);
    fuzz::comesBack(story);
    return 0;
}
