// The findings of the compiler and its checks, as an editor shows them.
#include <algorithm>

#include "tools/lsp/protocol.h"

namespace zentrox::lsp {

namespace {

constexpr int error = 1;
constexpr int warning = 2;

using Ends = std::map<story::Place, int>;  // the column behind each word, by where it begins

Ends endsIn(const Analysis& story, int file) {
    Ends ends;
    for (const story::Source& source : story.parsed.sources)
        for (const story::Statement& statement : source.statements) {
            if (statement.front().place.file != file) continue;
            for (const story::Token& word : statement) ends[word.place] = word.end;
        }
    return ends;
}

// A finding tells where something begins; the word there is what is marked, else the rest of the line.
Range rangeOf(const Here& here, const Lines& lines, const Ends& ends, const story::Place& place) {
    int behind = static_cast<int>(lines.line(place.line).size()) + 1;
    const auto next = ends.upper_bound(place);
    if (next != ends.begin()) {
        const auto& [word, end] = *std::prev(next);
        if (word.line == place.line && place.column < end) behind = end;
    }
    return {lines.position(place.line, place.column, here.encoding),
            lines.position(place.line, behind, here.encoding)};
}

}  // namespace

Json diagnosticsOf(const Here& here) {
    Json list = Json::array();
    const auto& all = here.story.findings.all();
    if (std::none_of(all.begin(), all.end(), [&](auto& finding) { return finding.place.file == here.file; }))
        return list;
    const Lines lines = here.lines();
    const Ends ends = endsIn(here.story, here.file);
    for (const story::Finding& finding : all) {
        if (finding.place.file != here.file) continue;
        list.push_back({{"range", asJson(rangeOf(here, lines, ends, finding.place))},
                        {"severity", finding.severity == story::Severity::error ? error : warning},
                        {"code", finding.code},
                        {"source", "zentrox-story"},
                        {"message", finding.message}});
    }
    return list;
}

}  // namespace zentrox::lsp
