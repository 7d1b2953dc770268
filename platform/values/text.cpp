#include "platform/values/text.h"

namespace zentrox {

namespace {

unsigned char byteOf(char c) {
    return static_cast<unsigned char>(c);
}
char charOf(unsigned value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

bool isSmallLatin1(unsigned char b) {
    return b >= 0xE0 && b != 0xF7 && b != 0xFF;
}
bool isCapitalLatin1(unsigned char b) {
    return b >= 0xC0 && b <= 0xDE && b != 0xD7;
}

void appendUtf8(std::string& out, char32_t c) {
    const auto tail = [&](unsigned shift) { out += charOf(0x80U | (c >> shift & 0x3FU)); };
    if (c < 0x80) {
        out += charOf(c);
    } else if (c < 0x800) {
        out += charOf(0xC0U | c >> 6U);
        tail(0);
    } else {
        out += charOf(0xE0U | c >> 12U);
        tail(6);
        tail(0);
    }
}

// How a lead byte begins a sequence: its length, its own bits, and the least code point that needs this length.
struct Lead {
    std::size_t length;
    char32_t bits;
    char32_t least;
};

std::optional<Lead> leadOf(unsigned char b) {
    if (b < 0x80) return Lead{1, b, 0};
    if (b >= 0xC0 && b < 0xE0) return Lead{2, b & 0x1FU, 0x80};
    if (b >= 0xE0 && b < 0xF0) return Lead{3, b & 0x0FU, 0x800};
    if (b >= 0xF0 && b < 0xF8) return Lead{4, b & 0x07U, 0x10000};
    return std::nullopt;
}

}  // namespace

char32_t toUnicode(char c) {
    const unsigned char b = byteOf(c);
    return b >= 0x80 && b < 0xA0 ? detail::page1252[b - 0x80U] : b;
}

std::optional<char> fromUnicode(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return charOf(codePoint);
    for (std::size_t i = 0; i < detail::page1252.size(); ++i)
        if (detail::page1252[i] == codePoint) return charOf(static_cast<unsigned>(0x80 + i));
    return std::nullopt;
}

std::string toUtf8(TextView text) {
    std::string out;
    out.reserve(text.size() + text.size() / 8);
    for (const char c : text) appendUtf8(out, toUnicode(c));
    return out;
}

Text fromUtf8(std::string_view utf8) {
    Text out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto codePoint = takeCodePoint(utf8);
        out += codePoint ? fromUnicode(*codePoint).value_or('?') : '?';
    }
    return out;
}

std::optional<Text> tryFromUtf8(std::string_view utf8) {
    Text out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto codePoint = takeCodePoint(utf8);
        const auto c = codePoint ? fromUnicode(*codePoint) : std::nullopt;
        if (!c) return std::nullopt;
        out += *c;
    }
    return out;
}

std::optional<char32_t> takeCodePoint(std::string_view& utf8) {
    if (utf8.empty()) return std::nullopt;
    const auto broken = [&]() -> std::optional<char32_t> {
        utf8.remove_prefix(1);
        return std::nullopt;
    };
    const auto lead = leadOf(byteOf(utf8.front()));
    if (!lead || lead->length > utf8.size()) return broken();
    char32_t codePoint = lead->bits;
    for (std::size_t i = 1; i < lead->length; ++i) {
        const unsigned char b = byteOf(utf8[i]);
        if ((b & 0xC0U) != 0x80U) return broken();
        codePoint = codePoint << 6U | (b & 0x3FU);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < lead->least || codePoint > 0x10FFFF || surrogate) return broken();
    utf8.remove_prefix(lead->length);
    return codePoint;
}

char upper(char c) {
    const unsigned char b = byteOf(c);
    if ((b >= 'a' && b <= 'z') || isSmallLatin1(b)) return charOf(b - 0x20U);
    if (b == 0x9A || b == 0x9C || b == 0x9E) return charOf(b - 0x10U);
    return b == 0xFF ? charOf(0x9F) : c;
}

char lower(char c) {
    const unsigned char b = byteOf(c);
    if ((b >= 'A' && b <= 'Z') || isCapitalLatin1(b)) return charOf(b + 0x20U);
    if (b == 0x8A || b == 0x8C || b == 0x8E) return charOf(b + 0x10U);
    return b == 0x9F ? charOf(0xFF) : c;
}

Text upper(TextView text) {
    Text out(text);
    for (char& c : out) c = upper(c);
    return out;
}

Text lower(TextView text) {
    Text out(text);
    for (char& c : out) c = lower(c);
    return out;
}

bool equalIgnoringCase(TextView a, TextView b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (upper(a[i]) != upper(b[i])) return false;
    return true;
}

std::vector<TextView> linesOf(TextView text) {
    std::vector<TextView> lines;
    for (;;) {
        const std::size_t end = text.find_first_of("\r\n");
        lines.push_back(text.substr(0, end));
        if (end == TextView::npos) return lines;
        text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
    }
}

}  // namespace zentrox
