// The two frames of a talk: when they open, and whose face is in each at a line.
#pragma once

#include <functional>

#include "tools/story/names.h"
#include "tools/story/tree.h"

namespace zentrox::story {

struct Faces {
    const Person* left = nullptr;
    const Person* right = nullptr;
    bool shown = true;  // false behind a `RahmenZu` in the middle of a talk
};

class Talk {
public:
    // Before anybody has spoken, each frame shows who will be the first to speak in it, or else the player.
    Talk(const Nodes& body, const Names& names);

    // To be told of each node: opens the frames once, before the first of the talk's own nodes in which somebody
    // with a face speaks.
    void before(const Node& node, const std::function<void(Place)>& open);
    void speaks(const Person& person);

    const Faces& faces() const { return faces_; }
    void setFaces(const Faces& faces) { faces_ = faces; }
    void show(bool on) { faces_.shown = on; }
    bool framesOpen() const { return open_; }

private:
    const Person* firstFace(const Nodes& nodes, const std::function<bool(const Person&)>& wanted) const;
    const Person* firstFace(const Node& node, const std::function<bool(const Person&)>& wanted) const;
    const Person* inPart(const Statement& call, const std::function<bool(const Person&)>& wanted, int depth) const;

    const Names& names_;
    Faces faces_;
    bool open_ = false;
};

}  // namespace zentrox::story
