// Data becomes a source and comes back as it was: for the demo, and for rooms that nobody would write.
#include <random>

#include "engine/files/raumdatei.h"
#include "engine/language/opcodes.h"
#include "story_support.h"
#include "tools/story/data.h"
#include "tools/story/inputs.h"
#include "tools/story/source.h"

namespace zentrox::story::test {

namespace {

// Everything that a reader can hand out: bare texts with quotes, control characters, unused codes of the page.
class Chaos {
public:
    explicit Chaos(unsigned seed) : random_(seed) {}

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }

    Text text() {
        static const std::vector<Text> pieces{"a",     "Tür",  " ",    "#",      ",",    "|",    "$C",
                                              "\\",    "//",   "{09}", "\t",     "\x81", "\x80", "1",
                                              "links", "weiß", "\x01", "stumm:", "'",    "\xA0"};
        Text out;
        for (int n = below(5); n > 0; --n) out += fromPieces(pieces);
        if (below(40) == 0) out = "gesagt:\"ja\"";
        if (below(40) == 0) out += "\r\n";
        return writable(out) ? out : "x";
    }

    Text argument(Arg arg) {
        switch (below(3) == 0 ? Arg::none : arg) {
            case Arg::rectangle: return below(2) == 0 ? "10,20,300,200" : "10, 20,300,200";
            case Arg::number:
            case Arg::seconds: return std::to_string(below(9) - 4);
            case Arg::portrait: return std::to_string(below(4)) + ",mann.jpg";
            case Arg::fade: return std::to_string(below(4));
            case Arg::game: return "PONG,SIEG";
            case Arg::choice: return "2|Was?|Eins|Zwei#Drei";
            case Arg::option: return std::to_string(1 + below(3));
            case Arg::objectPointer: return "Ding,hand.ico";
            case Arg::object: return "Ding";
            default: return text();
        }
    }

    // A heap of instructions, blocks closed or not.
    Skript heap() {
        Skript script;
        for (int n = below(12); n > 0; --n) {
            const int number = below(20) == 0 ? below(1000) - 500 : below(33);
            const Opcode* const row = findOpcode(number);
            script.Befehl.push_back(number);
            script.Argument.push_back(row ? argument(row->arg) : text());
        }
        script.Letzter = static_cast<std::int32_t>(script.Befehl.size()) - 1;
        return script;
    }

    // One that is balanced, choices in and out of order.
    Skript balanced() {
        Skript script;
        block(script, 3);
        script.Letzter = static_cast<std::int32_t>(script.Befehl.size()) - 1;
        return script;
    }

    Raum room() {
        Raum room;
        room.Bild = below(2) == 0 ? "bild.jpg" : "";
        room.Startskript = below(2) == 0 ? heap() : balanced();
        room.CountDownSkript = heap();
        room.Objekte.resize(static_cast<std::size_t>(below(4)));
        for (RaumObjekt& object : room.Objekte) {
            object.Name = below(2) == 0 ? Text("Ding") : text();
            object.Zeiger = text();
            object.Aktiv = below(2) == 0;
            for (std::size_t i = 0; i < object.Aktion.size(); ++i) {
                object.HatSkript[i] = below(2) == 0;
                object.Aktion[i] = below(2) == 0 ? balanced() : heap();
            }
            for (int n = below(6); n > 0; --n) patch(object.Maske);
        }
        room.LetztesObjekt = static_cast<std::int32_t>(room.Objekte.size()) - 1;
        return room;
    }

private:
    Text fromPieces(const std::vector<Text>& pieces) {
        const Text& piece = pieces[static_cast<std::size_t>(below(static_cast<int>(pieces.size())))];
        return piece.size() > 1 && piece[0] != '\\' ? fromUtf8(piece) : piece;
    }

    void patch(Maske& mask) {
        const int left = below(64);
        const int top = below(48);
        for (int column = left; column < std::min(64, left + below(20)); ++column)
            for (int row = top; row < std::min(48, top + 8); ++row) mask.set(column, row, below(30) > 0);
    }

