#include "tools/story/faces.h"

#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

constexpr int deepestPart = 50;

}  // namespace

Talk::Talk(const Nodes& body, const Names& names) : names_(names) {
    const auto on = [](bool left) {
        return [left](const Person& person) { return !person.portrait.empty() && person.left == left; };
    };
    faces_ = {firstFace(body, on(true)), firstFace(body, on(false))};
    if (!faces_.left && !faces_.right) return;
    for (const auto& [key, person] : names.people) {
        if (!person.player || person.portrait.empty()) continue;
        const Person*& side = person.left ? faces_.left : faces_.right;
        if (!side) side = &person;
    }
}

void Talk::before(const Node& node, const std::function<void(Place)>& open) {
    if (open_ || !firstFace(node, [](const Person& person) { return !person.portrait.empty(); })) return;
    open_ = true;
    const Statement& head = node.kind == Node::Kind::condition ? node.branches.front().head : node.head;
    open(head[0].place);
}

void Talk::speaks(const Person& person) {
    if (!person.portrait.empty()) (person.left ? faces_.left : faces_.right) = &person;
}

const Person* Talk::firstFace(const Nodes& nodes, const std::function<bool(const Person&)>& wanted) const {
    for (const Node& node : nodes)
        if (const Person* const found = firstFace(node, wanted)) return found;
    return nullptr;
}

const Person* Talk::firstFace(const Node& node, const std::function<bool(const Person&)>& wanted) const {
    if (node.kind == Node::Kind::speech) {
        const auto speaker = speakerOf(node.head);
        const Person* const person = speaker ? names_.person(speaker->name) : nullptr;
        return person && wanted(*person) ? person : nullptr;
    }
    if (node.kind == Node::Kind::call) return inPart(node.head, wanted, 0);
    for (const Branch& branch : node.branches)
        if (const Person* const found = firstFace(branch.body, wanted)) return found;
    if (node.otherwise)
        if (const Person* const found = firstFace(node.otherwise->body, wanted)) return found;
    return firstFace(node.body, wanted);
}

const Person* Talk::inPart(const Statement& call, const std::function<bool(const Person&)>& wanted,
                           int depth) const {
    Text name;
    for (std::size_t i = 1; i < call.size(); ++i) (name += name.empty() ? "" : " ") += call[i].value;
    const Part* const part = names_.part(name);
    if (!part || depth > deepestPart) return nullptr;
    for (const Statement& line : part->script) {
        const auto speaker = speakerOf(line);
        const Person* person = speaker ? names_.person(speaker->name) : nullptr;
        if (person && wanted(*person)) return person;
        if (!line[0].quoted && normalised(line[0].value) == "rufe")
            person = inPart(line, wanted, depth + 1);
        else
            person = nullptr;
        if (person) return person;
    }
    return nullptr;
}

}  // namespace zentrox::story
