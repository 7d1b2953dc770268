// What requests and answers are made of, in the shapes of the protocol.
#pragma once

#include "tools/lsp/messages.h"
#include "tools/lsp/workspace.h"

namespace zentrox::lsp {

// What is answered instead of a result.
struct Refusal {
    int code;
    std::string message;
};
namespace code {
constexpr int parseError = -32700;
constexpr int invalidRequest = -32600;
constexpr int unknownMethod = -32601;
constexpr int invalidParams = -32602;
constexpr int internalError = -32603;
constexpr int notInitialized = -32002;
constexpr int requestFailed = -32803;
constexpr int cancelled = -32800;
}  // namespace code

std::string uriOf(const fs::path& path);
// Nothing for what is no file.
std::optional<fs::path> pathOf(const std::string& uri);

Json asJson(const Position& position);
Json asJson(const Range& range);
Position positionIn(const Json& json);

// What all answers about a place are made from.
struct Here {
    Workspace& workspace;
    const Analysis& story;
    fs::path path;
    int file = -1;
    int line = 1;
    int column = 1;
    Encoding encoding = Encoding::utf16;
    std::shared_ptr<std::map<int, Lines>> known = std::make_shared<std::map<int, Lines>>();  // by their files

    Lines lines(const fs::path& other) const { return Lines(workspace.text(other)); }
    Lines lines() const { return lines(path); }
    const story::Use* use() const { return story::useAt(story.uses, file, line, column); }
    Range rangeOf(const story::Use& use) const;
    Json location(const story::Use& use) const;
    Range range(int inFile, int onLine, int from, int to) const;
};

// --- the answers, one source file each

Json completions(const Here& here);
Json hover(const Here& here);
Json definitions(const Here& here);
Json references(const Here& here, bool declarations);
Json highlights(const Here& here);
Json renameRange(const Here& here);
// Throws a `Refusal` where the new name can't be.
Json renamed(const Here& here, const std::string& name);
Json outline(const Here& here);
Json symbolsLike(Workspace& workspace, const std::string& query, Encoding encoding);
Json diagnosticsOf(const Here& here);
// All uses of the same thing, wherever it may be meant.
std::vector<const story::Use*> sameAs(const Analysis& story, const story::Use& use);

}  // namespace zentrox::lsp
