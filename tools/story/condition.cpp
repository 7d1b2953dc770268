#include "tools/story/condition.h"

#include <array>

#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

constexpr std::array<std::pair<TextView, Term::Kind>, 3> kinds{
    {{"merker", Term::Kind::flag}, {"gegenstand", Term::Kind::item}, {"parameter", Term::Kind::dropped}}};

class ConditionReader {
public:
    ConditionReader(const Token& command, std::span<const Token> words, Term::Kind usual)
        : command_(command),
          words_(words),
          usual_(usual) {}

    std::optional<Condition> read() {
        if (words_.size() == 1) return Condition{{{usual_, false, words_[0]}}};
        Condition condition;
        do {
            condition.emplace_back();
            do {
                const auto term = readTerm();
                if (!term) return std::nullopt;
                condition.back().push_back(*term);
            } while (skip("und"));
        } while (skip("oder"));
        if (at_ == words_.size()) return condition;
        return std::nullopt;
    }

    // Where it makes no sense any more.
    Place place() const { return at_ < words_.size() ? words_[at_].place : command_.place; }

private:
    bool isWord(std::size_t i, TextView word) const {
        return i < words_.size() && !words_[i].quoted && normalised(words_[i].value) == word;
    }
    bool joins(std::size_t i) const { return isWord(i, "und") || isWord(i, "oder"); }

    bool skip(TextView word) {
        if (!isWord(at_, word)) return false;
        ++at_;
        return true;
    }

    std::optional<Term> readTerm() {
        Term term{usual_, false, {}};
        while (isWord(at_, "nicht") && at_ + 1 < words_.size() && !joins(at_ + 1)) {
            term.negated = !term.negated;
            ++at_;
        }
        for (const auto& [word, kind] : kinds)
            if (isWord(at_, word) && at_ + 1 < words_.size() && !joins(at_ + 1)) {
                term.kind = kind;
                ++at_;
                break;
            }
        if (at_ == words_.size() || joins(at_)) return std::nullopt;
        term.name = words_[at_++];
        return term;
    }

    const Token& command_;
    std::span<const Token> words_;
    Term::Kind usual_;
    std::size_t at_ = 0;
};

}  // namespace

std::optional<Condition> readCondition(const Token& command, std::span<const Token> words, Term::Kind usual,
                                       Findings& findings) {
    ConditionReader reader(command, words, usual);
    auto condition = reader.read();
    if (!condition)
        findings.broken(reader.place(), "bedingung",
                        "hinter " + shown(command.value) +
                            " stehen Namen, zwischen ihnen „und“ oder „oder“, davor vielleicht „nicht“; ein Name "
                            "mit Leerzeichen steht in Anführungszeichen");
    return condition;
}

}  // namespace zentrox::story
