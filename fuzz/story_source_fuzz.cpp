// Sources from anywhere: findings or a story, and a story comes back from its own source.
#include "fuzz/story_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox::story;
    fuzz::NoFiles files;
    Findings findings;
    const Story story = parseSource(fuzz::textOf(data, size), "fuzz.story", files, findings);
    const bool whole = !findings.hasErrors();
    fuzz::lookOver(story, findings);
    if (whole) fuzz::comesBack(story);
    return 0;
}
