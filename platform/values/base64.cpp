#include "platform/values/base64.h"

#include <cstdint>

namespace zentrox {

std::string base64(std::string_view bytes) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const auto byte = [&](std::size_t at) {
            return at < bytes.size() ? static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at])) : 0;
        };
        const std::uint32_t three = byte(i) << 16U | byte(i + 1) << 8U | byte(i + 2);
        for (unsigned k = 0; k < 4; ++k)
            out += i + k <= bytes.size() ? letters[three >> (18 - 6 * k) & 0x3FU] : '=';
    }
    return out;
}

}  // namespace zentrox
