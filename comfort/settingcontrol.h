// One setting in the window: a box to tick, a slider, or a choice between two arrows, with its title before it.
#pragma once

#include <functional>

#include "comfort/settings.h"
#include "platform/window/controls/look.h"

namespace zentrox {

class Platform;

class SettingControl : public Control {
public:
    // Shows and changes what `row` names in `settings`, and calls `onChange` then. Both must outlive it.
    SettingControl(Control* parent, const Rect& area, const SettingsRow& row, Settings& settings,
                   std::function<void()> onChange);

    TextView kind() const override { return "field"; }
    Text shownText() const override;
    bool takesFocus() const override { return true; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLost() override { sliding_ = false; }
    void wheel(int lines) override { step(lines); }
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;

private:
    bool isSwitch() const { return std::holds_alternative<bool Settings::*>(row_.field); }
    bool isChoice() const { return !row_.choices.empty(); }
    bool& flag() const { return settings_.*std::get<bool Settings::*>(row_.field); }
    int& number() const { return settings_.*std::get<int Settings::*>(row_.field); }
    void setNumber(int value);
    // So many steps or choices on.
    void step(int by);
    void turn(int by);
    void slideTo(float x);
    Text valueText() const;
    const Platform& platform() const;
    const Font& font() const;
    Rect valueArea() const;  // of the slider or the choice, in its own pixels
    void paintSwitch(Bitmap& onto, Point at) const;
    void paintSlider(Bitmap& onto, Point at) const;
    void paintChoice(Bitmap& onto, Point at) const;

    const SettingsRow& row_;
    Settings& settings_;
    std::function<void()> onChange_;
    bool focused_ = false;
    bool sliding_ = false;  // the left button is held over the slider
};

}  // namespace zentrox
