#include "platform/picture/enlarge.h"

#include <cmath>
#include <cstring>

namespace zentrox {

namespace {

constexpr double grain = 1e-6;  // what counts as the same place
constexpr unsigned parts = 256;

std::uint32_t blended(std::uint32_t a, std::uint32_t b, unsigned share) {
    const std::uint32_t redBlue = (a & 0xFF00FFU) * (parts - share) + (b & 0xFF00FFU) * share;
    const std::uint32_t green = (a & 0x00FF00U) * (parts - share) + (b & 0x00FF00U) * share;
    return (redBlue >> 8U & 0xFF00FFU) | (green >> 8U & 0x00FF00U);
}

void blendRow(std::uint32_t* __restrict to, const std::uint32_t* __restrict a, const std::uint32_t* __restrict b,
              unsigned share, int width) {
    for (int x = 0; x < width; ++x) to[x] = blended(a[x], b[x], share);
}

void copyRow(std::uint32_t* to, const std::uint32_t* from, int width) {
    std::memcpy(to, from, static_cast<std::size_t>(width) * sizeof(*to));
}

}  // namespace

double fittingScale(Size picture, Size room, Enlarging how) {
    const double across = static_cast<double>(std::max(room.w, 1)) / std::max(picture.w, 1);
    const double down = static_cast<double>(std::max(room.h, 1)) / std::max(picture.h, 1);
    const double most = std::min(across, down);
    return how == Enlarging::whole && most >= 1 ? std::floor(most + grain) : most;
}

Enlarger::Enlarger(Size picture, double scale, Enlarging how)
    : picture_(picture),
      scale_(scale),
      smooth_(how == Enlarging::smooth || scale < 1) {
    const auto enlarged = [&](int side) {
        return side <= 0 ? 0 : std::max(1, static_cast<int>(std::floor(side * scale + grain)));
    };
    across_ = taps(picture.w, enlarged(picture.w));
    down_ = taps(picture.h, enlarged(picture.h));
}

std::vector<Enlarger::Tap> Enlarger::taps(int from, int to) const {
    std::vector<Tap> all(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        Tap& tap = all[static_cast<std::size_t>(i)];
        double share = 0;
        if (smooth_) {
            const double centre = std::max((i + 0.5) / scale_ - 0.5, 0.0);
            tap.first = static_cast<int>(centre);
            share = centre - tap.first;
        } else {
            tap.first = static_cast<int>(i / scale_ + grain);
            share = ((i + 1) / scale_ - (tap.first + 1)) * scale_;
        }
        tap.first = std::min(tap.first, from - 1);
        tap.second = std::min(tap.first + 1, from - 1);
        tap.share = static_cast<unsigned>(std::lround(std::clamp(share, 0.0, 1.0) * parts));
        if (tap.second == tap.first) tap.share = 0;
    }
    return all;
}

Rect Enlarger::covered(const Rect& part) const {
    const int lean = smooth_ ? 1 : 0;
    const auto begin = [&](int v) { return static_cast<int>(std::floor((v - lean) * scale_)); };
    const auto end = [&](int v) { return static_cast<int>(std::ceil((v + lean) * scale_)); };
    const Rect all{begin(part.x), begin(part.y), end(part.right()) - begin(part.x),
                   end(part.bottom()) - begin(part.y)};
    return part.empty() ? Rect{} : intersection(all, {{0, 0}, size()});
}

void Enlarger::expand(const std::uint32_t* from, std::uint32_t* to, int left, int width) const {
    const Tap* const taps = across_.data() + left;
    if (scale_ == 1) return copyRow(to, from + taps->first, width);
    for (int x = 0; x < width; ++x) {
        const Tap& tap = taps[x];
        to[x] = tap.share == 0 ? from[tap.first] : blended(from[tap.first], from[tap.second], tap.share);
    }
}

std::uint32_t* Enlarger::expanded(const Bitmap& picture, int row, int left, int width, std::size_t buffer) {
    auto& held = rows_[buffer];
    if (held_[buffer] != row) {
        held.resize(std::max(held.size(), static_cast<std::size_t>(width)));
        expand(picture.row(row), held.data(), left, width);
        held_[buffer] = row;
    }
    return held.data();
}

Rect Enlarger::paint(const Bitmap& picture, const Rect& part, const Pixels& target, Point corner) {
    const Rect room{{-corner.x, -corner.y}, target.size};
    const Rect all = picture.size() == picture_ ? intersection(covered(part), room) : Rect{};
    if (all.empty()) return {};
    held_[0] = held_[1] = -1;
    const std::uint32_t* above = nullptr;  // the row before, if it shows one row of the picture alone
    int aboveIs = -1;
    for (int y = all.y; y < all.bottom(); ++y) {
        const Tap& tap = down_[static_cast<std::size_t>(y)];
        std::uint32_t* const to = target.row(corner.y + y) + corner.x + all.x;
        if (tap.share == 0) {
            if (above != nullptr && aboveIs == tap.first)
                copyRow(to, above, all.w);
            else
                expand(picture.row(tap.first), to, all.x, all.w);
            above = to;
            aboveIs = tap.first;
        } else {
            const auto even = static_cast<std::size_t>(tap.first % 2);
            const auto* const a = expanded(picture, tap.first, all.x, all.w, even);
            const auto* const b = expanded(picture, tap.second, all.x, all.w, 1 - even);
            blendRow(to, a, b, tap.share, all.w);
            above = nullptr;
        }
    }
    return {corner + all.at(), all.size()};
}

}  // namespace zentrox
