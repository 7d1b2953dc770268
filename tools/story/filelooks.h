// What can be told of a picture, a sound or a film without playing it, kept in mind for as long as the file stays
// as it is: who looks again and again, as an editor does, decodes each file once.
#pragma once

#include <map>

#include "platform/values/geometry.h"
#include "tools/story/datafiles.h"

namespace zentrox::story {

struct FileLook {
    bool usable = true;
    bool empty = false;
    Size size;  // of a picture
};

class FileLooks {
public:
    // `file` lies directly in the data directory.
    FileLook look(const DataFiles& data, Ordner directory, TextView file);

private:
    struct Known {
        std::filesystem::file_time_type changed;
        std::uintmax_t bytes = 0;
        FileLook look;
    };
    std::map<std::filesystem::path, Known> known_;
};

}  // namespace zentrox::story
