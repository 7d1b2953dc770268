#include "platform/picture/font.h"

#include <algorithm>

namespace zentrox {

Size Font::measure(TextView text) const {
    Size size{0, 0};
    for (const TextView line : linesOf(text)) {
        size.w = std::max(size.w, width(line));
        size.h += lineHeight();
    }
    return size;
}

}  // namespace zentrox
