// What no play ever comes to: lines, answers, outcomes of conditions, uses of items, rooms. What stands in one
// place of the source is one thing, however often it was compiled.
#pragma once

#include "tools/prove/machine.h"
#include "tools/story/finding.h"

namespace zentrox::prove {

class Questions {
public:
    explicit Questions(const Program& program);

    // Takes in what has run. Of a projected program only what was asked for counts: what is `asked` of it.
    void add(const Seen& seen, const Program& by);
    // Whether something is still open.
    bool open() const;
    // What is still open, for the cone of influence.
    bool isAsked(std::int32_t script, std::int32_t index) const;
    bool isAskedItem(std::int32_t item) const;
    // The flags of open conditions, which have to be followed.
    bool isAskedFlag(std::int32_t flag) const;

    bool entered(std::size_t room) const { return rooms_[room] != 0; }
    bool ran(const Script& script, std::int32_t index) const { return known(script, index).ran; }

    // The findings, when all that is open is known never to be. `proviso` is said with each.
    void tell(story::Findings& findings, const std::string& proviso) const;
    // How many lines have not run.
    std::size_t openLines() const;

private:
    // One instruction in the source.
    struct Key {
        story::Place place;
        std::int32_t command = 0;
        friend auto operator<=>(const Key&, const Key&) = default;
    };
    struct Known {
        bool ran = false;
        bool held = false;
        bool failed = false;
        bool chosen = false;  // of a `Fall`
    };
    Key keyOf(const Script& script, std::int32_t index) const;
    const Known& known(const Script& script, std::int32_t index) const { return known_.at(keyOf(script, index)); }
    bool counts(const Script& script) const;
    bool isOpen(const Script& script, std::int32_t index) const;
    bool isHad(std::size_t item) const;
    bool isUsefulAsked(const Script& script, std::int32_t index) const;
    void tellRooms(story::Findings& findings, const std::string& proviso) const;
    void tellLines(const Script& script, story::Findings& findings, const std::string& proviso) const;
    void tellCondition(const Script& script, std::int32_t index, story::Findings& findings,
                       const std::string& proviso) const;
    void tellAnswers(const Script& script, std::int32_t index, story::Findings& findings,
                     const std::string& proviso) const;
    void tellItems(story::Findings& findings, const std::string& proviso) const;
    story::Place placeOfItem(std::size_t item) const;

    const Program& program_;
    std::map<Key, Known> known_;
    std::vector<std::uint8_t> rooms_;
    std::vector<std::uint8_t> itemUsed_;
    std::int32_t loadRoom_ = -1;
};

}  // namespace zentrox::prove
