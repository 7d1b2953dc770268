#include "platform/codec/apart/pictures.h"

#include <string>
#include <vector>

#include "platform/codec/decode.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

using apart::Channel;
using apart::Worker;

// What the program asks; the bytes of the file follow.
struct Question {
    std::uint64_t bytes = 0;
    std::uint8_t opacity = 0;
};

// A picture without a size is none; else its pixels follow.
struct Answer {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

bool believable(const Answer& answer) {
    return answer.width > 0 && answer.height > 0 && answer.width <= limits::pictureSide &&
           answer.height <= limits::pictureSide &&
           std::uint64_t{answer.width} * answer.height <= limits::picturePixels;
}

// False as well where the worker fails.
bool askFor(Worker& worker, std::string_view bytes, Opacity opacity, const PixelRoom& room) {
    Channel& channel = worker.channel;
    const auto patience = worker.patience.whole;
    const Question question{bytes.size(), static_cast<std::uint8_t>(opacity)};
    Answer answer;
    bool whole = channel.sendValue(question, patience) && channel.send(bytes.data(), bytes.size(), patience) &&
                 channel.receiveValue(answer, patience);
    if (whole && answer.width == 0 && answer.height == 0) return false;
    if (whole && believable(answer)) {
        const Size size{static_cast<int>(answer.width), static_cast<int>(answer.height)};
        const std::size_t most = std::size_t{answer.width} * answer.height * sizeof(std::uint32_t);
        whole = channel.receive(room(size), most, patience) == most;
    } else {
        whole = false;
    }
    if (!whole) worker.end();
    return whole;
}

}  // namespace

bool decodePicture(std::string_view bytes, Opacity opacity, const PixelRoom& room) {
    Worker* const worker = apart::residentFor(apart::Job::pictures);
    return worker != nullptr ? askFor(*worker, bytes, opacity, room) : decodePictureHere(bytes, opacity, room);
}

namespace apart {

void servePictures(Channel& channel) {
    Question question;
    while (channel.receiveValue(question)) {
        std::string bytes(question.bytes, '\0');
        if (channel.receive(bytes.data(), bytes.size()) != bytes.size()) return;
        std::vector<std::uint32_t> pixels;
        Answer answer;
        const bool decoded = decodePictureHere(bytes, static_cast<Opacity>(question.opacity), [&](Size size) {
            answer = {static_cast<std::uint32_t>(size.w), static_cast<std::uint32_t>(size.h)};
            pixels.resize(std::size_t{answer.width} * answer.height);
            return pixels.data();
        });
        if (!decoded) answer = {};
        if (!channel.sendValue(answer)) return;
        if (decoded && !channel.send(pixels.data(), pixels.size() * sizeof(std::uint32_t))) return;
    }
}

}  // namespace apart

}  // namespace zentrox
