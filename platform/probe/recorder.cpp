#include "platform/probe/recorder.h"

#include <algorithm>
#include <array>

#include "platform/machine/midi.h"

namespace zentrox {

namespace {

std::int64_t audioLength(const std::filesystem::path& file) {
    auto* decoder = mediaDecoder();
    return decoder != nullptr ? decoder->audioLength(file) : 0;
}

std::int64_t songLengthOf(const std::filesystem::path& file) {
    const auto midi = readMidi(file);
    return midi ? midiLength(*midi).value_or(0) : audioLength(file);
}

std::int64_t videoLengthOf(const std::filesystem::path& file) {
    auto* decoder = mediaDecoder();
    return decoder != nullptr ? decoder->videoLength(file) : 0;
}

}  // namespace

Recorder::Track Recorder::open(const std::string& kind, TextView path,
                               std::int64_t (*length)(const std::filesystem::path&)) const {
    Track track{kind};
    if (!files_.exists(path)) return track;
    track.name = files_.display(path);
    track.length = length(files_.systemPath(path));
    return track;
}

void Recorder::play(Track& track) {
    track.begin = clock_();
    track.plays = true;
    trace_(track.begin, track.kind + " " + track.name);
}

void Recorder::stop(Track& track) {
    if (track.plays) trace_(clock_(), track.kind + " off");
    track = Track{track.kind};
}

std::int64_t Recorder::position(const Track& track) const {
    return std::min(pausedAt_.value_or(clock_()) - track.begin, track.length);
}

// What plays has begun later by the time of a pause.
void Recorder::setPaused(bool paused) {
    if (paused == pausedAt_.has_value()) return;
    if (paused) {
        pausedAt_ = clock_();
        return;
    }
    for (Track* const track : {&voice_, &song_, &video_}) track->begin += clock_() - *pausedAt_;
    pausedAt_.reset();
}

void Recorder::settle() {
    if (pausedAt_) return;
    std::array tracks{&voice_, &song_, &video_};
    std::stable_sort(tracks.begin(), tracks.end(), [](auto* a, auto* b) { return a->end() < b->end(); });
    for (auto* track : tracks) {
        if (!track->plays || track->end() > clock_()) continue;
        track->plays = false;
        trace_(track->end(), track->kind + " off");
    }
}

void Recorder::free() {
    freeVoice(handle_);
    stopSong();
    stopVideo();
    started_ = false;
}

SoundHandle Recorder::openVoice(TextView path) {
    freeVoice(handle_);
    error_ = started_ ? SoundError::cannotOpen : SoundError::notInitialised;
    if (!started_) return 0;
    voice_ = open("voice", path, audioLength);
    if (voice_.length == 0) return 0;
    error_ = SoundError::none;
    return handle_ = ++handles_;
}

void Recorder::playVoice(SoundHandle handle) {
    if (handle != 0 && handle == handle_) play(voice_);
}

void Recorder::freeVoice(SoundHandle handle) {
    if (handle == 0 || handle != handle_) return;
    stop(voice_);
    handle_ = 0;
}

void Recorder::playEffect(TextView path) {
    const Track effect = open("effect", path, audioLength);
    if (effect.length > 0) trace_(clock_(), "effect " + effect.name);
}

void Recorder::playSong(TextView path) {
    stop(song_);
    song_ = open("song", path, songLengthOf);
    if (song_.length > 0) play(song_);
}

void Recorder::stopSong() {
    stop(song_);
}

bool Recorder::playVideo(TextView path) {
    stopVideo();
    video_ = open("video", path, videoLengthOf);
    if (video_.length == 0) return false;
    pictures_ = mediaDecoder()->openVideo(files_.systemPath(path));
    play(video_);
    return true;
}

void Recorder::stopVideo() {
    stop(video_);
    pictures_.reset();
}

const Bitmap* Recorder::videoFrame() {
    if (!pictures_) return nullptr;
    if (picture_.empty()) picture_ = Bitmap({videoWidth, videoHeight});
    return pictures_->advance(position(video_), picture_.row(0)) ? &picture_ : nullptr;
}

}  // namespace zentrox
