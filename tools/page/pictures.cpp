#include "tools/page/pictures.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "platform/codec/pictures.h"
#include "platform/values/base64.h"
#include "platform/values/error.h"

namespace zentrox::page {

namespace {

constexpr Size roomSize{640, 480};
constexpr Size smallerRoomSize{480, 360};
constexpr Size smallestRoomSize{320, 240};
constexpr std::size_t manyRooms = 40;  // about 2 MB of pictures
constexpr std::size_t veryManyRooms = 80;
constexpr Size itemSize{64, 64};
constexpr int quality = 78;

struct Sum {
    std::uint64_t red = 0, green = 0, blue = 0, count = 0;
    void add(std::uint32_t pixel) {
        red += pixel >> 16U & 0xFFU;
        green += pixel >> 8U & 0xFFU;
        blue += pixel & 0xFFU;
        ++count;
    }
    std::uint32_t mean() const {
        const auto part = [&](std::uint64_t sum) { return static_cast<std::uint32_t>((sum + count / 2) / count); };
        return part(red) << 16U | part(green) << 8U | part(blue);
    }
};

}  // namespace

Bitmap fitted(const Bitmap& picture, Size most) {
    if (picture.empty() || (picture.width() <= most.w && picture.height() <= most.h)) return picture;
    const double scale =
        std::min(static_cast<double>(most.w) / picture.width(), static_cast<double>(most.h) / picture.height());
    Bitmap small({std::max(1, Runden(picture.width() * scale)), std::max(1, Runden(picture.height() * scale))});
    const auto from = [](int i, int target, int source) {
        return static_cast<int>(std::int64_t{i} * source / target);
    };
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x) {
            Sum sum;
            const int bottom = std::max(from(y, small.height(), picture.height()) + 1,
                                        from(y + 1, small.height(), picture.height()));
            const int right =
                std::max(from(x, small.width(), picture.width()) + 1, from(x + 1, small.width(), picture.width()));
            for (int v = from(y, small.height(), picture.height()); v < bottom; ++v)
                for (int u = from(x, small.width(), picture.width()); u < right; ++u) sum.add(picture.row(v)[u]);
            small.row(y)[x] = sum.mean();
        }
    return small;
}

Pictures::Pictures(const story::DataFiles* data, std::size_t rooms)
    : data_(data),
      roomSize_(rooms > veryManyRooms ? smallestRoomSize
                : rooms > manyRooms   ? smallerRoomSize
                                      : roomSize) {}

std::string Pictures::graphics(TextView file) {
    return take(Ordner::graphics, file, roomSize_, false);
}

std::string Pictures::item(TextView file) {
    return take(Ordner::items, file, itemSize, true);
}

std::string Pictures::take(Ordner directory, TextView file, Size most, bool lossless) {
    if (data_ == nullptr || Getrimmt(file).empty()) return {};
    const Text path = story::DataFiles::path(directory, Dateiname(file));
    const std::string name = toUtf8(lower(path));
    if (all_.contains(name)) return name;
    try {
        const Bitmap small = fitted(loadPicture(data_->files(), path), most);
        const std::string bytes = lossless ? pngFile(small) : jpegFile(small, quality);
        if (bytes.empty()) return {};
        all_[name] = (lossless ? "data:image/png;base64," : "data:image/jpeg;base64,") + base64(bytes);
        return name;
    } catch (const DataError&) {
        return {};
    }
}

}  // namespace zentrox::page
