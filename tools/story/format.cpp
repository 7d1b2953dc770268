#include "tools/story/format.h"

#include <algorithm>
#include <map>
#include <utility>

#include "tools/story/grammar.h"
#include "tools/story/sections.h"
#include "tools/story/tree.h"

namespace zentrox::story {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr int step = 4;              // blanks for each level
constexpr int beforeComment = 2;     // at least, between a statement and its comment
constexpr int farthestComment = 40;  // a comment that stands below another is moved so far at most

// --- how deep each statement stands

using Depths = std::map<Place, int>;  // by its first word

class DepthReader {
public:
    explicit DepthReader(const std::vector<Statement>& statements) : statements_(statements) {}

    Depths all() {
        std::size_t done = 0;
        for (const Section& section : sectionsOf(statements_)) {
            script(done, section.begin, 0);
            put(section, 0);
            done = section.end;
        }
        script(done, statements_.size(), 0);
        return std::move(depths_);
    }

private:
    void put(const Section& section, int depth) {
        set(statements_[section.begin], depth);
        std::size_t i = section.begin + 1;
        const std::size_t own = section.inside.empty() ? section.end : section.inside.front().begin;
        if (section.holdsCommands())
            script(i, own, depth + 1);
        else
            details(i, own, depth + 1);
        for (const Section& inside : section.inside) put(inside, depth + 1);
        // What stands between two objects belongs to the room again.
        for (std::size_t k = 0; k < section.inside.size(); ++k)
            details(section.inside[k].end,
                    k + 1 < section.inside.size() ? section.inside[k + 1].begin : section.end, depth + 1);
    }

    // Shapes stand below the `Fläche` that they belong to.
    void details(std::size_t from, std::size_t to, int depth) {
        bool inArea = false;
        for (std::size_t i = from; i < to; ++i) {
            const Text word = normalised(statements_[i][0].value);
            const bool shape = word == "rechteck" || word == "vieleck" || word == "maskenbild";
            inArea = word == "flaeche" || (inArea && shape);
            set(statements_[i], depth + (inArea && shape ? 1 : 0));
        }
    }

    void script(std::size_t from, std::size_t to, int depth) {
        if (from >= to) return;
        const auto at = [&](std::size_t i) { return statements_.begin() + static_cast<std::ptrdiff_t>(i); };
        Findings ignored;
        nodes(readTree({at(from), at(to)}, ignored), depth);
        // What the tree leaves out stands where its neighbour does.
        for (std::size_t i = from; i < to; ++i)
            depths_.emplace(statements_[i][0].place, i == from ? depth : depths_.at(statements_[i - 1][0].place));
    }

    void nodes(const Nodes& all, int depth) {
        for (const Node& node : all) one(node, depth);
    }

    void one(const Node& node, int depth) {
        set(node.head, depth);
        if (node.kind == Node::Kind::choice)
            cases(node.body, depth + 1);
        else
            nodes(node.body, depth + 1);
        const int branchDepth = depth + (node.kind == Node::Kind::question ? 1 : 0);
        for (const Branch& branch : node.branches) {
            set(branch.head, branchDepth);
            nodes(branch.body, branchDepth + 1);
        }
        if (node.otherwise) {
            set(node.otherwise->head, depth);
            nodes(node.otherwise->body, depth + 1);
        }
        if (node.end) set(*node.end, depth);
    }

    void cases(const Nodes& all, int depth) {
        for (const Node& node : all) {
            const Text word = node.head.empty() ? Text() : normalised(node.head[0].value);
            one(node, depth + (word == "fall" || word == "option" ? 0 : 1));
        }
    }

    void set(const Statement& s, int depth) {
        if (s.empty()) return;
        // Who puts it at the edge means that it goes on behind all that is above.
        const bool atEdge = s[0].place.column == 1 && normalised(s[0].value) == "einbinden";
        depths_[s[0].place] = atEdge ? 0 : depth;
    }

