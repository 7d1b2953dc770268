#include "tools/story/scanner.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zentrox::story {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view commentMark = "//";
constexpr std::string_view silenceWord = "stumm:";
constexpr char32_t noBreakSpace = 0xA0;
constexpr char32_t combiningDiaeresis = 0x308;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool opensText(char c) {
    return c == '"' || c == '{';
}

std::string codePointName(char32_t c) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string name = "U+";
    for (int shift = c > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4)
        name += hex[c >> static_cast<unsigned>(shift) & 0xFU];
    return name;
}

class Scanner {
public:
    Scanner(int file, Findings& findings, std::vector<Silence>& silences, std::vector<Place>* comments)
        : file_(file),
          findings_(findings),
          silences_(silences),
          comments_(comments) {}

    std::vector<Statement> all(std::string_view utf8) {
        if (utf8.starts_with(byteOrderMark)) utf8.remove_prefix(byteOrderMark.size());
        if (isUtf16(utf8)) {
            findings_.broken(here(), "utf8",
                             "diese Datei ist als UTF-16 gespeichert; eine Quelle wird als UTF-8 gespeichert");
            return {};
        }
        while (!utf8.empty()) {
            const std::size_t end = std::min(utf8.find_first_of("\r\n"), utf8.size());
            line(utf8.substr(0, end));
            ++line_;
            const bool pair = utf8.substr(end).starts_with("\r\n");
            utf8.remove_prefix(std::min(end + (pair ? 2 : 1), utf8.size()));
        }
        return std::move(statements_);
    }

private:
    // By its mark, or by the zero beside its first letter.
    static bool isUtf16(std::string_view bytes) {
        return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
               (bytes.size() > 1 && (bytes[0] == '\0') != (bytes[1] == '\0'));
    }

    Place here() const { return {file_, line_, column_}; }

    void line(std::string_view text) {
        rest_ = text;
        column_ = 1;
        bool first = true;
        while (skipBlanks(), !rest_.empty()) {
            if (rest_.starts_with(commentMark)) {
                if (comments_) comments_->push_back(here());
                comment(rest_.substr(commentMark.size()), !first);
                return;
            }
            if (first) silencePending();
            Token token = opensText(rest_.front()) ? quotedToken() : word();
            token.end = column_;
            if (first && !(token.quoted && !statements_.empty())) statements_.emplace_back();
            statements_.back().push_back(std::move(token));
            first = false;
        }
    }

    // Blanks, and the commas that may stand between arguments.
    void skipBlanks() {
        while (!rest_.empty()) {
            if (isBlank(rest_.front()) || rest_.front() == ',')
                rest_.remove_prefix(1);
            else if (rest_.starts_with("\xC2\xA0"))
                rest_.remove_prefix(2);
            else
                return;
            ++column_;
        }
    }

