// What was said last, to be read and heard again.
#pragma once

#include "comfort/history.h"
#include "platform/machine/sound.h"
#include "platform/platform.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/scrollbar.h"

namespace zentrox {

// The texts as they stood in the band, in their colours, the latest at the end. One that was spoken is spoken again
// by a click.
class SpokenList : public Control {
public:
    SpokenList(Control* parent, const Rect& area, const History& history, const FontSpec& font);

    std::function<void(const Spoken& spoken)> onSay;

    TextView kind() const override { return "list"; }
    Text shownText() const override;
    bool shows(TextView part) const override { return shownText().find(part) != Text::npos; }
    bool takesFocus() const override { return true; }
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLost() override { bar_.release(); }
    void wheel(int lines) override { bar_.setPosition(bar_.position() - lines); }
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;
    // It shows the end.
    bool atEnd() const { return bar_.position() + page() >= static_cast<int>(rows_.size()); }

private:
    // A line as it is shown; the gap behind a text has none.
    struct Row {
        const Spoken* spoken = nullptr;
        int colour = 15;
        Text text;
    };

    const Font& font() const { return look::fontFor(*this, fontSpec_); }
    int page() const;
    const Spoken* spokenAt(Point at) const;
    void addRows(const Spoken& spoken);

    FontSpec fontSpec_;
    std::vector<Row> rows_;
    ScrollBar bar_{*this};
    const Spoken* pointed_ = nullptr;  // under the pointer, and spoken
};

class HistoryWindow : public Window {
public:
    // `history` must not change while it stands.
    HistoryWindow(Platform& platform, const History& history, const FontSpec& font);
    ~HistoryWindow() override { hush(); }

private:
    void onOpen() override { setFocus(&list_); }
    void onKeyDown(int code) override;
    void say(const Spoken& spoken);
    void hush();

    SpokenList list_;
    PushButton close_;
    SoundHandle voice_ = 0;
};

}  // namespace zentrox