    const std::vector<Statement>& statements_;
    Depths depths_;
};

// --- lines

// A line of the source, with what stands on it.
struct Line {
    std::string_view raw;
    std::vector<const Token*> words;
    const Statement* begun = nullptr;  // the statement that begins here
    const Statement* of = nullptr;     // the one that its words belong to
    int comment = 0;                   // its column, 0 for none
    bool broken = false;
};

// The bytes of a line between two columns.
std::string_view between(std::string_view line, int from, int to) {
    const auto skip = [&](int columns) {
        std::string_view rest = line;
        for (; columns > 0 && !rest.empty(); --columns) takeCodePoint(rest);
        return line.size() - rest.size();
    };
    const std::size_t begin = skip(from - 1);
    return line.substr(begin, skip(to - 1) - begin);
}

int columnsOf(std::string_view utf8) {
    int columns = 0;
    for (; !utf8.empty(); ++columns) takeCodePoint(utf8);
    return columns;
}

std::string_view withoutBlanksBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

bool isBlankLine(std::string_view text) {
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

// A word of the language is spelled as the reference has it; people may be called like one.
std::string spelled(const Line& line, std::size_t i) {
    const Token& word = *line.words[i];
    const std::string raw(between(line.raw, word.place.column, word.end));
    if (i > 0 || !line.begun || word.quoted) return raw;
    const LanguageWord* const known = languageWord(word.value);
    return known && !speakerOf(*line.begun) ? toUtf8(known->name) : raw;
}

std::string wordsOf(const Line& line) {
    std::string out;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        if (i > 0) {
            const auto gap = between(line.raw, line.words[i - 1]->end, line.words[i]->place.column);
            out += gap.find(',') == std::string_view::npos ? " " : ", ";
        }
        out += spelled(line, i);
    }
    return out;
}

struct Written {
    std::string code;
    std::string comment;
};

class Formatter {
public:
    Formatter(std::string_view text, const std::vector<Statement>& statements)
        : depths_(DepthReader(statements).all()) {
        split(text);
        for (const Statement& s : statements) {
            at(s[0].place).begun = &s;
            for (const Token& word : s) {
                at(word.place).words.push_back(&word);
                at(word.place).of = &s;
            }
        }
    }

    void note(const std::vector<Place>& comments, const Findings& findings) {
        for (const Place& place : comments) at(place).comment = place.column;
        for (const Finding& finding : findings.all())
            if (finding.code == "text") at(finding.place).broken = true;
    }

    std::string all() {
        for (std::size_t i = 0; i < lines_.size(); ++i) write(i);
        alignComments();
        return joined();
    }

private:
    Line& at(const Place& place) { return lines_[static_cast<std::size_t>(place.line - 1)]; }

    void split(std::string_view text) {
        std::size_t pairs = 0;
        std::size_t returns = 0;
        while (true) {
            const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
            lines_.push_back({text.substr(0, end), {}, nullptr, nullptr, 0, false});
            if (end == text.size()) break;
            const bool pair = text.substr(end).starts_with("\r\n");
            pairs += pair ? 1 : 0;
            returns += !pair && text[end] == '\r' ? 1 : 0;
            text.remove_prefix(end + (pair ? 2 : 1));
        }
        const std::size_t feeds = lines_.size() - 1 - pairs - returns;
        lineEnd_ = pairs > feeds && pairs >= returns ? "\r\n" : returns > feeds ? "\r" : "\n";
    }

    int depthOf(const Statement& s) const {
        const auto found = depths_.find(s[0].place);
        return found == depths_.end() ? 0 : found->second;
    }

    // Where the words of a line begin, in blanks.
    int indentOf(std::size_t i) const {
        const Line& line = lines_[i];
        if (line.begun) return depthOf(*line.begun) * step;
        if (line.of) return textColumn(*line.of);
        return commentIndent(i);
    }

    // Texts stand below the first one of their statement.
    int textColumn(const Statement& s) const {
        const int indent = depthOf(s) * step;
        const Line& first = lines_[static_cast<std::size_t>(s[0].place.line - 1)];
        int column = indent;
        for (std::size_t i = 0; i < first.words.size(); ++i) {
            if (first.words[i]->quoted) return column;
            Line before{first.raw, {first.words[i]}, nullptr, nullptr, 0, false};
            const bool comma =
                i + 1 < first.words.size() &&
                between(first.raw, first.words[i]->end, first.words[i + 1]->place.column).find(',') !=
                    std::string_view::npos;
            before.begun = i == 0 ? first.begun : nullptr;
            column += columnsOf(wordsOf(before)) + (comma ? 2 : 1);
        }
        return indent + step;
    }

