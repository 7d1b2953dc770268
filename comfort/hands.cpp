#include "comfort/hands.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/values/keys.h"
#include "platform/window/controls/look.h"

namespace zentrox {

namespace {

constexpr int lookKey = 'A';
constexpr int handKey = 'H';
constexpr Colour frameColour{255, 255, 0};
constexpr Colour dimmed{144, 144, 144};
constexpr int nameInset = 3;

bool isArrow(int code) {
    return code == key::left || code == key::right || code == key::up || code == key::down;
}

}  // namespace

Hands::Hands(Comforts& comforts) : comforts_(comforts) {
    comforts_.observers().Dazu(*this);
    const auto on = [this] { return comforts_.settings().keyboardPlay; };
    comforts_.keys().add({.code = key::f6,
                          .label = "F6 halten",
                          .does = "im Raum: alle Stellen mit ihren Namen"_t,
                          .down = [this] { showsAll_ = true, comforts_.refresh(); },
                          .up = [this] { showsAll_ = false, comforts_.refresh(); },
                          .available =
                              [this] {
                                  const Window* const top = comforts_.platform().queue.active();
                                  return top != nullptr && top->name() == "Form1";
                              }});
    // What `look` takes, for the page of all keys only.
    const auto never = [] { return false; };
    for (const auto& [label, does] :
         {std::pair{"Tab, Pfeile"_t, "zur nächsten Stelle (wenn eingestellt)"_t},
          std::pair{"Enter"_t, "dort benutzen, wählen, ablegen"_t}, std::pair{"A"_t, "dort ansehen"_t},
          std::pair{"H"_t, "in die Hand nehmen, zurücklegen"_t}})
        comforts_.keys().add({.label = label, .does = does, .down = {}, .available = never});
    comforts_.addLook([this, on](const Input& input) { return on() && look(input); });
    comforts_.addOverlay([this](Bitmap& picture, const Rect& /*base*/) { draw(picture, comforts_.topArea()); });
}

void Hands::Handelt(int objekt, int /*aktion*/, TextView /*gegenstand*/) {
    used_.insert(objekt);
}

void Hands::Betritt(TextView /*raum*/) {
    used_.clear();
    focus_.reset();
}

std::size_t Hands::Beginnt(const Skript& /*skript*/, TextView /*raum*/, int /*objekt*/) {
    Ruht();
    return 0;
}

void Hands::Ruht() {
    if (focus_ || showsAll_) comforts_.refresh();
}

void Hands::Fragt(const std::vector<Text>& /*texte*/) {
    Ruht();
}

void Hands::Gewählt(int /*option*/) {
    Ruht();
}

// --- keys

bool Hands::look(const Input& input) {
    using Kind = Input::Kind;
    Window* const top = comforts_.platform().queue.active();
    if (top != focusedIn_) {
        focusedIn_ = top;
        focus_.reset();
        holds_ = false;
    }
    switch (input.kind) {
        case Kind::press:
            holds_ = false;
            focus_.reset();
            comforts_.refresh();
            return false;
        case Kind::keyDown:
            if (input.control || !press(input.code, input.shift)) return false;
            swallowed_.insert(input.code);
            return true;
        case Kind::keyUp: return swallowed_.erase(input.code) > 0;
        case Kind::keyPress: return !swallowed_.empty();
        default: return false;
    }
}

bool Hands::press(int code, bool shift) {
    const bool known = code == key::tab || isArrow(code) || code == key::enter || code == lookKey ||
                       code == handKey || (code == key::escape && holds_);
    if (!known || targets().empty()) return false;
    if (code == key::tab) {
        go(shift ? -1 : 1);
    } else if (isArrow(code)) {
        goToward(code);
    } else if (code == key::escape) {
        putBack();
    } else if (!focus_) {
        go(1);
    } else {
        // The key is not the game's, whatever opens now; it may come up while that stands.
        swallowed_.insert(code);
        if (code == handKey)
            takeInHand();
        else
            act(code == lookKey ? Button::right : Button::left);
    }
    return true;
}

std::vector<Target> Hands::targets() const {
    Window* const top = comforts_.platform().queue.active();
    return top != nullptr ? targetsIn(comforts_.zustand(), *top, holds_) : std::vector<Target>();
}

void Hands::go(int by) {
    const auto all = targets();
    const auto here = focus_ ? std::find(all.begin(), all.end(), *focus_) : all.end();
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    const auto from = here == all.end() ? (by > 0 ? -1 : count) : here - all.begin();
    focusOn(all[static_cast<std::size_t>((from + by + count) % count)]);
}

// The nearest one in that direction; what lies off to the side counts as farther away.
void Hands::goToward(int code) {
    const auto all = targets();
    if (!focus_) return go(1);
    const bool level = code == key::left || code == key::right;
    const int sign = code == key::left || code == key::up ? -1 : 1;
    const Target* best = nullptr;
    int least = 0;
    for (const Target& one : all) {
        const Point d = one.at - focus_->at;
        const int along = sign * (level ? d.x : d.y);
        if (along <= 0 || one == *focus_) continue;
        const int far = along + 2 * std::abs(level ? d.y : d.x);
        if (best == nullptr || far < least) {
            best = &one;
            least = far;
        }
    }
    if (best != nullptr) focusOn(*best);
}

void Hands::focusOn(const Target& target) {
    focus_ = target;
    comforts_.refresh();
    handOver(Input::Kind::move, target.at, holds_ ? Button::left : Button::none);
}

void Hands::handOver(Input::Kind kind, Point at, Button button) {
    comforts_.platform().queue.handOver({.kind = kind, .at = at, .button = button});
}

void Hands::act(Button button) {
    const Point at = focus_->at;
    if (holds_) {
        holds_ = false;
        if (button == Button::right) return putBack();
        return handOver(Input::Kind::release, at, Button::left);
    }
    handOver(Input::Kind::press, at, button);
    handOver(Input::Kind::release, at, button);
    comforts_.refresh();
}

void Hands::takeInHand() {
    if (holds_) return putBack();
    if (focus_->kind != Target::Kind::item) return;
    holds_ = true;
    comforts_.notice(focus_->name + Text(" ist in der Hand: Enter gibt, Esc legt zurück."_t));
    handOver(Input::Kind::press, focus_->at, Button::left);
}

void Hands::putBack() {
    holds_ = false;
    Window* const top = comforts_.platform().queue.active();
    if (top == nullptr) return;
    const Point nowhere = nowhereIn(*top);
    handOver(Input::Kind::move, nowhere, Button::left);
    handOver(Input::Kind::release, nowhere, Button::left);
    comforts_.refresh();
}

// --- what is seen of it

void Hands::draw(Bitmap& picture, const Rect& top) {
    if (!comforts_.settings().keyboardPlay && !showsAll_) return;
    if (comforts_.keys().busy()) return;
    const auto all = targets();
    const auto onPicture = [&](const Rect& area) { return Rect{area.at() + top.at(), area.size()}; };
    std::vector<Rect> taken;
    if (showsAll_)
        for (const Target& one : all) {
            const bool dim = one.kind == Target::Kind::thing && used_.count(one.index) > 0;
            picture.outline(onPicture(one.area), dim ? dimmed : look::highlight);
            drawName(picture, onPicture(one.area), one.name, dim, taken);
        }
    if (!focus_ || !comforts_.settings().keyboardPlay) return;
    const auto here = std::find(all.begin(), all.end(), *focus_);
    if (here == all.end()) return;
    if (here->kind == Target::Kind::answer) return;  // the game itself shows that one
    const Rect area = onPicture(here->area);
    picture.outline(area, black);
    picture.outline(look::shrunk(area, 1), frameColour);
    picture.outline(look::shrunk(area, 2), black);
    taken.clear();
    drawName(picture, area, here->name, false, taken);
}

// In the middle of the place, held inside the picture. Larger letters go out of the way of names that stand
// already.
void Hands::drawName(Bitmap& picture, const Rect& area, TextView name, bool dim, std::vector<Rect>& taken) const {
    if (name.empty()) return;
    const Font& font = comforts_.platform().fonts.get(comforts_.platform().boxFont());
    const Size size{font.width(name) + 2 * nameInset, font.lineHeight() + 2};
    const auto heldAt = [&](int rows) {
        return Point{
            std::clamp(area.x + (area.w - size.w) / 2, 0, std::max(0, picture.width() - size.w)),
            std::clamp(area.y + (area.h - size.h) / 2 + rows * size.h, 0, std::max(0, picture.height() - size.h))};
    };
    const auto free = [&](Point at) {
        return std::none_of(taken.begin(), taken.end(), [&](const Rect& one) {
            return !intersection(one, {at, size}).empty();
        });
    };
    constexpr std::array ways{0, 1, -1, 2, -2, 3, -3};
    const bool dodges = comforts_.platform().boxPercent > 100;
    const auto way = std::find_if(ways.begin(), ways.end(), [&](int rows) { return free(heldAt(rows)); });
    const Point at = heldAt(dodges && way != ways.end() ? *way : 0);
    taken.push_back({at, size});
    picture.fill({at, size}, black);
    font.draw(picture, at + Point{nameInset, 1}, name, dim ? dimmed : look::highlight);
}

}  // namespace zentrox
