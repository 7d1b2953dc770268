// The parts of sources as an author sees them: rooms, objects, their scripts, items, people, parts with a name.
#pragma once

#include "tools/page/reading.h"

namespace zentrox::page {

struct Section {
    enum class Kind {
        room,
        start,
        countDown,
        object,
        right,  // a script of the object or the item above it
        left,
        drop,
        item,
        person,
        part,
        combination,
        scriptFile
    };
    Kind kind = Kind::room;
    story::Place head;
    int lastLine = 0;  // in the file of `head`
    Text name;         // of a room, an object, an item (its picture), a person, a part
    int room = -1;     // of the story's rooms; -1 outside of them
    int object = -1;   // of that room
    Text item;         // the picture of the item that a script belongs to
    std::vector<story::Statement> body;

    bool isScript() const;
};

std::vector<Section> sectionsOf(const Reading& reading);

// German, as it heads it in the source.
const char* wordOf(Section::Kind kind);

}  // namespace zentrox::page
