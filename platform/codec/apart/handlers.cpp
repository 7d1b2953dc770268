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

void soundLength(Channel& channel, const OpenFile& file) {
    channel.sendValue(loadedDecoder()->audioLength(file));
}

void film(Channel& channel, const OpenFile& file) {
    serveFilm(channel, loadedDecoder()->openVideo(file).get());
}

void filmLength(Channel& channel, const OpenFile& file) {
    channel.sendValue(loadedDecoder()->videoLength(file));
}

void pictures(Channel& channel, const OpenFile& /*none*/) {
    servePictures(channel);
}

}  // namespace

Handlers handlers() {
    return {{
        {load, sound},
        {load, soundLength},
        {load, film},
        {load, filmLength},
        {nullptr, nullptr},
        {nullptr, pictures},
    }};
}

}  // namespace zentrox::apart
