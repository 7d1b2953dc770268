#include "tools/lsp/protocol.h"

#include <algorithm>
#include <charconv>

namespace zentrox::lsp {

namespace {

constexpr std::string_view fileScheme = "file://";

bool isPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/").find(c) != std::string_view::npos;
}

// A number that counts something in a text.
int countIn(const Json& json) {
    constexpr std::int64_t most = 1'000'000'000;
    if (!json.is_number_integer()) throw Refusal{code::invalidParams, "a position is made of whole numbers"};
    return static_cast<int>(std::clamp<std::int64_t>(json.get<std::int64_t>(), 0, most));
}

}  // namespace

std::string uriOf(const fs::path& path) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string uri(fileScheme);
    for (const char c : path.generic_string()) {
        const auto byte = static_cast<unsigned char>(c);
        if (isPlain(c))
            uri += c;
        else
            uri += std::string("%") + hex[byte >> 4U] + hex[byte & 0xFU];
    }
    return uri;
}

std::optional<fs::path> pathOf(const std::string& uri) {
    if (!uri.starts_with(fileScheme)) return std::nullopt;
    std::string path;
    for (std::size_t i = uri.find('/', fileScheme.size()); i < uri.size(); ++i) {
        unsigned byte = 0;
        const char* const digits = uri.data() + i + 1;
        if (uri[i] == '%' && i + 2 < uri.size() &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            path += static_cast<char>(byte);
            i += 2;
        } else {
            path += uri[i];
        }
    }
    if (path.empty() || path.find('\0') != std::string::npos) return std::nullopt;
    return fs::path(path).lexically_normal();
}

Json asJson(const Position& position) {
    return {{"line", position.line}, {"character", position.character}};
}

Json asJson(const Range& range) {
    return {{"start", asJson(range.start)}, {"end", asJson(range.end)}};
}

Position positionIn(const Json& json) {
    return {countIn(json.at("line")), countIn(json.at("character"))};
}

Range Here::range(int inFile, int onLine, int from, int to) const {
    const auto found = known->find(inFile);
    const Lines& text =
        found != known->end() ? found->second : known->emplace(inFile, lines(story.file(inFile))).first->second;
    return {text.position(onLine, from, encoding), text.position(onLine, to, encoding)};
}

Range Here::rangeOf(const story::Use& use) const {
    return range(use.place.file, use.place.line, use.place.column, use.end);
}

Json Here::location(const story::Use& use) const {
    return {{"uri", uriOf(story.file(use.place.file))}, {"range", asJson(rangeOf(use))}};
}

}  // namespace zentrox::lsp
