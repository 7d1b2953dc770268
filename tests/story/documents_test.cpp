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

}  // namespace

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
    for (const std::string& sample : scripts) compile("Raum \"Probe.lsd\"\nObjekt \"Tür\"\nLinks\n" + sample);
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
