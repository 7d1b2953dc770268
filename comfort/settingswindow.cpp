#include "comfort/settingswindow.h"

#include <algorithm>

#include "comfort/letters.h"
#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int edge = 6;  // pixels
constexpr int inset = 10;
constexpr Point firstRow{10, 12};
constexpr int rowGap = 4;
constexpr int actionGap = 10;  // pixels below the settings
constexpr TextView hint = "Pfeile ändern und gehen von Zeile zu Zeile, Bild auf und ab blättern."_t;

// Where everything stands; heights grow less than the letters.
struct Layout {
    Size client;
    Rect tabs;
    Rect page;
    Size row;
    Rect hint;
    int buttonTop = 0;
    int buttonHeight = 0;
};

Layout layOut(const Platform& platform) {
    const Font& font = platform.fonts.get(platform.boxFont());
    Layout out;
    out.client.w = std::min(420 * platform.boxPercent / 100, 616);
    const int inner = out.client.w - 2 * edge;
    out.tabs = {edge, edge, inner, grown(platform, 24, 40)};
    out.page = {edge, out.tabs.bottom(), inner, grown(platform, 224, 278)};
    out.row = {inner - 18, grown(platform, 22, 34)};
    const auto lines = static_cast<int>(wrapText(font, hint, out.client.w - 2 * inset).size());
    out.hint = {inset, out.page.bottom() + edge, out.client.w - 2 * inset, std::max(16, lines * font.lineHeight())};
    out.buttonTop = out.hint.bottom() + edge;
    out.buttonHeight = grown(platform, 25, 38);
    out.client.h = out.buttonTop + out.buttonHeight + 7;
    return out;
}

std::vector<Text> pagesOf(std::span<const SettingsRow> rows) {
    std::vector<Text> pages;
    for (const SettingsRow& row : rows)
        if (row.shown && std::find(pages.begin(), pages.end(), row.page) == pages.end())
            pages.emplace_back(row.page);
    return pages;
}

}  // namespace

SettingsWindow::SettingsWindow(Comforts& comforts, std::function<void()> showKeys)
    : Window(comforts.platform(), "Einstellungen", "Einstellungen", layOut(comforts.platform()).client,
             Frame::dialog),
      comforts_(comforts),
      settings_(comforts.settings()),
      pages_(pagesOf(settingsRows())),
      tabs_(&root(), {}, pages_, [this](std::size_t page) { showPage(page); }),
      page_(&root(), {}),
      hint_(&root(), {}, hint),
      keys_(&root(), {}, "Alle Tasten (F3)"_t),
      reset_(&root(), {}, "Seite zurücksetzen"_t),
      close_(&root(), {}, "Schließen"_t) {
    keys_.onClick = std::move(showKeys);
    reset_.onClick = [this] { asShipped(); };
    close_.onClick = [this] { close(); };
    close_.setDefault(true);
    place();
    showPage(0);
}

// Anew where the letters have become others.
void SettingsWindow::place() {
    const Layout layout = layOut(platform());
    resizeClient(layout.client);
    tabs_.setArea(layout.tabs);
    page_.setArea(layout.page);
    hint_.setArea(layout.hint);
    hint_.setFont(platform().boxFont());
    const Font& font = platform().fonts.get(platform().boxFont());
    int gaps = layout.client.w - 2 * inset;
    for (PushButton* const one : {&keys_, &reset_, &close_}) {
        const Size size{std::max(118, font.width(one->caption()) + 12), layout.buttonHeight};
        one->setFont(platform().boxFont());
        one->setArea({{0, layout.buttonTop}, size});
        gaps -= size.w;
    }
    keys_.moveTo({inset, layout.buttonTop});
    reset_.moveTo({keys_.area().right() + gaps / 2, layout.buttonTop});
    close_.moveTo({layout.client.w - inset - close_.width(), layout.buttonTop});
    placeRows();
    root().changed();
}

void SettingsWindow::placeRows() {
    const Layout layout = layOut(platform());
    Point at = firstRow;
    for (const auto& one : rows_) {
        if (auto* const action = dynamic_cast<PushButton*>(one.get())) {
            const Font& font = platform().fonts.get(platform().boxFont());
            action->setFont(platform().boxFont());
            action->setArea({at + Point{0, actionGap},
                             {std::max(230, font.width(action->caption()) + 20), layout.buttonHeight}});
        } else {
            one->setArea({at, layout.row});
        }
        at.y += layout.row.h + rowGap;
    }
}

void SettingsWindow::showPage(std::size_t page) {
    rows_.clear();
    for (const SettingsRow& row : settingsRows())
        if (row.shown && row.page == pages_[page])
            rows_.push_back(std::make_unique<SettingControl>(&page_, Rect{}, row, settings_, [this] { change(); }));
    if (page == 0) addActions();
    placeRows();
    if (focus() == nullptr) setFocus(rows_.front().get());
    page_.changed();
}

void SettingsWindow::addActions() {
    for (const SettingsAction& action : comforts_.actions()) {
        if (!action.available()) continue;
        auto one = std::make_unique<PushButton>(&page_, Rect{}, action.title);
        one->onClick = [this, does = action.does] {
            close();
            does();
        };
        rows_.push_back(std::move(one));
    }
}

void SettingsWindow::change() {
    const int before = platform().boxPercent;
    comforts_.change(settings_);
    if (platform().boxPercent != before) place();
}

void SettingsWindow::asShipped() {
    const Settings shipped;
    for (const SettingsRow& row : settingsRows()) {
        if (row.page != pages_[tabs_.page()]) continue;
        std::visit([&](auto field) { settings_.*field = shipped.*field; }, row.field);
    }
    change();
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
