#include "platform/sdl/scene.h"

#include <algorithm>
#include <cmath>

#include "platform/picture/font.h"
#include "platform/sdl/frame.h"

namespace zentrox::sdl {

namespace {

constexpr int leaning = 2;  // pixels of the game by which letters of the screen's size may lean out of theirs

}  // namespace

void Scene::opened(Window& window) {
    shown_.push_back({&window, {}});
    closeDown_ = false;
}

void Scene::closed(Window& window) {
    std::erase_if(shown_, [&](const Shown& s) { return s.window == &window; });
    closeDown_ = false;
}

std::vector<Tenant> Scene::tenants() const {
    std::vector<Tenant> all;
    all.reserve(shown_.size());
    for (const Shown& s : shown_) all.push_back({s.window->client(), s.window->minimum, s.window->frame(), s.put});
    return all;
}

void Scene::layOut(const Ground& ground) {
    ground_ = ground;
    layout_ = sdl::layOut(ground, tenants());
    if (canvas_.size() != layout_.canvas) canvas_ = Bitmap(layout_.canvas);
    enlarger_ = Enlarger(layout_.canvas, layout_.scale, ground.how);
    exposed_ = true;
}

// --- the pointer

Point Scene::onCanvas(Point p) const {
    const auto down = [&](int v, int corner) {
        return static_cast<int>(std::floor((v - corner) / layout_.scale + 1e-6));
    };
    return {down(p.x, layout_.corner.x), down(p.y, layout_.corner.y)};
}

Place Scene::placeAt(Point p) const {
    if (shown_.empty()) return Place::outside;
    return placeOf(onCanvas(p), layout_.clients.back(), top()->frame(), shown_.size() > 1);
}

Point Scene::inTop(Point p) const {
    return layout_.clients.empty() ? p : onCanvas(p) - layout_.clients.back().at();
}

void Scene::dragTop(Point to, Point grip) {
    if (shown_.size() < 2) return;
    const Point below = layout_.clients[shown_.size() - 2].at();
    shown_.back().put = onCanvas(to) - grip - below;
    layOut(ground_);
    shown_.back().put = layout_.clients.back().at() - below;
}

void Scene::pressCloseBox(bool down) {
    if (down == closeDown_) return;
    closeDown_ = down;
    exposed_ = true;
}

// --- the picture

bool Scene::stale() const {
    if (shown_.empty()) return false;
    return exposed_ || std::any_of(shown_.begin(), shown_.end(), [](const Shown& s) { return s.window->stale(); });
}

bool Scene::hiddenByOthers(std::size_t index, const Rect& part) const {
    for (std::size_t i = index + 1; i < shown_.size(); ++i)
        if (intersection(part, outerArea(layout_.clients[i], shown_[i].window->frame())) == part) return true;
    return false;
}

// Brings the pictures of all windows up to date; gives the part of the canvas that has changed.
Rect Scene::collectNews() {
    Rect news;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const Bitmap& picture = shown_[i].window->compose();
        const Rect own = intersection(shown_[i].window->takeNews(), picture.bounds());
        const Rect part{own.at() + layout_.clients[i].at(), own.size()};
        if (!part.empty() && !hiddenByOthers(i, part)) news = united(news, part);
    }
    return intersection(exposed_ ? canvas_.bounds() : news, canvas_.bounds());
}

void Scene::compose(const Rect& part) {
    canvas_.setClip(part);
    if (intersection(part, layout_.clients.front()) != part) canvas_.fill(part, black);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const bool active = i + 1 == shown_.size();
        if (i > 0) drawFrame(canvas_, *shown_[i].window, layout_.clients[i], {active, active && closeDown_});
        canvas_.copy(shown_[i].window->compose(), layout_.clients[i].at());
    }
    if (overlay) overlay(canvas_, layout_.clients.front(), layout_.clients.back());
    canvas_.setClip(canvas_.bounds());
}

Rect Scene::paint(const Pixels& screen) {
    if (shown_.empty()) return {};
    const Rect part = collectNews();
    if (part.empty()) return {};
    compose(part);
    exposed_ = false;
    if (fineLetters_ && layout_.scale > 1) return paintFine(part, screen);
    return enlarger_.paint(canvas_, part, screen, layout_.corner);
}

void Scene::setFineLetters(bool on) {
    fineLetters_ = on;
    exposed_ = true;
}

// What lies within an area of the picture, in the screen's pixels; areas beside each other stay so.
Rect Scene::enlarged(const Rect& area) const {
    const auto at = [this](int v, int corner) {
        return corner + static_cast<int>(std::floor(v * layout_.scale + 1e-6));
    };
    const Point from{at(area.x, layout_.corner.x), at(area.y, layout_.corner.y)};
    return {from.x, from.y, at(area.right(), layout_.corner.x) - from.x,
            at(area.bottom(), layout_.corner.y) - from.y};
}

Rect Scene::paintFine(Rect part, const Pixels& screen) {
    part = intersection({part.at() - Point{leaning, leaning}, {part.w + 2 * leaning, part.h + 2 * leaning}},
                        canvas_.bounds());
    const std::vector<Letter> letters = lift_.lift(canvas_, part);
    const Rect painted = enlarger_.paint(lift_.base(), part, screen, layout_.corner);
    for (const Letter& letter : letters)
        letter.font->inkLarge(screen, intersection(enlarged(letter.seen), painted), layout_.corner, layout_.scale,
                              letter);
    return painted;
}

}  // namespace zentrox::sdl
