// A question with two answers.
#pragma once

#include "platform/platform.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/label.h"

namespace zentrox {

class Question : public Window {
public:
    // The first answer is what Enter means; Escape and the close box mean the second one.
    Question(Platform& platform, TextView text, TextView yes, TextView no);

    bool answeredYes() const { return yes_; }

private:
    void onOpen() override { setFocus(&yesButton_); }
    void onKeyDown(int code) override;
    void answer(bool yes);

    Label text_;
    PushButton yesButton_;
    PushButton noButton_;
    bool yes_ = false;
};

// Shows it and waits for the answer.
bool ask(Platform& platform, TextView text, TextView yes, TextView no);

}  // namespace zentrox
