// Voice, effects, music and video: the game's own operations over the sound device. All return at once; a file that
// is missing or can't be played is silence, or a video of no length. Paths are full paths of the game.
#pragma once

#include <cstdint>

#include "engine/state/zustand.h"
#include "platform/machine/sound.h"
#include "platform/platform.h"

namespace zentrox {

// How the start of sound ended.
enum class Tonstart {
    gelungen,
    keinSystem,    // the process has to end
    keineAusgabe,  // the game goes on without sound
};

// What the error box says of a failed start; empty for `gelungen`.
TextView TonstartMeldung(Tonstart ergebnis);

// What an error code of the sound device means; empty for a code that is not in the table.
Text BassFehlerText(int code);

class Medien {
public:
    // Both must outlive it.
    Medien(Platform& platform, Zustand& zustand) : device_(platform.sound), files_(platform.files), z_(zustand) {}

    // Once a process, before anything is played.
    Tonstart Start();
    // Stops all output, frees `Stimme` and closes the device. What is played later is silence.
    void Ende();
    // Of the last failure, see `BassFehlerText`.
    int FehlerCode() const { return static_cast<int>(device_.error()); }

    // Opens the file as a stream into `Stimme`, in place of the one before, and plays it. `Stimme` is 0 if that
    // fails.
    void TonStart(TextView path);
    // Cuts the voice off; harmless when there is none.
    void StimmeFrei();

    // Plays a short sound once, in place of the one before.
    void SpieleWav(TextView path);

    // Plays a song once and keeps its path in `AktuellerSong`. If there is no such file the music is silent.
    void SongStart(TextView path);
    void SongStop();
    // Starts `AktuellerSong` again if its end is reached. As silence has no length, a timer that calls this must be
    // off when the music has been stopped.
    void SongPrüfen();

    // Shows a video in place of the one before; an empty path only closes that one.
    void VideoStart(TextView path);
    void VideoStop();
    // Milliseconds; both 0 without a video.
    std::int64_t VideoLänge() { return device_.videoLength(); }
    std::int64_t VideoPosition() { return device_.videoPosition(); }
    // The picture that should be seen now, 640 by 480, if it is another one than at the last call.
    const Bitmap* VideoBild() { return device_.videoFrame(); }

private:
    SoundDevice& device_;
    Files& files_;
    Zustand& z_;
};

}  // namespace zentrox
