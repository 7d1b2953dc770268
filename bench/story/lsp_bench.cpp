// The language server: what an editor waits for after a key, with the demo and with a story of 100 rooms. Each
// answer comes after a change, so that the whole story is read anew.
#include <benchmark/benchmark.h>

#include <fstream>

#include "bench/story/big_story.h"
#include "tools/lsp/server.h"

namespace {

namespace fs = std::filesystem;
using zentrox::lsp::Json;

// A source that is open in an editor, which types a blank at its end and takes it away again.
class Editor {
public:
    Editor(const fs::path& source, const fs::path& data)
        : server_(data, [this](const Json& message) { last_ = message; }),
          uri_(zentrox::lsp::uriOf(source)) {
        std::ifstream in(source, std::ios::binary);
        text_.assign(std::istreambuf_iterator<char>(in), {});
        ask("initialize", {{"capabilities", Json::object()}});
        tell("didOpen", {{"uri", uri_}, {"version", 1}, {"text", text_}}, {});
        server_.tellFindings();
    }

    void type() {
        typed_ = !typed_;
        tell("didChange", {{"uri", uri_}, {"version", 2}}, {{{"text", typed_ ? text_ + " " : text_}}});
    }
    bool ask(const std::string& method, Json params) {
        last_ = nullptr;
        server_.take({{{{"id", 1}, {"method", method}, {"params", std::move(params)}}, ""}, false});
        return last_.contains("result") && !last_["result"].is_null();
    }
    bool askAt(const std::string& method, const std::string& word) {
        const zentrox::lsp::Lines before(std::string_view(text_).substr(0, text_.find(word) + 1));
        Json params{{"textDocument", {{"uri", uri_}}},
                    {"position", asJson(before.end(zentrox::lsp::Encoding::utf16))},
                    {"newName", "EIN_ANDERER"}};
        return ask(method, std::move(params));
    }
    void findings() { server_.tellFindings(); }

private:
    void tell(const std::string& what, const Json& document, const Json& changes) {
        const Json params{{"textDocument", document}, {"contentChanges", changes}};
        server_.take({{{{"method", "textDocument/" + what}, {"params", params}}, ""}, false});
    }

    Json last_;
    zentrox::lsp::Server server_;
    std::string uri_;
    std::string text_;
    bool typed_ = false;
};

Editor editorOf(bool demo) {
    if (demo) return Editor(fs::path(DEMO) / "hof.story", DEMO_DATA);
    return Editor(zentrox::bench::bigStory().path() / "story" / "raum7.story", {});
}

void answer(benchmark::State& state, const char* method, const char* inDemo, const char* inBig) {
    Editor editor = editorOf(state.range(0) == 0);
    for (auto _ : state) {
        editor.type();
        if (!editor.askAt(method, state.range(0) == 0 ? inDemo : inBig)) state.SkipWithError("no answer");
    }
}
void completion(benchmark::State& state) {
    answer(state, "textDocument/completion", "ESEL_FERTIG", "GETAN_7_3");
}
void hover(benchmark::State& state) {
    answer(state, "textDocument/hover", "ESEL_FERTIG", "GETAN_7_3");
}
void references(benchmark::State& state) {
    answer(state, "textDocument/references", "ANGEL", "ring.bmp");
}
void rename(benchmark::State& state) {
    answer(state, "textDocument/rename", "ESEL_FERTIG", "GETAN_7_3");
}
void outline(benchmark::State& state) {
    answer(state, "textDocument/documentSymbol", "Raum", "Raum");
}
void findings(benchmark::State& state) {
    Editor editor = editorOf(state.range(0) == 0);
    for (auto _ : state) {
        editor.type();
        editor.findings();
    }
}
BENCHMARK(completion)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(hover)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(references)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(rename)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(outline)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(findings)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// From the first byte of a session to the first findings, files decoded for the first time.
void opening(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(editorOf(state.range(0) == 0));
}
BENCHMARK(opening)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
