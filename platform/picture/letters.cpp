#include "platform/picture/letters.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/picture/font.h"

namespace zentrox {

namespace {

constexpr std::size_t mostLetters = 6000;  // beyond that a bitmap keeps none
constexpr Colour lifted = white;

// `area` without `hole`, as up to four pieces.
std::array<Rect, 4> pieces(const Rect& area, const Rect& hole) {
    const Rect inner = intersection(area, hole);
    return {Rect{area.x, area.y, area.w, inner.y - area.y},
            Rect{area.x, inner.bottom(), area.w, area.bottom() - inner.bottom()},
            Rect{area.x, inner.y, inner.x - area.x, inner.h},
            Rect{inner.right(), inner.y, area.right() - inner.right(), inner.h}};
}

bool touch(const Rect& a, const Rect& b) {
    return !intersection(a, b).empty();
}

void copyRows(const Bitmap& from, Bitmap& to, const Rect& part) {
    for (int y = part.y; y < part.bottom(); ++y)
        std::memcpy(to.row(y) + part.x, from.row(y) + part.x,
                    static_cast<std::size_t>(part.w) * sizeof(std::uint32_t));
}

}  // namespace

void Letters::cut(const Rect& area) {
    std::vector<Letter> rest;
    for (const Letter& letter : all) {
        if (!touch(letter.seen, area)) continue;
        for (const Rect& piece : pieces(letter.seen, area)) {
            if (!touch(piece, letter.ink)) continue;
            rest.push_back(letter);
            rest.back().seen = piece;
        }
    }
    std::erase_if(all, [&](const Letter& letter) { return touch(letter.seen, area); });
    all.insert(all.end(), rest.begin(), rest.end());
}

std::vector<Letter> Letters::within(const std::vector<Letter>& from, const Rect& part, Point by) {
    std::vector<Letter> found;
    for (Letter letter : from) {
        letter.seen = intersection(letter.seen, part);
        if (!touch(letter.seen, letter.ink)) continue;
        letter.at = letter.at + by;
        letter.ink = {letter.ink.at() + by, letter.ink.size()};
        letter.seen = {letter.seen.at() + by, letter.seen.size()};
        found.push_back(letter);
    }
    return found;
}

// --- what a bitmap does with them

Letters& Bitmap::ownLetters() {
    if (!letters_) {
        letters_ = std::make_shared<Letters>(Letters{*this, {}});
    } else if (letters_.use_count() > 1) {
        letters_ = std::make_shared<Letters>(*letters_);
    }
    letters_->ground.setClip(clip_);
    return *letters_;
}

void Bitmap::note(const std::vector<Letter>& letters) {
    Letters& own = ownLetters();
    for (const Letter& next : letters)
        std::erase_if(own.all, [&](const Letter& old) {
            return old.at == next.at && old.character == next.character && old.font == next.font &&
                   old.colour == next.colour && intersection(old.seen, next.seen) == old.seen;
        });
    own.all.insert(own.all.end(), letters.begin(), letters.end());
    if (own.all.size() > mostLetters) letters_.reset();
}

Bitmap* Bitmap::groundUnder(const Rect& drawnOver) {
    if (!letters_) return nullptr;
    Letters& own = ownLetters();
    own.cut(intersection(drawnOver, clip_));
    if (!own.all.empty()) return &own.ground;
    letters_.reset();
    return nullptr;
}

Bitmap* Bitmap::groundUnder() {
    return letters_ ? &ownLetters().ground : nullptr;
}

void Bitmap::copyLetters(const Bitmap& source, const Rect& from, Point to, Op op) {
    if (!letters_ && (!source.letters_ || op != Op::plain)) return;
    const std::shared_ptr<const Letters> theirs = source.letters_;  // as they are now, also if they are our own
    const Point by = to - from.at();
    const Rect target = intersection(
        {intersection(from, source.bounds()).at() + by, intersection(from, source.bounds()).size()}, clip_);
    std::vector<Letter> coming;
    if (theirs && op == Op::plain) coming = Letters::within(theirs->all, {target.at() - by, target.size()}, by);
    if (!letters_ && coming.empty()) return;
    Letters& own = ownLetters();
    // What is mixed with others is no letter any more.
    own.ground.copy(theirs && op == Op::plain ? theirs->ground : source, from, to, op);
    if (op == Op::plain) own.cut(target);
    own.all.insert(own.all.end(), coming.begin(), coming.end());
    if (own.all.empty() || own.all.size() > mostLetters) letters_.reset();
}

// --- lifting them

std::vector<Letter> LetterLift::lift(const Bitmap& picture, Rect& part) {
    const Letters* const letters = picture.letters();
    if (base_.size() != picture.size()) {
        base_ = Bitmap(picture.size());
        taken_ = Bitmap(picture.size());
        part = picture.bounds();
    }
    std::vector<const Letter*> near;
    if (letters != nullptr)
        for (const Letter& letter : letters->all)
            if (touch(letter.seen, part)) near.push_back(&letter);
    for (const Letter* const letter : near) part = united(part, letter->seen);
    part = intersection(part, picture.bounds());
    copyRows(picture, base_, part);
    taken_.fill(part, black);
    std::vector<Letter> standing;
    // From the last one drawn: it lies over the others.
    if (letters != nullptr)
        for (auto letter = letters->all.rbegin(); letter != letters->all.rend(); ++letter)
            if (touch(letter->seen, part) && liftOne(picture, *letter)) standing.push_back(*letter);
    std::reverse(standing.begin(), standing.end());
    return standing;
}

// A letter stands if each pixel that it covers is what drawing it makes of the ground, or lies under another
// letter.
bool LetterLift::liftOne(const Bitmap& picture, const Letter& letter) {
    const Bitmap& ground = picture.letters()->ground;
    const Rect box = intersection(intersection(letter.ink, letter.seen), picture.bounds());
    if (box.empty()) return false;
    Bitmap drawn(box.size());
    for (int y = 0; y < box.h; ++y)
        std::memcpy(drawn.row(y), ground.row(box.y + y) + box.x,
                    static_cast<std::size_t>(box.w) * sizeof(std::uint32_t));
    letter.font->ink(drawn, letter.at - box.at(), TextView(&letter.character, 1), letter.colour);
    bool covers = false;
    const auto each = [&](auto use) {
        for (int y = box.y; y < box.bottom(); ++y)
            for (int x = box.x; x < box.right(); ++x)
                if (drawn.row(y - box.y)[x - box.x] != ground.row(y)[x] && !use(x, y)) return false;
        return true;
    };
    const bool stands = each([&](int x, int y) {
        covers = true;
        return taken_.row(y)[x] != 0 || picture.row(y)[x] == drawn.row(y - box.y)[x - box.x];
    });
    if (!stands || !covers) return false;
    return each([&](int x, int y) {
        base_.row(y)[x] = ground.row(y)[x];
        taken_.row(y)[x] = lifted.rgb;
        return true;
    });
}

}  // namespace zentrox
