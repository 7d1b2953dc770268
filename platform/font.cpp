#include "platform/font.h"

#include <algorithm>

namespace zentrox {

Size Font::measure(TextView text) const {
    Size size{0, 0};
    for (bool more = true; more;) {
        const std::size_t end = text.find_first_of("\r\n");
        more = end != TextView::npos;
        size.w = std::max(size.w, width(text.substr(0, end)));
        size.h += lineHeight();
        if (more) text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
    }
    return size;
}

}  // namespace zentrox