    void put(Skript& script, std::int32_t command, const Text& text) {
        script.Befehl.push_back(command);
        script.Argument.push_back(text);
    }

    void block(Skript& script, int depth) {
        for (int n = below(4); n > 0; --n) {
            const int kind = depth > 0 ? below(3) : 0;
            if (kind == 0) put(script, 2, text());
            if (kind == 1) condition(script, depth - 1);
            if (kind == 2) choice(script, depth - 1);
        }
    }

    void condition(Skript& script, int depth) {
        put(script, "WennMerker"_op, "M");
        block(script, depth);
        if (below(2) == 0) {
            put(script, "Sonst"_op, "");
            block(script, depth);
        }
        put(script, "EndeWenn"_op, below(4) == 0 ? "M" : "");
    }

    void choice(Skript& script, int depth) {
        const int options = 1 + below(4);
        Text argument = std::to_string(options) + "|Frage";
        for (int i = 0; i < options; ++i) argument += "|Antwort" + std::to_string(i);
        put(script, "Auswahl"_op, argument);
        std::vector<int> order;
        for (int i = 1; i <= options; ++i)
            if (below(4) > 0) order.insert(order.begin() + below(static_cast<int>(order.size()) + 1), i);
        for (const int i : order) {
            put(script, "Fall"_op, std::to_string(i));
            block(script, depth);
        }
        put(script, "EndeAuswahl"_op, "");
    }

    std::mt19937 random_;
};

Story asStory(const Raum& room, const Skript& script) {
    Story story;
    Findings findings;
    readRoomData(writeRoom(room), "Probe.lsd", "Probe.lsd", story, findings);
    readScriptData(writeScript(script), "ding1.skp", "ding1.skp", story, findings);
    EXPECT_TRUE(findings.empty());
    return story;
}

std::string sourceOf(const Story& story) {
    std::string source;
    for (const auto& [name, text] : sourceFiles(story, {})) source += text + "\n";
    return source;
}

}  // namespace

TEST(RoundTrip, RandomRoomsComeBackByteForByte) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        Chaos chaos(seed);
        const Raum room = chaos.room();
        const Skript script = chaos.heap();
        const Story story = asStory(room, script);
        const std::string source = sourceOf(story);
        ASSERT_EQ(filesOf(compiled(source)), filesOf(story)) << "seed " << seed << "\n" << source;
    }
}

// What the writer writes, the game reads with the same fields.
TEST(RoundTrip, TheGameReadsWhatIsWritten) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        Chaos chaos(seed);
        const Raum room = chaos.room();
        const Raum again = parseRoom(writeRoom(room), "Probe.lsd");
        ASSERT_EQ(again.Objekte.size(), room.Objekte.size());
        EXPECT_EQ(again.Bild, room.Bild);
        EXPECT_TRUE(same(again.Startskript, room.Startskript) && same(again.CountDownSkript, room.CountDownSkript));
        for (std::size_t i = 0; i < room.Objekte.size(); ++i) {
            const RaumObjekt& a = room.Objekte[i];
            const RaumObjekt& b = again.Objekte[i];
            EXPECT_EQ(std::tie(a.Name, a.Zeiger, a.Aktiv, a.HatSkript, a.Maske),
                      std::tie(b.Name, b.Zeiger, b.Aktiv, b.HatSkript, b.Maske));
            for (std::size_t k = 0; k < 3; ++k) EXPECT_TRUE(same(a.Aktion[k], b.Aktion[k])) << seed;
        }
    }
}

TEST(RoundTrip, TheDemoComesBackByteForByte) {
    Findings findings;
    SourceFiles files;
    const Story story = parseSources(sourcesOf({DEMO}), files, findings);
    checkForBuild(story, findings);
    EXPECT_EQ(asLines(story, findings), "");
    EXPECT_EQ(filesOf(compiled(sourceOf(story))), filesOf(story));
}

}  // namespace zentrox::story::test
