#include "tools/story/sourcereader.h"

#include <algorithm>

#include "tools/story/grammar.h"
#include "tools/story/statements.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t deepestInclude = 50;
constexpr int mostIncludes = 10000;

}  // namespace

std::vector<Statement> SourceReader::read(const fs::path& path, Findings& findings) {
    const auto text = files_.read(path);
    if (text) return read(path, *text, findings);
    findings.broken({fileNumber(path), 1, 1}, "lesen",
                    "diese Datei lässt sich nicht lesen; gibt es sie, und darf man sie lesen?");
    return {};
}

std::vector<Statement> SourceReader::read(const fs::path& path, std::string_view utf8, Findings& findings) {
    open_ = {path};
    std::vector<Statement> all;
    statements(utf8, fileNumber(path), findings, all);
    return all;
}

int SourceReader::fileNumber(const fs::path& path) {
    const auto [at, isNew] =
        numbers_.emplace(path.lexically_normal().native(), static_cast<int>(story_.files.size()));
    if (isNew) story_.files.push_back(path.lexically_normal().generic_string());
    return at->second;
}

void SourceReader::statements(std::string_view utf8, int file, Findings& findings, std::vector<Statement>& out) {
    for (Statement& statement : scan(utf8, file, findings, story_.silences)) {
        const Token& first = statement.front();
        if (!first.quoted && normalised(first.value) == "einbinden")
            include(statement, findings, out);
        else
            out.push_back(std::move(statement));
    }
}

void SourceReader::include(const Statement& s, Findings& findings, std::vector<Statement>& out) {
    if (!oneName(s, findings)) return;
    const fs::path path = besideSource(story_, s[1]);
    const bool circle = std::find(open_.begin(), open_.end(), path) != open_.end();
    if (circle) {
        findings.broken(s[1].place, "einbinden",
                        shown(s[1].value) + " bindet sich selbst wieder ein; so nähme die Quelle kein Ende");
        return;
    }
    if (open_.size() >= deepestInclude || ++includes_ > mostIncludes) {
        findings.broken(s[1].place, "einbinden",
                        shown(s[1].value) + " wird nicht mehr eingebunden: höchstens " +
                            std::to_string(mostIncludes) + " Dateien werden es, und höchstens " +
                            std::to_string(deepestInclude) + " ineinander");
        return;
    }
    const auto text = files_.read(path);
    if (!text) {
        findings.broken(
            s[1].place, "einbinden",
            "die Datei " + shown(s[1].value) + " lässt sich nicht lesen; gesucht wird sie neben dieser");
        return;
    }
    open_.push_back(path);
    statements(*text, fileNumber(path), findings, out);
    open_.pop_back();
}

fs::path besideSource(const Story& story, const Token& name) {
    std::string path = toUtf8(name.value);
    std::replace(path.begin(), path.end(), '\\', '/');
    const fs::path source = fs::path(story.files[static_cast<std::size_t>(name.place.file)]);
    return (source.parent_path() / fs::path(path)).lexically_normal();
}

}  // namespace zentrox::story
