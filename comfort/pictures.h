// Pictures of the game for the player: a key saves what is to be seen, as a PNG.
#pragma once

#include <filesystem>

#include "comfort/comforts.h"
#include "platform/machine/places.h"

namespace zentrox {

// Where the player keeps pictures, as the desktop's rules name it: XDG_PICTURES_DIR of the environment or of
// user-dirs.dirs, else a directory Bilder or Pictures in HOME, else HOME itself; empty without one.
std::filesystem::path picturesDirectory(const Environment& environment = processEnvironment);
// The same for texts: XDG_DOCUMENTS_DIR, Dokumente, Documents.
std::filesystem::path documentsDirectory(const Environment& environment = processEnvironment);

// The client area of the topmost window, without the windows of the comforts and what they draw over it.
Bitmap gamePicture(const Queue& queue);

class Screenshots {
public:
    // Pictures go to `directory`; it need not be there.
    Screenshots(Comforts& comforts, std::filesystem::path directory);
    Screenshots(const Screenshots&) = delete;
    Screenshots& operator=(const Screenshots&) = delete;

private:
    void take();

    Comforts& comforts_;
    std::filesystem::path directory_;
};

// A name that no file in `directory` has: `stem`, the date and the time, and a number if need be.
std::filesystem::path datedFile(const std::filesystem::path& directory, const std::string& stem,
                                const std::string& extension);

}  // namespace zentrox
