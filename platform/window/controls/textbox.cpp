#include "platform/window/controls/textbox.h"

#include <algorithm>

#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr int margin = 2;  // pixels between the edge and the text

}  // namespace

TextBox::TextBox(Control* parent, const Rect& area, TextView text) : TextControl(parent, area, true) {
    setText(text);
}

Rect TextBox::inside() const {
    const int around = look::edge + margin;
    return {around, around, width() - 2 * around - ScrollBar::breadth, height() - 2 * around};
}

int TextBox::visibleLines() const {
    return std::max(1, inside().h / font().lineHeight());
}

void TextBox::wrap() {
    bar_.setArea(
        {width() - look::edge - ScrollBar::breadth, look::edge, ScrollBar::breadth, height() - 2 * look::edge});
    lines_ = wrapText(font(), text(), inside().w);
    bar_.setRange(lineCount(), visibleLines());
}

void TextBox::setText(TextView text) {
    edit_.set(text);
    edit_.moveTo(0, false);
    wrap();
    bar_.setPosition(0);
}

void TextBox::append(TextView text) {
    edit_.set(this->text() + Text(text));
    wrap();
    moved();
}

TextView TextBox::lineText(std::size_t line) const {
    return TextView(text()).substr(lines_[line].begin, lines_[line].end - lines_[line].begin);
}

std::size_t TextBox::lineOf(std::size_t place) const {
    const auto behind = std::upper_bound(lines_.begin(), lines_.end(), place,
                                         [](std::size_t p, const TextLine& line) { return p < line.begin; });
    return static_cast<std::size_t>(behind - lines_.begin()) - 1;
}

int TextBox::caretX() const {
    const std::size_t line = lineOf(edit_.caret());
    return font().width(lineText(line).substr(0, edit_.caret() - lines_[line].begin));
}

std::size_t TextBox::gapAt(Point at) const {
    const int row = (at.y - inside().y - (at.y < inside().y ? font().lineHeight() : 0)) / font().lineHeight();
    const int line = std::clamp(bar_.position() + row, 0, lineCount() - 1);
    const auto index = static_cast<std::size_t>(line);
    return lines_[index].begin + nearestGap(font(), lineText(index), at.x - inside().x);
}

void TextBox::scrollToCaret() {
    const int line = static_cast<int>(lineOf(edit_.caret()));
    if (line < bar_.position()) bar_.setPosition(line);
    if (line >= bar_.position() + visibleLines()) bar_.setPosition(line - visibleLines() + 1);
}

void TextBox::moved() {
    wishedX_ = caretX();
    scrollToCaret();
    changed();
}

void TextBox::renewed() {
    wrap();
    moved();
}

void TextBox::pointerDown(const PointerEvent& event) {
    const Point at{static_cast<int>(event.x), static_cast<int>(event.y)};
    if (!bar_.area().contains(at)) return TextControl::pointerDown(event);
    if (event.button == Button::left) bar_.press(at);
}

void TextBox::pointerMove(const PointerEvent& event) {
    if (bar_.held()) return bar_.move({static_cast<int>(event.x), static_cast<int>(event.y)});
    TextControl::pointerMove(event);
}

void TextBox::pointerUp(const PointerEvent& event) {
    if (event.button == Button::left) pointerLost();
}

void TextBox::pointerLost() {
    bar_.release();
    TextControl::pointerLost();
}

void TextBox::wheel(int lines) {
    bar_.setPosition(bar_.position() - lines);
}

bool TextBox::scrollByKey(int code) {
    const int here = bar_.position();
    switch (code) {
        case key::up: bar_.setPosition(here - 1); return true;
        case key::down: bar_.setPosition(here + 1); return true;
        case key::pageUp: bar_.setPosition(here - visibleLines()); return true;
        case key::pageDown: bar_.setPosition(here + visibleLines()); return true;
        case key::home: bar_.setPosition(0); return true;
        case key::end: bar_.setPosition(lineCount()); return true;
        default: return false;
    }
}

bool TextBox::moveByLine(int code, bool shift, bool control) {
    const auto here = static_cast<int>(lineOf(edit_.caret()));
    int there = here;
    switch (code) {
        case key::up: there -= 1; break;
        case key::down: there += 1; break;
        case key::pageUp: there -= visibleLines(); break;
        case key::pageDown: there += visibleLines(); break;
        case key::home:
        case key::end: {
            if (control) return false;
            const TextLine& line = lines_[static_cast<std::size_t>(here)];
            const bool wrapped = line.end > line.begin && lineOf(line.end) != static_cast<std::size_t>(here);
            edit_.moveTo(code == key::home ? line.begin : line.end - (wrapped ? 1 : 0), shift);
            moved();
            return true;
        }
        default: return false;
    }
    const auto line = static_cast<std::size_t>(std::clamp(there, 0, lineCount() - 1));
    std::size_t gap = nearestGap(font(), lineText(line), wishedX_);
    const bool wrapped = gap > 0 && lineOf(lines_[line].begin + gap) != line;
    edit_.moveTo(lines_[line].begin + gap - (wrapped ? 1 : 0), shift);
    scrollToCaret();
    changed();
    return true;
}

bool TextBox::keyDown(int code, bool shift, bool control) {
    if (readOnly() && !shift && scrollByKey(code)) return true;
    if (moveByLine(code, shift, control)) return true;
    if (readOnly() || code != key::enter) return TextControl::keyDown(code, shift, control);
    put("\r\n");
    return true;
}

void TextBox::paint(Bitmap& onto, Point at) {
    paintGround(onto, at);
    bar_.paint(onto, at);
    const look::Clip clip(onto, {at + inside().at() - Point{1, 0}, {inside().w + 2, inside().h}});
    if (clip.empty()) return;
    const int end = std::min(lineCount(), bar_.position() + visibleLines());
    const std::size_t caretLine = lineOf(caret());
    for (int row = bar_.position(); row < end; ++row) {
        const auto line = static_cast<std::size_t>(row);
        const Point corner{at.x + inside().x, at.y + inside().y + (row - bar_.position()) * font().lineHeight()};
        paintText(onto, corner, lineText(line));
        paintSelection(onto, corner, lines_[line].begin, lineText(line));
        if (line == caretLine) paintCaret(onto, corner, lines_[line].begin, lineText(line));
    }
}

}  // namespace zentrox
