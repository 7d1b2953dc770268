#include "platform/codec/apart/handlers.h"

#include "platform/codec/apart/media.h"
#include "platform/codec/apart/pictures.h"

namespace zentrox::apart {

namespace {

bool load() {
    return loadedDecoder() != nullptr;
}

void sound(Channel& channel, const OpenFile& file) {
    serveSound(channel, loadedDecoder()->openAudio(file).get());
}

void film(Channel& channel, const OpenFile& file) {
    serveFilm(channel, loadedDecoder()->openVideo(file).get());
}

void lengths(Channel& channel, const OpenFile& /*none*/) {
    serveLengths(channel, *loadedDecoder());
}

void pictures(Channel& channel, const OpenFile& /*none*/) {
    servePictures(channel);
}

}  // namespace

Handlers handlers() {
    return {{
        {load, sound},
        {load, film},
        {load, lengths, true},
        {nullptr, nullptr},
        {nullptr, pictures},
    }};
}

}  // namespace zentrox::apart
