#include "platform/sdl/layout.h"

#include <cmath>

namespace zentrox::sdl {

namespace {

constexpr int edge = 3;
constexpr int thinEdge = 2;
constexpr int titleHeight = 18;
constexpr int underTitle = 1;
constexpr Size closeSize{16, 14};
constexpr double grain = 1e-6;

bool hasTitle(Frame frame) {
    return frame == Frame::sizable || frame == Frame::fixed || frame == Frame::dialog;
}

Size shrunk(Size native, double scale) {
    return {std::max(1, static_cast<int>(native.w / scale + grain)),
            std::max(1, static_cast<int>(native.h / scale + grain))};
}

// Moves `area` into `room`; what is larger than it begins at its corner.
Rect heldIn(Rect area, Size room) {
    area.x = std::max(0, std::min(area.x, room.w - area.w));
    area.y = std::max(0, std::min(area.y, room.h - area.h));
    return area;
}

Rect centredOn(const Rect& below, Size size) {
    return {{below.x + (below.w - size.w) / 2, below.y + (below.h - size.h) / 2}, size};
}

}  // namespace

Rect outerArea(const Rect& client, Frame frame) {
    const int side = hasTitle(frame) ? edge : frame == Frame::thin ? thinEdge : 0;
    const int top = side + (hasTitle(frame) ? titleHeight + underTitle : 0);
    return {client.x - side, client.y - top, client.w + 2 * side, client.h + top + side};
}

Rect titleBar(const Rect& client, Frame frame) {
    if (!hasTitle(frame)) return {};
    return {client.x, client.y - underTitle - titleHeight, client.w, titleHeight};
}

Rect closeBox(const Rect& client, Frame frame) {
    const Rect title = titleBar(client, frame);
    if (title.empty()) return {};
    const int inset = (titleHeight - closeSize.h) / 2;
    return {{title.right() - inset - closeSize.w, title.y + inset}, closeSize};
}

Place placeOf(Point p, const Rect& client, Frame frame, bool framed) {
    if (client.contains(p)) return Place::client;
    if (!framed) return Place::outside;
    if (closeBox(client, frame).contains(p)) return Place::closeBox;
    if (titleBar(client, frame).contains(p)) return Place::title;
    return outerArea(client, frame).contains(p) ? Place::edge : Place::outside;
}

double baseScale(const Ground& ground, const Tenant& base) {
    const Size least = base.frame == Frame::sizable ? base.minimum : base.client;
    return std::min(ground.most, fittingScale(least, ground.native, ground.how));
}

Size baseClient(const Ground& ground, const Tenant& base) {
    if (base.frame != Frame::sizable) return base.client;
    const Size room = shrunk(ground.native, baseScale(ground, base));
    return {std::max(room.w, base.minimum.w), std::max(room.h, base.minimum.h)};
}

Size needed(const std::vector<Tenant>& tenants) {
    Size most{1, 1};
    for (std::size_t i = 0; i < tenants.size(); ++i) {
        const Rect client{{0, 0}, tenants[i].client};
        const Size size = i == 0 ? client.size() : outerArea(client, tenants[i].frame).size();
        most = {std::max(most.w, size.w), std::max(most.h, size.h)};
    }
    return most;
}

Layout layOut(const Ground& ground, const std::vector<Tenant>& tenants) {
    Layout out;
    if (tenants.empty()) return out;
    const Tenant& base = tenants.front();
    out.scale = std::min(baseScale(ground, base), fittingScale(needed(tenants), ground.native, ground.how));
    out.canvas = shrunk(ground.native, out.scale);
    const auto left = [&](int native, int canvas) {
        return std::max(0, (native - static_cast<int>(canvas * out.scale + grain)) / 2);
    };
    out.corner = {left(ground.native.w, out.canvas.w), left(ground.native.h, out.canvas.h)};
    const Rect canvas{{0, 0}, out.canvas};
    const Rect whole = ground.stretched ? Rect{{0, 0}, base.client} : centredOn(canvas, base.client);
    out.clients.push_back(heldIn(whole, out.canvas));
    for (std::size_t i = 1; i < tenants.size(); ++i) {
        const Tenant& tenant = tenants[i];
        const Rect client{{0, 0}, tenant.client};
        const Rect outer = outerArea(client, tenant.frame);
        const Rect& below = out.clients.back();
        const Rect chosen =
            tenant.put ? Rect{below.at() + *tenant.put + outer.at(), outer.size()} : centredOn(below, outer.size());
        const Rect stands = heldIn(chosen, out.canvas);
        out.clients.push_back({stands.at() - outer.at(), tenant.client});
    }
    return out;
}

}  // namespace zentrox::sdl
