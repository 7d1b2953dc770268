#include "comfort/settingswindow.h"

#include <algorithm>

#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr Size whole{420, 314};
constexpr Rect tabsArea{6, 6, 408, 24};
constexpr Rect pageArea{6, 30, 408, 224};
constexpr Size rowSize{390, 22};
constexpr int rowPitch = 26;
constexpr Point firstRow{10, 12};
constexpr Size button{118, 25};
constexpr int buttonTop = 282;
constexpr int actionWidth = 230;
constexpr int actionGap = 10;  // pixels below the settings

std::vector<Text> pagesOf(std::span<const SettingsRow> rows) {
    std::vector<Text> pages;
    for (const SettingsRow& row : rows)
        if (row.shown && std::find(pages.begin(), pages.end(), row.page) == pages.end())
            pages.emplace_back(row.page);
    return pages;
}

}  // namespace

SettingsWindow::SettingsWindow(Comforts& comforts, std::function<void()> showKeys)
    : Window(comforts.platform(), "Einstellungen", "Einstellungen", whole, Frame::dialog),
      comforts_(comforts),
      settings_(comforts.settings()),
      pages_(pagesOf(settingsRows())),
      tabs_(&root(), tabsArea, pages_, [this](std::size_t page) { showPage(page); }),
      page_(&root(), pageArea),
      hint_(&root(), {10, 260, 400, 16}, "Pfeile ändern und gehen von Zeile zu Zeile, Bild auf und ab blättern."_t),
      keys_(&root(), {{10, buttonTop}, button}, "Alle Tasten (F3)"_t),
      reset_(&root(), {{151, buttonTop}, button}, "Seite zurücksetzen"_t),
      close_(&root(), {{292, buttonTop}, button}, "Schließen"_t) {
    keys_.onClick = std::move(showKeys);
    reset_.onClick = [this] { asShipped(); };
    close_.onClick = [this] { close(); };
    close_.setDefault(true);
    showPage(0);
}

void SettingsWindow::showPage(std::size_t page) {
    rows_.clear();
    Point at = firstRow;
    for (const SettingsRow& row : settingsRows()) {
        if (!row.shown || row.page != pages_[page]) continue;
        rows_.push_back(std::make_unique<SettingControl>(&page_, Rect{at, rowSize}, row, settings_,
                                                         [this] { comforts_.change(settings_); }));
        at.y += rowPitch;
    }
    if (page == 0) addActions(at);
    if (focus() == nullptr) setFocus(rows_.front().get());
    page_.changed();
}

void SettingsWindow::addActions(Point at) {
    for (const SettingsAction& action : comforts_.actions()) {
        if (!action.available()) continue;
        auto one = std::make_unique<PushButton>(&page_, Rect{at + Point{0, actionGap}, {actionWidth, button.h}},
                                                action.title);
        one->onClick = [this, does = action.does] {
            close();
            does();
        };
        rows_.push_back(std::move(one));
        at.y += rowPitch;
    }
}

void SettingsWindow::asShipped() {
    const Settings shipped;
    for (const SettingsRow& row : settingsRows()) {
        if (row.page != pages_[tabs_.page()]) continue;
        std::visit([&](auto field) { settings_.*field = shipped.*field; }, row.field);
    }
    comforts_.change(settings_);
    page_.changed();
}

void SettingsWindow::moveFocus(int by) {
    const auto here =
        std::find_if(rows_.begin(), rows_.end(), [this](const auto& row) { return row.get() == focus(); });
    const auto count = static_cast<int>(rows_.size());
    const int from = here == rows_.end() ? (by > 0 ? -1 : count) : static_cast<int>(here - rows_.begin());
    const int to = from + by;
    if (to < 0) return setFocus(&tabs_);
    if (to >= count) return setFocus(&close_);
    setFocus(rows_[static_cast<std::size_t>(to)].get());
}

void SettingsWindow::onKeyDown(int code) {
    switch (code) {
        case key::escape:
        case key::f10: return close();
        case key::up: return moveFocus(-1);
        case key::down: return moveFocus(1);
        case key::pageUp: return tabs_.turn(-1);
        case key::pageDown: return tabs_.turn(1);
        default: return;
    }
}

}  // namespace zentrox
