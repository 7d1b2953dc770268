// The block copies, each beside its anchor: a copy of the same bytes by the C library, or SDL's own scaled copy.
// The two take turns, so that what else the machine does slows both; the counter `ratio` is ours to the anchor's.
#include <SDL_surface.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>

#include "platform/picture/bitmap.h"

namespace zentrox {
namespace {

constexpr Size room{640, 480};
constexpr Size sprite{48, 96};

using Clock = std::chrono::steady_clock;

// Called through a pointer, so that no build puts code of its own in the place of the library's.
void* (*volatile const libraryCopy)(void*, const void*, std::size_t) = std::memcpy;

template <class Work>
double nanosecondsOf(int times, const Work& work) {
    const auto begin = Clock::now();
    for (int i = 0; i < times; ++i) {
        work();
        benchmark::ClobberMemory();
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - begin).count() / times;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Runs both in turn, each `times` at a stretch, and tells the medians of their turns.
template <class Anchor, class Ours>
void compare(benchmark::State& state, int times, const Anchor& anchor, const Ours& ours) {
    std::vector<double> anchors;
    std::vector<double> figures;
    for (auto _ : state) {
        anchors.push_back(nanosecondsOf(times, anchor));
        figures.push_back(nanosecondsOf(times, ours));
        state.SetIterationTime((anchors.back() + figures.back()) * times * 1e-9);
    }
    state.counters["anchor_us"] = median(anchors) / 1000;
    state.counters["ours_us"] = median(figures) / 1000;
    state.counters["ratio"] = median(figures) / median(anchors);
}

Bitmap pattern(Size size) {
    Bitmap bitmap(size);
    std::uint32_t value = 1;
    for (int y = 0; y < size.h; ++y)
        for (int x = 0; x < size.w; ++x) bitmap.row(y)[x] = (value = value * 1664525U + 1013904223U) >> 8U;
    return bitmap;
}

// The bytes of a room's picture, once.
void copyBytes(Bitmap& to, const Bitmap& from) {
    libraryCopy(to.row(0), from.row(0), static_cast<std::size_t>(room.w) * room.h * sizeof(std::uint32_t));
}

void plainCopy(benchmark::State& state) {
    const Bitmap source = pattern(room);
    Bitmap target(room);
    compare(
        state, 4, [&] { copyBytes(target, source); },
        [&] {
            target.copy(source, {0, 0});
        });
}

void orOfConstant(benchmark::State& state) {
    const Bitmap source = pattern(room);
    const Bitmap grey({1, 1}, Colour(64, 64, 64));
    Bitmap target = pattern(room);
    compare(
        state, 4, [&] { copyBytes(target, source); },
        [&] {
            target.stretch(grey, {0, 0, 1, 1}, target.bounds(), Op::bitOr);
        });
}

void moveWithin(benchmark::State& state) {
    const int dx = static_cast<int>(state.range(0));
    const int dy = static_cast<int>(state.range(1));
    const Bitmap source = pattern(room);
    Bitmap target = pattern(room);
    compare(
        state, 4, [&] { copyBytes(target, source); },
        [&] {
            target.copy(target, target.bounds(), {dx, dy});
        });
}

void spriteAndThenOr(benchmark::State& state) {
    const Bitmap atlas = pattern(room);
    Bitmap target = pattern(room);
    const Rect mask{96, 200, sprite.w, sprite.h};
    const Rect figure{96, 100, sprite.w, sprite.h};
    const Point at{301, 207};
    const auto rows = [&] {
        for (int y = 0; y < sprite.h; ++y)
            libraryCopy(target.row(at.y + y) + at.x, atlas.row(figure.y + y) + figure.x,
                        sprite.w * sizeof(std::uint32_t));
    };
    compare(state, 200, rows, [&] {
        target.copy(atlas, mask, at, Op::bitAnd);
        target.copy(atlas, figure, at, Op::bitOr);
    });
}

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

std::unique_ptr<SDL_Surface, FreeSurface> wrapped(Bitmap& bitmap) {
    return std::unique_ptr<SDL_Surface, FreeSurface>(SDL_CreateRGBSurfaceWithFormatFrom(
        bitmap.row(0), bitmap.width(), bitmap.height(), 32, bitmap.width() * 4, SDL_PIXELFORMAT_XRGB8888));
}

void scaledCopy(benchmark::State& state) {
    Bitmap source = pattern({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    Bitmap target(room);
    const auto from = wrapped(source);
    const auto to = wrapped(target);
    compare(
        state, 4, [&] { SDL_BlitScaled(from.get(), nullptr, to.get(), nullptr); },
        [&] { target.stretch(source, source.bounds(), target.bounds()); });
}

BENCHMARK(plainCopy)->UseManualTime();
BENCHMARK(orOfConstant)->UseManualTime();
BENCHMARK(moveWithin)->Args({-3, 0})->Args({3, 0})->Args({0, 3})->Args({-3, -3})->UseManualTime();
BENCHMARK(spriteAndThenOr)->UseManualTime();
BENCHMARK(scaledCopy)->Args({1280, 960})->Args({320, 240})->Args({1000, 700})->UseManualTime();

}  // namespace
}  // namespace zentrox
