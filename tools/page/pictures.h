// The pictures of a story, small enough to lie in a page.
#pragma once

#include <map>

#include "platform/picture/bitmap.h"
#include "tools/story/datafiles.h"

namespace zentrox::page {

class Pictures {
public:
    // `data` may be null: then there are none. So many of rooms will be asked for: the more, the smaller they are.
    Pictures(const story::DataFiles* data, std::size_t rooms);

    // Takes the picture in; empty if it is missing or can't be decoded. What it gives is its name on the page.
    std::string graphics(TextView file);  // a room, a portrait
    std::string item(TextView file);

    // By their names on the page, as `data:` addresses.
    const std::map<std::string, std::string>& all() const { return all_; }

private:
    std::string take(Ordner directory, TextView file, Size most, bool lossless);

    const story::DataFiles* data_;
    Size roomSize_;
    std::map<std::string, std::string> all_;
};

// The picture in a size that fits into `most`, each pixel the mean of those it stands for. A smaller one stays.
Bitmap fitted(const Bitmap& picture, Size most);

}  // namespace zentrox::page
