// The sound and video device: one voice, one effect, one song and one video at a time, none of which cuts another
// off. Files are paths of the game; one that can't be played counts as silence. All calls return at once.
#pragma once

#include <cstdint>

#include "platform/picture/bitmap.h"
#include "platform/values/text.h"

namespace zentrox {

using SoundHandle = std::uint32_t;  // 0 is none

// Why a call has failed; the numbers are those of the table of `BassFehlerText`.
enum class SoundError {
    none = 0,
    cannotOpen = 2,
    noDriver = 3,
    unsupported = 6,
    notInitialised = 8,
    notStarted = 9,
};

// How loud each kind of sound is: percent of what the files have.
struct Volumes {
    int voice = 100;
    int effect = 100;
    int song = 100;
    int video = 100;
};

class SoundDevice {
public:
    virtual ~SoundDevice() = default;

    // A directory to look into for a sound font before those of the system; to be told before the first song.
    virtual void useSoundFontsIn(TextView /*directory*/) {}

    // Finds the output, then opens it. False, with `error` set, if there is none, or it is not to be had; then
    // everything but videos is silence.
    virtual bool init() = 0;
    virtual bool start() = 0;
    virtual SoundError error() const = 0;  // of the last call that can fail
    // Stops all and closes the output.
    virtual void free() = 0;
    // Songs were asked for that are silent, since there is no sound font to play them with.
    virtual bool lacksSoundFont() const { return false; }
    // All that plays stands still until it is told to go on.
    virtual void setPaused(bool /*paused*/) {}
    // From now on, for what plays as well.
    virtual void setVolumes(const Volumes& /*volumes*/) {}

    // Opens a voice file, in place of the one before, without playing it yet; 0 if that fails.
    virtual SoundHandle openVoice(TextView path) = 0;
    virtual void playVoice(SoundHandle handle) = 0;
    // Stops and closes it; harmless on 0 and on one that has ended.
    virtual void freeVoice(SoundHandle handle) = 0;

    // Plays an effect once; it replaces the one before.
    virtual void playEffect(TextView path) = 0;

    // Opens a song in place of the one before and plays it once.
    virtual void playSong(TextView path) = 0;
    virtual void stopSong() = 0;
    // Milliseconds; both 0 when there is no song. The position of a song that has ended is its length.
    virtual std::int64_t songLength() = 0;
    virtual std::int64_t songPosition() = 0;

    // Opens a video and its sound, in place of the one before, and starts it; false if it can't be decoded.
    virtual bool playVideo(TextView path) = 0;
    virtual void stopVideo() = 0;
    // Milliseconds; both 0 when there is no video. The position of a video that has ended is its length.
    virtual std::int64_t videoLength() = 0;
    virtual std::int64_t videoPosition() = 0;
    // The picture that should be seen now, scaled to 640 by 480, if it is another one than at the last call; else
    // null. It stays until the next call of the device.
    virtual const Bitmap* videoFrame() = 0;
};

}  // namespace zentrox
