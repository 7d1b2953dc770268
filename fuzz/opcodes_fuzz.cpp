// All instructions in any order, with arguments that fit and others: a room of them is entered, clicked and waited
// in.
#include <array>

#include "engine/language/opcodes.h"
#include "fuzz/play.h"
#include "tools/story/writer.h"

namespace {

using zentrox::OpcodeAnzahl;
using zentrox::Skript;
using zentrox::fuzz::Course;

// Names that the demo has, and what else an instruction may be given.
constexpr std::array arguments{"",
                               "A",
                               "B",
                               "1",
                               "2",
                               "0",
                               "-1",
                               "0.5",
                               "3",
                               "99999999999",
                               "1e308",
                               "TESTRAUM.LSD",
                               "Flur.lsd",
                               "Hof.lsd",
                               "fehlt.lsd",
                               "aula.jpg",
                               "orlix.jpg",
                               "fehlt.bmp",
                               "cola.bmp",
                               "COLA",
                               "moehre.bmp",
                               "MOEHRE",
                               "aula.mid",
                               "fehlt.mid",
                               "orlix-start-01.wav",
                               "0,0,640,480",
                               "176,104,352,236",
                               "-5,-5,9999,9999",
                               "600,400,10,10",
                               "nix",
                               "1,orlix.jpg",
                               "2,velmix.jpg",
                               "3,",
                               "DING",
                               "DING,taste1.ico",
                               "DING,fehlt.ico",
                               "2|Frage|Ja|Nein",
                               "3|Frage#zwei|Eins|Zwei|Drei",
                               "0|Frage",
                               "1000|Frage|Eins",
                               "-1|",
                               "Ein Text.#Noch eine Zeile.",
                               "$DText",
                               "$",
                               "PI,A,",
                               "JUMP,A,",
                               "ESEL,A,",
                               "HDW,A,",
                               "PRÜGEL,A,zaubertrank",
                               "BRUHKS,A,",
                               "PONG,A,",
                               "MEMORY,A,",
                               "X,A,1",
                               "Open",
                               "Save",
                               "Abspann",
                               "..\\..\\etc\\passwd",
                               "C:\\x.lsd",
                               "\\etc\\passwd",
                               ",",
                               ",,,,",
                               "|",
                               "###"};

zentrox::Text argument(Course& course) {
    const std::size_t chosen = course.byte();
    if (chosen < arguments.size()) return zentrox::fromUtf8(arguments[chosen]);
    if (chosen < 192) return zentrox::fromUtf8(arguments[chosen % arguments.size()]);
    zentrox::Text text = course.bytes(chosen - 191);
    std::erase(text, '"');
    return text;
}

Skript script(Course& course, std::size_t most) {
    Skript made;
    for (std::size_t count = course.below(most); count > 0 && !course.over(); --count) {
        made.Befehl.push_back(static_cast<std::int32_t>(course.byte() % (OpcodeAnzahl + 1)));
        made.Argument.push_back(argument(course));
    }
    made.Letzter = static_cast<std::int32_t>(made.Befehl.size()) - 1;
    return made;
}

zentrox::Raum room(Course& course) {
    zentrox::Raum made;
    made.Bild = "aula.jpg";
    made.Startskript = script(course, 40);
    made.CountDownSkript = script(course, 10);
    zentrox::RaumObjekt thing;
    thing.Name = "DING";
    thing.Aktiv = true;
    thing.Zeiger = "taste1.ico";
    for (int column = 0; column < zentrox::Maskenspalten / 2; ++column)
        for (int row = 0; row < zentrox::Maskenzeilen; ++row) thing.Maske.set(column, row, true);
    for (std::size_t i = 0; i < thing.Aktion.size(); ++i) {
        thing.Aktion[i] = script(course, 20);
        thing.HatSkript[i] = true;
    }
    made.Objekte = {thing, thing};
    made.LetztesObjekt = 1;
    return made;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static zentrox::fuzz::Stage stage;
    Course course(data, size);
    stage.replace("rooms/Testraum.lsd", zentrox::story::writeRoom(room(course)));
    zentrox::fuzz::play(stage, "Testraum.lsd", 1, course);
    return 0;
}
