// Text in memory: code page 1252, one byte a character, as the data files have it. UTF-8 stays outside,
// in file names, fonts, the window system and story sources.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentrox {

using Text = std::string;
using TextView = std::string_view;

// The Unicode code point of a character; the five unused codes of the page give themselves.
char32_t toUnicode(char c);
// The character of a code point, nothing where the page has none.
std::optional<char> fromUnicode(char32_t codePoint);

std::string toUtf8(TextView text);
// What has no place in the page, and every byte of broken UTF-8, becomes a question mark.
Text fromUtf8(std::string_view utf8);
// Nothing if a character has no place in the page or the UTF-8 is broken.
std::optional<Text> tryFromUtf8(std::string_view utf8);
// Decodes the code point at the front of `utf8` and cuts it off; nothing (and one byte cut off) where it is broken.
std::optional<char32_t> takeCodePoint(std::string_view& utf8);

// Case by the code page: "ü" becomes "Ü", "ß" stays.
char upper(char c);
char lower(char c);
Text upper(TextView text);
Text lower(TextView text);
bool equalIgnoringCase(TextView a, TextView b);

// The lines of a text, at least one. Carriage return, line feed and the pair of both each end a line; a line end at
// the very end starts one more, empty line.
std::vector<TextView> linesOf(TextView text);

namespace detail {

template <std::size_t N>
struct Utf8Literal {
    std::array<char, N> bytes{};
    consteval Utf8Literal(
        const char (&literal)[N]) {  // NOLINT(google-explicit-constructor): a literal operator needs it
        for (std::size_t i = 0; i < N; ++i) bytes[i] = literal[i];
    }
};

// Code page 1252 agrees with Latin-1 but for 0x80 to 0x9F.
constexpr std::array<char32_t, 32> page1252{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                            0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr char character1252(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<char>(codePoint);
    for (std::size_t i = 0; i < page1252.size(); ++i)
        if (page1252[i] == codePoint) return static_cast<char>(0x80 + i);
    throw "this character is not in code page 1252";
}

template <Utf8Literal L>
struct Literal1252 {
    struct Converted {
        std::array<char, L.bytes.size()> bytes{};
        std::size_t length = 0;
    };
    static constexpr Converted convert() {
        Converted out;
        for (std::size_t i = 0; i + 1 < L.bytes.size();) {
            const auto lead = static_cast<unsigned char>(L.bytes[i]);
            const std::size_t more = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : 2;
            char32_t codePoint = more == 0 ? lead : more == 1 ? lead & 0x1FU : lead & 0x0FU;
            for (std::size_t k = 1; k <= more; ++k)
                codePoint = codePoint << 6U | (static_cast<unsigned char>(L.bytes[i + k]) & 0x3FU);
            out.bytes[out.length++] = character1252(codePoint);
            i += more + 1;
        }
        return out;
    }
    static constexpr Converted value = convert();
};

}  // namespace detail

// "BÖSE"_t is the text in code page 1252, converted by the compiler.
template <detail::Utf8Literal L>
constexpr TextView operator""_t() {
    constexpr auto& converted = detail::Literal1252<L>::value;
    return {converted.bytes.data(), converted.length};
}

}  // namespace zentrox
