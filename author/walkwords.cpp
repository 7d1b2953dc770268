#include "author/walkwords.h"

#include <array>

#include "platform/values/keys.h"

namespace zentrox::author {

namespace {

struct Named {
    int code;
    const char* name;
};

constexpr std::array keys{
    Named{key::enter, "enter"}, Named{key::escape, "escape"}, Named{key::tab, "tab"},
    Named{key::home, "home"},   Named{key::end, "end"},       Named{key::backspace, "backspace"},
    Named{key::del, "delete"},  Named{key::up, "up"},         Named{key::down, "down"},
    Named{key::left, "left"},   Named{key::right, "right"},   Named{key::space, "space"},
    Named{key::comma, "comma"}, Named{key::period, "period"}, Named{key::f1 + 0, "f1"},
    Named{key::f1 + 1, "f2"},   Named{key::f1 + 2, "f3"},     Named{key::f1 + 3, "f4"},
    Named{key::f1 + 4, "f5"},   Named{key::f1 + 5, "f6"},     Named{key::f1 + 6, "f7"},
    Named{key::f1 + 7, "f8"},   Named{key::f1 + 8, "f9"},     Named{key::f1 + 9, "f10"},
    Named{key::f1 + 10, "f11"}, Named{key::f1 + 11, "f12"},
};

}  // namespace

std::string inQuotes(TextView text) {
    return '"' + toUtf8(text) + '"';
}

std::string word(TextView text) {
    const bool plain = !text.empty() && text.front() != '#' && text.find_first_of(" \t\"") == TextView::npos;
    return plain ? toUtf8(text) : inQuotes(text);
}

std::string keyName(int code) {
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')) {
        const bool letter = code >= 'A';
        return std::string(1, static_cast<char>(letter ? code - 'A' + 'a' : code));
    }
    for (const Named& known : keys)
        if (known.code == code) return known.name;
    return {};
}

bool typesCharacter(int code) {
    const std::string name = keyName(code);
    return name.size() == 1 || code == key::space || code == key::comma || code == key::period;
}

}  // namespace zentrox::author
