// A list of lines, of which one can be chosen.
#pragma once

#include <optional>
#include <vector>

#include "platform/window/controls/scrollbar.h"

namespace zentrox {

class List : public Control {
public:
    List(Control* parent, const Rect& area);

    // A person has clicked an item, which is now the chosen one, or moved to it by a key, or has clicked below the
    // items while one is chosen.
    std::function<void()> onSelect;
    std::function<void()> onDoubleClick;  // the same place twice

    // To be called before `setItems`.
    void setFont(const FontSpec& font);
    // In the order in which they stand here; none is chosen.
    void setItems(std::vector<Text> items);
    const std::vector<Text>& items() const { return items_; }
    std::optional<std::size_t> selected() const { return selected_; }
    // The text of the chosen item, empty if there is none.
    Text selectedText() const { return selected_ ? items_[*selected_] : Text(); }
    // Chooses an item and scrolls it into view; nobody is told.
    void select(std::size_t item);
    // The item that shows at the top.
    int topItem() const { return bar_.position(); }

    TextView kind() const override { return "list"; }
    // All items, a line each.
    Text shownText() const override;
    bool shows(TextView part) const override;
    bool takesFocus() const override { return true; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLost() override;
    void wheel(int lines) override;
    bool keyDown(int code, bool shift, bool control) override;
    bool keyPress(char c) override;
    void paint(Bitmap& onto, Point at) override;

private:
    const Font& font() const { return look::fontFor(*this, font_); }
    int rowHeight() const;
    int visibleRows() const;
    std::optional<std::size_t> itemAt(Point at) const;
    void choose(std::size_t item);

    FontSpec font_;
    std::vector<Text> items_;
    std::optional<std::size_t> selected_;
    ScrollBar bar_{*this};
    bool focused_ = false;
    bool choosing_ = false;  // the left button is held over the items
    bool doubled_ = false;   // and went down for the second time
};

}  // namespace zentrox
