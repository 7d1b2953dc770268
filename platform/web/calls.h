// What the page's script does for the engine, function by function; `web/page.js` has the other side. Texts are
// UTF-8, times milliseconds on the page's clock.
#pragma once

#include <cstdint>

extern "C" {

double pageClock();
// Returns at `until`, or earlier with input; a negative time waits for input alone.
void pageSleep(double until);
// Takes the next input apart into numbers, 0 if there is none.
int pageNext(int* fields);
// `held` are 256 bytes, set to 128 for each key that is held.
void pageKeys(std::uint8_t* held);

void pageOpen(int window, const char* name, const char* title, int width, int height, int frame);
void pageClose(int window);
void pageReshape(int window, const char* title, int width, int height);
// Shows these pixels at a place of the window: red, green, blue, opacity.
void pageDraw(int window, const std::uint32_t* pixels, int x, int y, int width, int height);
// `mode` is that of `Pointer`. 0 if it is the picture of a file that the page does not know yet.
int pagePointer(int window, int mode, const char* file);
void pagePointerPicture(const char* file, const std::uint32_t* pixels, int width, int height);
void pageBox(const char* title, const char* text);

// Returns when the file is there in full.
void pageNear(const char* file);
// Writes at most `room` bytes of the clipboard and returns how many.
int pageClipboard(char* text, int room);
void pageSetClipboard(const char* text);
// Shows a file of the CD in a tab of its own; 0 if there is none.
int pageShow(const char* file);

// Tracks: 0 the voice, 1 the effect, 2 the song. Each plays one file, in place of the one before.
void pagePlay(int track, const char* file);
void pageStop(int track);
// Milliseconds since the file was first heard, or could have been; 0 while it is fetched.
double pageHeard(int track);

void pageFilm(const char* file);
void pageStopFilm();
// As `pageHeard`; less than 0 when it could not be shown, or has ended.
double pageFilmSeen();
// Writes the picture to be seen now, 640 by 480: red, green, blue, opacity. 0 if it is the one of the last call.
int pageFilmPicture(std::uint32_t* pixels);
}
