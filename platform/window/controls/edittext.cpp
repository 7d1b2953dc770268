#include "platform/window/controls/edittext.h"

#include <algorithm>
#include <cctype>

#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr TextView lineEnd = "\r\n";

enum class Sort { blank, letter, other };

Sort sortOf(char c) {
    const auto code = static_cast<unsigned char>(c);
    if (code <= ' ' || code == 0xA0) return Sort::blank;
    return std::isalnum(code) != 0 || code >= 0xC0 || c == '_' ? Sort::letter : Sort::other;
}

// What of `text` can stand in a text with or without lines.
Text cleaned(TextView text, bool lines) {
    Text out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            if (!lines) return out;
            out += lineEnd;
            if (text.substr(i, 2) == lineEnd) ++i;
        } else if (c == '\t') {
            out += ' ';
        } else if (isPrintable(c)) {
            out += c;
        }
    }
    return out;
}

}  // namespace

bool isPrintable(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code >= 32 && code != 127;
}

void EditText::set(TextView text) {
    text_ = cleaned(text, lines_);
    caret_ = anchor_ = text_.size();
}

void EditText::moveTo(std::size_t place, bool extend) {
    caret_ = std::min(place, text_.size());
    if (caret_ > 0 && caret_ < text_.size() && text_[caret_ - 1] == '\r') --caret_;
    if (!extend) anchor_ = caret_;
}

void EditText::selectAll() {
    anchor_ = 0;
    caret_ = text_.size();
}

void EditText::selectWord(std::size_t place) {
    if (text_.empty()) return;
    const std::size_t at = std::min(place, text_.size() - 1);
    const Sort sort = sortOf(text_[at]);
    anchor_ = at;
    while (anchor_ > 0 && sortOf(text_[anchor_ - 1]) == sort) --anchor_;
    caret_ = at;
    while (caret_ < text_.size() && sortOf(text_[caret_]) == sort) ++caret_;
}

std::size_t EditText::before(std::size_t place) const {
    if (place == 0) return 0;
    return place >= 2 && text_.compare(place - 2, 2, lineEnd) == 0 ? place - 2 : place - 1;
}

std::size_t EditText::behind(std::size_t place) const {
    if (place >= text_.size()) return text_.size();
    return text_.compare(place, 2, lineEnd) == 0 ? place + 2 : place + 1;
}

std::size_t EditText::wordBefore(std::size_t place) const {
    while (place > 0 && sortOf(text_[place - 1]) == Sort::blank) --place;
    if (place == 0) return 0;
    const Sort sort = sortOf(text_[place - 1]);
    while (place > 0 && sortOf(text_[place - 1]) == sort) --place;
    return place;
}

std::size_t EditText::wordBehind(std::size_t place) const {
    if (place >= text_.size()) return text_.size();
    const Sort sort = sortOf(text_[place]);
    while (place < text_.size() && sortOf(text_[place]) == sort) ++place;
    while (place < text_.size() && sortOf(text_[place]) == Sort::blank) ++place;
    return place;
}

bool EditText::insert(TextView text) {
    Text piece = cleaned(text, lines_);
    const std::size_t selectedCount = selectionEnd() - selectionBegin();
    if (maximum_ > 0) {
        const std::size_t kept = text_.size() - selectedCount;
        piece.resize(std::min(piece.size(), maximum_ - std::min(maximum_, kept)));
    }
    if (piece.empty()) return false;
    const std::size_t begin = selectionBegin();
    text_.replace(begin, selectedCount, piece);
    caret_ = anchor_ = begin + piece.size();
    return true;
}

bool EditText::erase(std::size_t place) {
    if (anchor_ == caret_) anchor_ = std::min(place, text_.size());
    if (anchor_ == caret_) return false;
    const std::size_t begin = selectionBegin();
    text_.erase(begin, selectionEnd() - begin);
    caret_ = anchor_ = begin;
    return true;
}

EditText::Answer EditText::move(int code, bool shift, bool control) {
    const bool collapses = !shift && !control && anchor_ != caret_;
    switch (code) {
        case key::left:
            moveTo(collapses ? selectionBegin() : control ? wordBefore(caret_) : before(caret_), shift);
            break;
        case key::right:
            moveTo(collapses ? selectionEnd() : control ? wordBehind(caret_) : behind(caret_), shift);
            break;
        case key::home: moveTo(0, shift); break;
        case key::end: moveTo(text_.size(), shift); break;
        default: return Answer::unused;
    }
    return Answer::moved;
}

EditText::Answer EditText::deleting(int code, bool control) {
    const auto eraseTo = [this](std::size_t to) { return erase(to) ? Answer::changed : Answer::moved; };
    if (code == key::backspace) return eraseTo(control ? wordBefore(caret_) : before(caret_));
    if (code == key::del) return eraseTo(control ? wordBehind(caret_) : behind(caret_));
    return Answer::unused;
}

EditText::Answer EditText::clipboard(Backend& backend, int code, bool shift, bool control, bool readOnly) {
    const bool copies = control && (code == 'C' || code == key::insert);
    const bool cuts = (control && code == 'X') || (shift && !control && code == key::del);
    const bool pastes = (control && code == 'V') || (shift && !control && code == key::insert);
    if (!copies && !cuts && !pastes) return Answer::unused;
    if ((copies || cuts) && !selected().empty()) backend.setClipboard(toUtf8(selected()));
    if (readOnly || copies) return Answer::moved;
    if (cuts) return !selected().empty() && erase(caret_) ? Answer::changed : Answer::moved;
    return insert(fromUtf8(backend.clipboard())) ? Answer::changed : Answer::moved;
}

EditText::Answer EditText::key(Backend& backend, int code, bool shift, bool control, bool readOnly) {
    if (control && code == 'A') {
        selectAll();
        return Answer::moved;
    }
    if (const Answer answer = clipboard(backend, code, shift, control, readOnly); answer != Answer::unused)
        return answer;
    if (const Answer answer = move(code, shift, control); answer != Answer::unused) return answer;
    return readOnly ? Answer::unused : deleting(code, control);
}

}  // namespace zentrox