    // A comment on a line of its own stands where what follows it does; before the end of a block, where the
    // block's commands do; at the end of the source where it stood, at the edge or not.
    int commentIndent(std::size_t i) const {
        const int before = i == 0 ? 0 : lastIndent_;
        for (std::size_t k = i + 1; k < lines_.size(); ++k) {
            if (lines_[k].words.empty()) continue;
            if (lines_[k].begun && closesBlock(*lines_[k].begun)) return depthOf(*lines_[k].begun) * step + step;
            return indentOf(k);
        }
        return lines_[i].comment == 1 ? 0 : before;
    }

    static bool closesBlock(const Statement& s) {
        return !s[0].quoted && normalised(s[0].value).starts_with("ende") && languageWord(s[0].value);
    }

    void write(std::size_t i) {
        const Line& line = lines_[i];
        Written out;
        const bool empty = line.words.empty() && line.comment == 0;
        if (line.broken || (empty && !isBlankLine(line.raw))) {
            out = {std::string(line.raw), ""};
        } else {
            const std::string indent(static_cast<std::size_t>(empty ? 0 : indentOf(i)), ' ');
            const std::string words = wordsOf(line);
            const std::string comment(
                line.comment == 0 ? ""
                                  : withoutBlanksBehind(between(line.raw, line.comment, columnsOf(line.raw) + 1)));
            if (words.empty())
                out.code = comment.empty() ? "" : indent + comment;
            else
                out = {indent + words, comment};
            if (line.begun) lastIndent_ = static_cast<int>(indent.size());
        }
        written_.push_back(std::move(out));
    }

    // Comments behind neighbouring lines stand below each other.
    void alignComments() {
        for (std::size_t i = 0; i < written_.size();) {
            std::size_t end = i;
            int widest = 0;
            for (; end < written_.size() && !written_[end].comment.empty(); ++end)
                widest = std::max(widest, columnsOf(written_[end].code));
            for (; i < end; ++i) {
                const int width = columnsOf(written_[i].code);
                const int blanks = (widest - width > farthestComment ? 0 : widest - width) + beforeComment;
                written_[i].code += std::string(static_cast<std::size_t>(blanks), ' ') + written_[i].comment;
            }
            ++i;
        }
    }

    // One blank line at most, and none at either end.
    std::string joined() const {
        std::string out;
        bool gap = false;
        for (const Written& line : written_) {
            if (line.code.empty()) {
                gap = !out.empty();
                continue;
            }
            if (gap) out += lineEnd_;
            gap = false;
            out += line.code + lineEnd_;
        }
        return out;
    }

    Depths depths_;
    std::vector<Line> lines_;
    std::vector<Written> written_;
    std::string lineEnd_;
    int lastIndent_ = 0;
};

// --- that it says the same

bool same(const Token& a, const Token& b, bool first) {
    if (a.quoted != b.quoted) return false;
    return a.value == b.value || (first && !a.quoted && normalised(a.value) == normalised(b.value));
}

bool same(const std::vector<Statement>& a, const std::vector<Statement>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Statement& x, const Statement& y) {
        bool first = true;
        return std::equal(x.begin(), x.end(), y.begin(), y.end(),
                          [&](const Token& p, const Token& q) { return same(p, q, std::exchange(first, false)); });
    });
}

}  // namespace

std::optional<std::string> formatted(std::string_view utf8) {
    std::string_view text = utf8;
    const bool marked = text.starts_with(byteOrderMark);
    if (marked) text.remove_prefix(byteOrderMark.size());
    Findings findings;
    std::vector<Silence> silences;
    std::vector<Place> comments;
    const auto statements = scan(text, 0, findings, silences, &comments);
    const auto unreadable = [](const Finding& f) { return f.code == "utf8"; };
    if (std::any_of(findings.all().begin(), findings.all().end(), unreadable)) return std::nullopt;
    Formatter formatter(text, statements);
    formatter.note(comments, findings);
    std::string out = formatter.all();
    Findings again;
    if (!same(statements, scan(out, 0, again, silences))) return std::string(utf8);
    return (marked ? std::string(byteOrderMark) : std::string()) + out;
}

}  // namespace zentrox::story
