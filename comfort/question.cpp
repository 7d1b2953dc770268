#include "comfort/question.h"

#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int width = 400;  // pixels
constexpr int margin = 14;
constexpr int gap = 8;
constexpr Size button{150, 25};

int textHeight(Platform& platform, TextView text) {
    const Font& font = platform.fonts.get({});
    return static_cast<int>(wrapText(font, text, width - 2 * margin).size()) * font.lineHeight();
}

Size sizeFor(Platform& platform, TextView text) {
    return {width, textHeight(platform, text) + 3 * margin + button.h};
}

}  // namespace

Question::Question(Platform& platform, TextView text, TextView yes, TextView no)
    : Window(platform, "Frage", "Zentrox", sizeFor(platform, text), Frame::dialog),
      text_(&root(), {margin, margin, width - 2 * margin, textHeight(platform, text)}, text),
      yesButton_(&root(), {{width - margin - 2 * button.w - gap, client().h - margin - button.h}, button}, yes),
      noButton_(&root(), {{width - margin - button.w, client().h - margin - button.h}, button}, no) {
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
