// The window of all settings, a page for each kind. What is changed is in force at once.
#pragma once

#include <memory>
#include <vector>

#include "comfort/comforts.h"
#include "comfort/settingcontrol.h"
#include "comfort/tabs.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/label.h"
#include "platform/window/window.h"

namespace zentrox {

class SettingsWindow : public Window {
public:
    // `showKeys` shows the page of all keys.
    SettingsWindow(Comforts& comforts, std::function<void()> showKeys);

private:
    void onKeyDown(int code) override;
    void showPage(std::size_t page);
    void addActions();
    void place();
    void placeRows();
    void change();
    void moveFocus(int by);
    void asShipped();

    Comforts& comforts_;
    Settings settings_;
    std::vector<Text> pages_;
    Tabs tabs_;
    PageGround page_;
    std::vector<std::unique_ptr<Control>> rows_;  // of the page that is open
    Label hint_;
    PushButton keys_;
    PushButton reset_;
    PushButton close_;
};

}  // namespace zentrox
