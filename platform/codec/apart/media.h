// Sounds and films, decoded by a worker.
#pragma once

#include "platform/codec/apart/apart.h"

namespace zentrox::apart {

// --- the worker's side: says whether there is something to decode, and serves until nobody listens
void serveSound(Channel& channel, AudioReader* sound);
void serveFilm(Channel& channel, VideoReader* film);
void serveLengths(Channel& channel, FileDecoder& decoder);

// --- the program's side: null if there is nothing to decode
std::unique_ptr<AudioReader> soundFrom(std::unique_ptr<Worker> worker);
std::unique_ptr<VideoReader> filmFrom(std::unique_ptr<Worker> worker);
enum class Length { ofSound, ofFilm };
// Milliseconds; 0 if the worker does not come to an end.
std::int64_t lengthFrom(Worker& worker, Length length, const OpenFile& file);

}  // namespace zentrox::apart
