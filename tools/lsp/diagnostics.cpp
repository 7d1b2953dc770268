// The findings of the compiler and its checks, as an editor shows them.
#include "tools/lsp/protocol.h"

namespace zentrox::lsp {

namespace {

constexpr int error = 1;
constexpr int warning = 2;

// A finding tells where something begins; the word there is what is marked, else the rest of the line.
Range rangeOf(const Here& here, const Lines& lines, const story::Place& place) {
    int behind = static_cast<int>(lines.line(place.line).size()) + 1;
    const auto next = here.story.ends.upper_bound(place);
    if (next != here.story.ends.begin()) {
        const auto& [word, end] = *std::prev(next);
        if (word.file == place.file && word.line == place.line && place.column < end) behind = end;
    }
    return {lines.position(place.line, place.column, here.encoding),
            lines.position(place.line, behind, here.encoding)};
}

}  // namespace

Json diagnosticsOf(const Here& here) {
    const Lines lines = here.lines();
    Json list = Json::array();
    for (const story::Finding& finding : here.story.findings.all()) {
        if (finding.place.file != here.file) continue;
        list.push_back({{"range", asJson(rangeOf(here, lines, finding.place))},
                        {"severity", finding.severity == story::Severity::error ? error : warning},
                        {"code", finding.code},
                        {"source", "zentrox-story"},
                        {"message", finding.message}});
    }
    return list;
}

}  // namespace zentrox::lsp
