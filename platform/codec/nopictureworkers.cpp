// Where there are no other processes.
#include "platform/codec/decode.h"

namespace zentrox {

bool decodePicture(std::string_view bytes, Opacity opacity, const PixelRoom& room) {
    return decodePictureHere(bytes, opacity, room);
}

}  // namespace zentrox