    void comment(std::string_view text, bool behindStatement) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
        if (!text.starts_with(silenceWord)) return;
        text.remove_prefix(silenceWord.size());
        while (true) {
            text.remove_prefix(std::min(text.find_first_not_of(" \t,"), text.size()));
            if (text.empty()) return;
            const std::size_t end = std::min(text.find_first_of(" \t,"), text.size());
            if (behindStatement)
                silences_.push_back({file_, line_, std::string(text.substr(0, end))});
            else
                pending_.emplace_back(text.substr(0, end));
            text.remove_prefix(end);
        }
    }

    void silencePending() {
        for (std::string& code : pending_) silences_.push_back({file_, line_, std::move(code)});
        pending_.clear();
    }

    Token word() {
        Token token{false, {}, here()};
        while (!rest_.empty() && !isBlank(rest_.front()) && rest_.front() != ',' && !opensText(rest_.front()))
            if (!takeCharacter(token.value)) break;
        return token;
    }

    // Pieces in quotes and characters by their number, glued to each other.
    Token quotedToken() {
        Token token{true, {}, here()};
        bool afterQuote = false;
        while (!rest_.empty() && opensText(rest_.front())) {
            const bool quote = rest_.front() == '"';
            if (quote && afterQuote) break;
            if (!(quote ? quotedPiece(token.value) : numberedCharacter(token.value))) return token;
            afterQuote = quote;
        }
        if (rest_.empty() || isBlank(rest_.front()) || rest_.front() == ',') return token;
        if (rest_.starts_with("\xC2\xA0")) return token;
        findings_.broken(
            here(), "text",
            "hinter dem schließenden Anführungszeichen fehlt ein Leerzeichen; in einem Text stehen statt "
            "gerader Anführungszeichen „ und “");
        rest_ = {};
        return token;
    }

    bool quotedPiece(Text& out) {
        const Place start = here();
        rest_.remove_prefix(1);
        ++column_;
        while (!rest_.empty() && rest_.front() != '"') takeCharacter(out, true);
        if (rest_.empty()) {
            findings_.broken(
                start, "text",
                "dem Text fehlt das schließende Anführungszeichen; eine weitere Zeile des Textes steht "
                "in eigenen Anführungszeichen");
            return false;
        }
        rest_.remove_prefix(1);
        ++column_;
        return true;
    }

    // "{09}" is the character of that number, in hexadecimal digits.
    bool numberedCharacter(Text& out) {
        const std::size_t close = rest_.find('}');
        const std::string_view digits = rest_.substr(1, close == std::string_view::npos ? 0 : close - 1);
        unsigned value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() != 2 || error != std::errc() || end != digits.data() + digits.size()) {
            findings_.broken(here(), "text",
                             "in geschweiften Klammern steht die Nummer eines Zeichens in zwei hexadezimalen "
                             "Ziffern, wie in {09}; Blöcke haben keine Klammern");
            rest_ = {};
            return false;
        }
        out += static_cast<char>(static_cast<unsigned char>(value));
        rest_.remove_prefix(close + 1);
        column_ += static_cast<int>(close) + 1;
        return true;
    }

    // Takes one character of the line; false where it was a blank that ends a word.
    bool takeCharacter(Text& out, bool quoted = false) {
        const auto plain = static_cast<unsigned char>(rest_.front());
        if (plain >= ' ' && plain < 0x7F) {
            out += rest_.front();
            rest_.remove_prefix(1);
        } else {
            const auto codePoint = takeCodePoint(rest_);
            if (codePoint == noBreakSpace && !quoted) return false;
            out += character(codePoint, quoted);
        }
        ++column_;
        return true;
    }

    char character(std::optional<char32_t> codePoint, bool quoted) {
        if (!codePoint) {
            if (!brokenUtf8_)
                findings_.broken(here(), "utf8", "hier steht kein UTF-8; eine Quelle wird als UTF-8 gespeichert");
            brokenUtf8_ = true;
            return '?';
        }
        if (*codePoint == '\t' && quoted) return '\t';
        if (*codePoint < ' ' || *codePoint == 0x7F) {
            findings_.broken(
                here(), "zeichen",
                "das Steuerzeichen " + codePointName(*codePoint) +
                    " kann nicht in einer Quelle stehen; in einen Text kommt es als seine Nummer, wie {09}");
            return '?';
        }
        const auto c = fromUnicode(*codePoint);
        if (!c) findings_.broken(here(), "zeichen", outsideMessage(*codePoint));
        return c.value_or('?');
    }

    static std::string outsideMessage(char32_t codePoint) {
        if (codePoint == combiningDiaeresis)
            return "ein Umlaut ist hier aus zwei Zeichen zusammengesetzt (U+0308); richtig ist der Umlaut als ein "
                   "Zeichen";
        return "das Zeichen " + codePointName(codePoint) +
               " hat keinen Platz in Codepage 1252; das Spiel kennt nur deren Zeichen";
    }

    int file_;
    Findings& findings_;
    std::vector<Silence>& silences_;
    std::vector<Place>* comments_;
    std::vector<Statement> statements_;
    std::vector<std::string> pending_;  // silences on a line of their own, for the next line that says something
    std::string_view rest_;
    int line_ = 1;
    int column_ = 1;
    bool brokenUtf8_ = false;
};

}  // namespace

std::vector<Statement> scan(std::string_view utf8, int file, Findings& findings, std::vector<Silence>& silences,
                            std::vector<Place>* comments) {
    return Scanner(file, findings, silences, comments).all(utf8);
}

}  // namespace zentrox::story
