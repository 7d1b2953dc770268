// What the documents show has to be what the compiler takes and prints.
#include <fstream>
#include <set>

#include "engine/language/opcodes.h"
#include "story_support.h"
#include "tools/story/inputs.h"
#include "tools/story/reference.h"

namespace zentrox::story::test {

namespace {

std::string document(const char* name) {
    std::ifstream in(std::string(DOCS) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The samples in fences of a kind.
std::vector<std::string> samplesOf(const std::string& text, const std::string& kind) {
    std::vector<std::string> samples;
    const std::string fence = "```" + kind + "\n";
    for (std::size_t at = 0; (at = text.find(fence, at)) != std::string::npos;) {
        at += fence.size();
        samples.push_back(text.substr(at, text.find("```", at) - at));
    }
    return samples;
}

// What the samples of scripts take for granted.
std::string inRoom(const std::string& script) {
    return R"(Person Balduin
    Portrait links "balduin.jpg"
    Farbe 7
    Stimme "balduin"
Person Velmix
    Spieler
    Portrait rechts "velmix.jpg"
    Stimme "velmix"
Gegenstand "moehre.bmp" heißt MÖHRE
Skriptteil HEIMWEG
    Marke VON_VORN
    Text "Genug für heute."
    Raumwechsel "Start.lsd"
Raum "Probe.lsd"
Objekt "Tür"
Ablegen
)" + script;
}

}  // namespace

// Of two samples each the first is a form, the second what it becomes.
TEST(Documents, FormsBecomeWhatThePageSays) {
    const std::string text = document("story-language.md");
    const std::size_t from = text.find("## What the forms become");
    const auto samples = samplesOf(text.substr(from, text.find("\n## ", from + 1) - from), "skript");
    ASSERT_GT(samples.size(), 8U);
    ASSERT_EQ(samples.size() % 2, 0U);
    for (std::size_t i = 0; i < samples.size(); i += 2) {
        const Story form = compiled(inRoom(samples[i]));
        const Story plain = compiled(inRoom(samples[i + 1]));
        const auto script = [](const Story& story) { return story.rooms[0].room.Objekte[0].Aktion[2]; };
        // Both ask for the same items, since one source does.
        EXPECT_EQ(writeScript(script(form)), writeScript(script(plain))) << samples[i];
    }
}

TEST(Documents, EverySampleCompiles) {
    MemoryFiles files;
    files.sources["gruss.teil"] = "Text \"Hallo.\"";
    std::set<std::int32_t> used;
    const auto compile = [&](const std::string& sample) {
        const Story story = compiled(sample, files);
        for (const ScriptView& view : scriptsOf(story))
            used.insert(view.script.Befehl.begin(), view.script.Befehl.end());
    };
    const std::string text = document("story-language.md");
    const auto whole = samplesOf(text, "story");
    const auto scripts = samplesOf(text, "skript");
    EXPECT_GT(whole.size(), 4U);
    EXPECT_GT(scripts.size(), 6U);
    std::size_t fences = 0;
    for (std::size_t at = 0; (at = text.find("```", at)) != std::string::npos; at += 3) ++fences;
    EXPECT_EQ(fences, 2 * (whole.size() + scripts.size())) << "a sample of another kind is compiled by nobody";
    for (const std::string& sample : whole) compile(sample);
    for (const std::string& sample : scripts) compile(inRoom(sample));
    for (const Opcode& opcode : opcodes()) EXPECT_TRUE(used.contains(opcode.number)) << toUtf8(opcode.name);
}

TEST(Documents, TheReferenceIsWhatTheProgramPrints) {
    EXPECT_EQ(document("opcodes.md"), referencePage());
}

TEST(Documents, TheDemoShowsEveryCommand) {
    Findings findings;
    SourceFiles files;
    const Story story = parseSources(sourcesOf({DEMO}), files, findings);
    std::set<std::int32_t> used;
    for (const ScriptView& view : scriptsOf(story))
        used.insert(view.script.Befehl.begin(), view.script.Befehl.end());
    for (const Opcode& opcode : opcodes()) EXPECT_TRUE(used.contains(opcode.number)) << toUtf8(opcode.name);
}

}  // namespace zentrox::story::test
