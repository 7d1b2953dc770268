// What an editor lists of a source, and of all of them: rooms, objects, items, people, parts, scripts.
#include <algorithm>
#include <set>

#include "tools/lsp/protocol.h"
#include "tools/story/grammar.h"
#include "tools/story/sections.h"

namespace zentrox::lsp {

using story::Section;
using story::Symbol;
using story::Use;

namespace {

constexpr std::size_t mostSymbols = 500;

// Of the protocol.
namespace symbolkind {
constexpr int module = 2;
constexpr int classes = 5;
constexpr int field = 8;
constexpr int function = 12;
constexpr int variable = 13;
constexpr int constant = 14;
constexpr int object = 19;
constexpr int event = 24;
}  // namespace symbolkind

int kindOf(Section::Kind kind) {
    switch (kind) {
        case Section::Kind::room: return symbolkind::module;
        case Section::Kind::object: return symbolkind::object;
        case Section::Kind::item:
        case Section::Kind::scriptFile: return symbolkind::field;
        case Section::Kind::person: return symbolkind::classes;
        case Section::Kind::script: return symbolkind::event;
        default: return symbolkind::function;
    }
}

class Outline {
public:
    Outline(const Here& here, const std::vector<story::Statement>& statements)
        : here_(here),
          lines_(here.lines()),
          statements_(statements) {}

    Json of(const std::vector<Section>& sections) const {
        Json list = Json::array();
        for (const Section& section : sections) list.push_back(one(section));
        return list;
    }

private:
    Json one(const Section& section) const {
        const story::Statement& head = statements_[section.begin];
        const story::Token& name = head[head.size() > 1 && section.kind != Section::Kind::script ? 1 : 0];
        const story::Token& last = statements_[section.end - 1].back();
        const std::string shown = toUtf8(section.name.empty() ? head[0].value : section.name);
        return {{"name", shown},
                {"detail", section.kind == Section::Kind::script ? "" : toUtf8(head[0].value)},
                {"kind", kindOf(section.kind)},
                {"range", asJson(Range{start(head[0]), end(last)})},
                {"selectionRange", asJson(Range{start(name), end(name)})},
                {"children", of(section.inside)}};
    }

    Position start(const story::Token& word) const {
        return lines_.position(word.place.line, word.place.column, here_.encoding);
    }
    Position end(const story::Token& word) const {
        return lines_.position(word.place.line, word.end, here_.encoding);
    }

    const Here& here_;
    Lines lines_;
    const std::vector<story::Statement>& statements_;
};

int kindOf(Symbol::Kind kind) {
    switch (kind) {
        case Symbol::Kind::flag: return symbolkind::variable;
        case Symbol::Kind::item: return symbolkind::field;
        case Symbol::Kind::object: return symbolkind::object;
        case Symbol::Kind::room: return symbolkind::module;
        case Symbol::Kind::person: return symbolkind::classes;
        case Symbol::Kind::part: return symbolkind::function;
        default: return symbolkind::constant;
    }
}

// What people look for by its name: what is declared, and flags where they are set.
bool isListed(const Use& use) {
    if (use.symbol.kind == Symbol::Kind::flag) return use.role == Use::Role::sets;
    return use.role == Use::Role::declares && use.symbol.kind != Symbol::Kind::label;
}

}  // namespace

Json outline(const Here& here) {
    story::Findings ignored;
    std::vector<story::Silence> silences;
    const auto statements = story::scan(here.workspace.text(here.path), 0, ignored, silences);
    return Outline(here, statements).of(story::sectionsOf(statements));
}

Json symbolsLike(Workspace& workspace, const std::string& query, Encoding encoding) {
    const Text wanted = story::normalised(fromUtf8(query));
    Json list = Json::array();
    for (const fs::path& directory : workspace.openStories()) {
        const Analysis& story = workspace.storyIn(directory);
        const Here here{workspace, story, {}, -1, 1, 1, encoding};
        std::set<Symbol> seen;
        for (const Use& use : story.uses) {
            if (list.size() >= mostSymbols) return list;
            if (!isListed(use) || story::normalised(use.text).find(wanted) == Text::npos) continue;
            if (use.symbol.kind == Symbol::Kind::flag && !seen.insert(use.symbol).second) continue;
            list.push_back(
                {{"name", toUtf8(use.text)},
                 {"kind", kindOf(use.symbol.kind)},
                 {"location", here.location(use)},
                 {"containerName", use.symbol.kind == Symbol::Kind::object ? toUtf8(use.symbol.scope) : ""}});
        }
    }
    return list;
}

}  // namespace zentrox::lsp
