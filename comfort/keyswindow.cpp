#include "comfort/keyswindow.h"

#include <algorithm>

#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr Size whole{616, 400};
constexpr Rect pageArea{8, 8, 600, 356};
constexpr Size button{90, 25};
constexpr int inset = 8;
constexpr int labelWidth = 92;
constexpr int columns = 2;
constexpr int extraRow = 3;  // pixels between two lines

// What the game itself and its machine understand.
constexpr std::array gameLines{
    KeyLine{"", "Im Raum"_t},
    KeyLine{"linke Taste", "benutzen, nehmen, reden, hingehen"_t},
    KeyLine{"rechte Taste", "ansehen"_t},
    KeyLine{"Ziehen", "einen Gegenstand auf etwas anwenden"_t},
    KeyLine{"Leertaste", "Tasche auf und zu"_t},
    KeyLine{"eine Taste", "den Text weiter"_t},
    KeyLine{"Esc", "Film beenden"_t},
    KeyLine{"F1", "Spielstand laden"_t},
    KeyLine{"F2", "speichern"_t},
    KeyLine{"F7", "wie böse ich war, als Zahl"_t},
    KeyLine{"", "In den Spielen"_t},
    KeyLine{"Pfeile", "laufen, ducken, Schläger bewegen"_t},
    KeyLine{"Leertaste", "springen"_t},
    KeyLine{"Esc", "aufgeben"_t},
    KeyLine{"", "Überall"_t},
    KeyLine{"F11", "Vollbild und zurück (auch Alt+Enter)"_t},
    KeyLine{"F8", "anders vergrößern"_t},
};

std::vector<KeyLine> allLines(const ComfortKeys& keys) {
    std::vector<KeyLine> lines(gameLines.begin(), gameLines.end());
    for (const ComfortKey& key : keys.all())
        if (!key.does.empty() && key.group.empty()) lines.push_back({key.label, key.does});
    TextView group;
    for (const ComfortKey& key : keys.all()) {
        if (key.group.empty()) continue;
        if (key.group != group) lines.push_back({"", key.group});
        group = key.group;
        lines.push_back({key.label, key.does});
    }
    return lines;
}

}  // namespace

KeyPage::KeyPage(Control* parent, const Rect& area, std::vector<KeyLine> lines)
    : Control(parent, area),
      lines_(std::move(lines)) {}

Text KeyPage::shownText() const {
    Text all;
    for (const KeyLine& line : lines_)
        all += (all.empty() ? "" : "\n") + Text(line.label) + (line.label.empty() ? "" : ": ") + Text(line.does);
    return all;
}

void KeyPage::paint(Bitmap& onto, Point at) {
    const Rect ground{at, area().size()};
    onto.fill(ground, look::ground);
    look::sunken(onto, ground);
    const look::Clip clip(onto, look::shrunk(ground, look::edge));
    const Font& font = look::fontFor(*this);
    const FontSpec heavy{.bold = true};
    const Font& bold = look::fontFor(*this, heavy);
    const int pitch = font.lineHeight() + extraRow;
    const auto titles = std::count_if(lines_.begin(), lines_.end(), [](auto& line) { return line.label.empty(); });
    const auto fit = static_cast<std::size_t>((height() - 2 * inset) / pitch);
    const auto rows = std::min(fit, (lines_.size() + static_cast<std::size_t>(titles)) / columns + 1);
    std::size_t row = 0;
    int column = 0;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const bool title = lines_[i].label.empty();
        if (title && row > 0) ++row;
        // Nor does a title stand alone at the foot of a column.
        if (row + (title ? 2 : 0) >= rows && column + 1 < columns) {
            row = 0;
            ++column;
        }
        const Point to{at.x + inset + column * (width() / columns), at.y + inset + static_cast<int>(row) * pitch};
        (title ? bold : font).draw(onto, to, title ? lines_[i].does : lines_[i].label, look::text);
        if (!title) font.draw(onto, to + Point{labelWidth, 0}, lines_[i].does, look::text);
        ++row;
    }
}

KeysWindow::KeysWindow(Comforts& comforts)
    : Window(comforts.platform(), "Tasten", "Tasten", whole, Frame::dialog),
      page_(&root(), pageArea, allLines(comforts.keys())),
      close_(&root(), {{(whole.w - button.w) / 2, 369}, button}, "Schließen"_t) {
    close_.setDefault(true);
    close_.onClick = [this] { close(); };
}

void KeysWindow::onKeyDown(int code) {
    if (code == key::escape || code == key::f3) close();
}

}  // namespace zentrox
