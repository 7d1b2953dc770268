#include "tools/page/ways.h"

#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/grammar.h"

namespace zentrox::page {

namespace {

using story::Node;
using story::Nodes;
using story::Statement;

constexpr int deepestPart = 20;

class WayFinder {
public:
    WayFinder(const Reading& reading, const std::vector<Section>& sections)
        : reading_(reading),
          sections_(sections) {}

    std::vector<Way> all() {
        for (at_ = 0; at_ < sections_.size(); ++at_) {
            const Section& section = sections_[at_];
            if (!section.isScript() || section.kind == Section::Kind::part) continue;
            needs_.clear();
            follow(readTree(section.body, ignored_));
        }
        return std::move(ways_);
    }

private:
    void follow(const Nodes& nodes) {
        const bool before = ended_;
        for (const Node& node : nodes) follow(node);
        ended_ = before;
    }

    void follow(const Node& node) {
        switch (node.kind) {
            case Node::Kind::plain: return plain(node.head);
            case Node::Kind::speech: return;
            case Node::Kind::condition:
            case Node::Kind::dropped: return conditions(node);
            case Node::Kind::choice: return choice(node);
            case Node::Kind::talk: return follow(node.body);
            case Node::Kind::question: return question(node);
            case Node::Kind::call: return call(node.head);
        }
    }

    void conditions(const Node& node) {
        const std::size_t before = needs_.size();
        for (const story::Branch& branch : node.branches) {
            needs_.push_back({false, branch.when, {}});
            follow(branch.body);
            needs_.back().negated = true;
        }
        if (node.otherwise) follow(node.otherwise->body);
        needs_.resize(before);
    }

    void choice(const Node& node) {
        const std::size_t before = needs_.size();
        for (const Node& inner : node.body) {
            const Text word = inner.head.empty() ? Text() : story::normalised(inner.head.front().value);
            if (inner.kind == Node::Kind::plain && (word == "fall" || word == "option")) {
                needs_.resize(before);
                needs_.push_back({false, {}, textBehind(inner.head)});
            }
            follow(inner);
        }
        needs_.resize(before);
    }

    void question(const Node& node) {
        const std::size_t before = needs_.size();
        for (const story::Branch& branch : node.branches) {
            if (!branch.when.empty()) needs_.push_back({false, branch.when, {}});
            needs_.push_back({false, {}, joinedText(branch.text)});
            follow(branch.body);
            needs_.resize(before);
        }
    }

    void call(const Statement& statement) {
        Text name;
        for (std::size_t i = 1; i < statement.size(); ++i) (name += name.empty() ? "" : " ") += statement[i].value;
        const story::Part* const part = reading_.names.part(name);
        if (part == nullptr || depth_ == deepestPart) return;
        ++depth_;
        follow(readTree(part->script, ignored_));
        --depth_;
    }

    void plain(const Statement& statement) {
        const Opcode* const row = story::commandNamed(statement.front().value);
        if (row == nullptr || statement.front().quoted) return;
        const story::Place place = statement.front().place;
        const Text argument = statement.size() > 1 ? statement[1].value : Text();
        if (row->number == "Raumwechsel"_op) put(place, argument, false);
        const auto mark = reading_.endings.find({place.file, place.line});
        const bool marked = mark != reading_.endings.end();
        const bool closes = row->number == "System"_op && argument != "Open" && argument != "Save";
        // What follows behind an ending is none of its own, unless it has a name.
        if (marked || (closes && !ended_)) put(place, marked ? fromUtf8(mark->second.name) : argument, true);
    }

    void put(story::Place place, const Text& target, bool ending) {
        ended_ = ended_ || ending;
        ways_.push_back({sections_[at_].room, ending ? -1 : roomNamed(target), target, ending, place, at_, needs_});
    }

    int roomNamed(const Text& name) const {
        Text file = lower(name);
        std::replace(file.begin(), file.end(), '/', '\\');
        const auto& rooms = reading_.story.rooms;
        const auto found = std::find_if(rooms.begin(), rooms.end(),
                                        [&](const story::StoryRoom& room) { return lower(room.file) == file; });
        return found == rooms.end() ? -1 : static_cast<int>(found - rooms.begin());
    }

    const Reading& reading_;
    const std::vector<Section>& sections_;
    story::Findings ignored_;
    std::size_t at_ = 0;
    int depth_ = 0;
    bool ended_ = false;  // by a command above, in this block or around it
    std::vector<Need> needs_;
    std::vector<Way> ways_;
};

}  // namespace

std::vector<Way> waysOf(const Reading& reading, const std::vector<Section>& sections) {
    return WayFinder(reading, sections).all();
}

Text joinedText(std::span<const story::Token> lines) {
    Text text;
    for (const story::Token& line : lines) {
        if (!line.quoted) continue;
        TextView rest = line.value;
        while (true) {
            TextView one = rest.substr(0, rest.find('#'));
            rest.remove_prefix(std::min(rest.size(), one.size() + 1));
            if (one.starts_with('$')) one.remove_prefix(std::min<std::size_t>(2, one.size()));
            if (!one.empty()) (text += text.empty() ? "" : " ") += one;
            if (rest.empty()) break;
        }
    }
    return text;
}

Text textBehind(const Statement& statement) {
    return joinedText(std::span(statement).subspan(1));
}

}  // namespace zentrox::page
