#include "tools/story/fresh.h"

#include "platform/picture/bitmap.h"
#include "tools/story/build.h"
#include "tools/story/imagefiles.h"
#include "tools/story/parser.h"
#include "tools/story/template.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

// --- pictures, each drawn at half the size of the room

constexpr Colour wall{214, 198, 160};
constexpr Colour floorBoards{134, 96, 58};
constexpr Colour boardGap{104, 72, 42};
constexpr Colour wood{92, 54, 28};
constexpr Colour lightWood{150, 104, 60};
constexpr Colour brass{222, 178, 58};
constexpr Colour sky{140, 190, 230};
constexpr Colour clear{255, 0, 255};  // stands for transparent in the pointers
constexpr int pointerSide = 32;

void drawKey(Bitmap& on, Point at, Colour colour) {
    for (int radius = 4; radius <= 6; ++radius) on.circle({at.x, at.y}, radius, colour);
    on.fill({at.x + 6, at.y - 1, 18, 3}, colour);
    on.fill({at.x + 17, at.y + 2, 2, 4}, colour);
    on.fill({at.x + 21, at.y + 2, 2, 5}, colour);
}

Bitmap room(bool withKey) {
    Bitmap picture({320, 240}, wall);
    picture.fill({0, 200, 320, 40}, floorBoards);
    for (int y = 200; y < 240; y += 10) picture.line({0, y}, {319, y}, boardGap);
    picture.fill({50, 60, 60, 140}, wood);
    picture.outline({54, 64, 52, 60}, lightWood);
    picture.outline({54, 130, 52, 64}, lightWood);
    picture.fill({100, 126, 5, 8}, brass);
    picture.fill({200, 40, 70, 60}, wood);
    picture.fill({204, 44, 62, 52}, sky);
    picture.fill({233, 44, 4, 52}, wood);
    picture.fill({204, 68, 62, 4}, wood);
    picture.fill({160, 152, 110, 8}, lightWood);
    picture.fill({168, 160, 8, 60}, wood);
    picture.fill({254, 160, 8, 60}, wood);
    if (withKey) drawKey(picture, {197, 144}, brass);
    return picture;
}

Bitmap itemPicture() {
    Bitmap picture({48, 48}, black);
    drawKey(picture, {14, 24}, brass);
    return picture;
}

Bitmap emptyPointer() {
    return Bitmap({pointerSide, pointerSide}, clear);
}

void drawDisc(Bitmap& on, Point at, int radius, Colour inside, Colour edge) {
    for (int y = -radius; y <= radius; ++y)
        for (int x = -radius; x <= radius; ++x)
            if (x * x + y * y <= radius * radius) on.setPixel({at.x + x, at.y + y}, inside);
    on.circle(at, radius, edge);
}

// Two frames of a clock, for the time that a script runs.
Bitmap busyPointer(bool second) {
    Bitmap pointer = emptyPointer();
    drawDisc(pointer, {16, 16}, 11, white, black);
    pointer.line({16, 16}, second ? Point{23, 16} : Point{16, 8}, black);
    pointer.line({16, 16}, second ? Point{16, 22} : Point{22, 16}, black);
    return pointer;
}

Bitmap handPointer(Colour skin) {
    Bitmap pointer = emptyPointer();
    for (int finger = 0; finger < 4; ++finger) {
        const int top = finger == 0 || finger == 3 ? 8 : 5;
        pointer.fill({9 + 4 * finger, top, 4, 16}, skin);
        pointer.outline({9 + 4 * finger, top, 4, 16}, black);
    }
    pointer.fill({9, 16, 16, 11}, skin);
    pointer.outline({9, 16, 16, 11}, black);
    pointer.fill({10, 15, 14, 3}, skin);
    return pointer;
}

// An item that would be taken here.
Bitmap dropPointer() {
    Bitmap pointer = emptyPointer();
    drawDisc(pointer, {16, 16}, 12, white, black);
    drawDisc(pointer, {16, 16}, 8, Colour(200, 40, 40), black);
    drawDisc(pointer, {16, 16}, 3, white, black);
    return pointer;
}

}  // namespace

void writeFreshStory(const fs::path& directory) {
    std::error_code error;
    if (fs::exists(directory, error) && !fs::is_empty(directory, error))
        throw fs::filesystem_error("neu", directory, std::make_error_code(std::errc::directory_not_empty));
    const auto write = [&](const char* name, const std::string& bytes) { writeIfChanged(directory / name, bytes); };
    std::vector<fs::path> sources;
    for (const TemplateFile& file : templateFiles()) {
        write(file.path, std::string(file.text));
        if (fs::path(file.path).extension() == ".story") sources.push_back(directory / file.path);
    }
    write("graphics/stube.bmp", bmpFile(room(true)));
    write("graphics/stube_ohne_schluessel.bmp", bmpFile(room(false)));
    write("items/schluessel.bmp", bmpFile(itemPicture()));
    write("cursors/taste1.ico", iconFile(busyPointer(false), clear));
    write("cursors/taste2.ico", iconFile(busyPointer(true), clear));
    write("cursors/ge2.ico", iconFile(handPointer(brass), clear));
    write("cursors/werfen.ico", iconFile(dropPointer(), clear));
    write("cursors/hand1.ico", iconFile(handPointer(white), clear));
    Findings findings;
    SourceFiles files;
    writeStory(parseSources(sources, files, findings), directory);
}

}  // namespace zentrox::story
