#include "comfort/question.h"

#include <algorithm>

#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int usualWidth = 400;  // pixels
constexpr int mostWidth = 600;
constexpr int margin = 14;
constexpr int gap = 8;
constexpr Size usualButton{150, 25};

// Where everything stands, in letters of the size that message boxes have.
struct Layout {
    Size client;
    Rect text;
    Size button;
    Point yes;
    Point no;
};

Layout layOut(Platform& platform, TextView text) {
    const Font& font = platform.fonts.get(platform.boxFont());
    Layout out;
    const int width = std::min(usualWidth * platform.boxPercent / 100, mostWidth);
    const int lines = static_cast<int>(wrapText(font, text, width - 2 * margin).size());
    out.button = {std::min(usualButton.w * platform.boxPercent / 100, (width - 2 * margin - gap) / 2),
                  usualButton.h * platform.boxPercent / 100};
    out.text = {margin, margin, width - 2 * margin, lines * font.lineHeight()};
    out.client = {width, out.text.h + 3 * margin + out.button.h};
    const int top = out.client.h - margin - out.button.h;
    out.no = {width - margin - out.button.w, top};
    out.yes = {out.no.x - gap - out.button.w, top};
    return out;
}

}  // namespace

Question::Question(Platform& platform, TextView text, TextView yes, TextView no)
    : Window(platform, "Frage", "Zentrox", layOut(platform, text).client, Frame::dialog),
      text_(&root(), layOut(platform, text).text, text),
      yesButton_(&root(), {layOut(platform, text).yes, layOut(platform, text).button}, yes),
      noButton_(&root(), {layOut(platform, text).no, layOut(platform, text).button}, no) {
    text_.setFont(platform.boxFont());
    yesButton_.setFont(platform.boxFont());
    noButton_.setFont(platform.boxFont());
    yesButton_.onClick = [this] { answer(true); };
    yesButton_.setDefault(true);
    noButton_.onClick = [this] { answer(false); };
}

void Question::onKeyDown(int code) {
    if (code == key::escape) answer(false);
    if (code == key::enter) answer(focus() != &noButton_);
}

void Question::answer(bool yes) {
    yes_ = yes;
    close();
}

bool ask(Platform& platform, TextView text, TextView yes, TextView no) {
    Question question(platform, text, yes, no);
    question.showModal();
    return question.answeredYes();
}

}  // namespace zentrox
