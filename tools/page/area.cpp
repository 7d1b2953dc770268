#include <sstream>

#include "tools/page/model.h"

namespace zentrox::page {

namespace {

// The edges between what is inside and what is not, those in a row as one.
class Outline {
public:
    explicit Outline(const Maske& mask) : mask_(mask) {
        for (int line = 0; line <= Maskenzeilen; ++line)
            edges(Maskenspalten, true, line, [&](int at) { return mask_.at(at, line - 1) != mask_.at(at, line); });
        for (int line = 0; line <= Maskenspalten; ++line)
            edges(Maskenzeilen, false, line, [&](int at) { return mask_.at(line - 1, at) != mask_.at(line, at); });
    }
    std::string text() const { return out_.str(); }

private:
    template <typename Is>
    void edges(int count, bool across, int line, const Is& is) {
        for (int at = 0; at < count; ++at) {
            if (!is(at)) continue;
            const int begin = at;
            while (at < count && is(at)) ++at;
            const int fixed = line * Maskenzelle;
            if (across)
                out_ << "M" << begin * Maskenzelle << " " << fixed << "H" << at * Maskenzelle;
            else
                out_ << "M" << fixed << " " << begin * Maskenzelle << "V" << at * Maskenzelle;
        }
    }

    const Maske& mask_;
    std::ostringstream out_;
};

}  // namespace

AreaPaths pathsOf(const Maske& mask) {
    std::ostringstream inside;
    for (int row = 0; row < Maskenzeilen; ++row)
        for (int column = 0; column < Maskenspalten; ++column) {
            if (!mask.at(column, row)) continue;
            const int begin = column;
            while (mask.at(column, row)) ++column;
            inside << "M" << begin * Maskenzelle << " " << row * Maskenzelle << "H" << column * Maskenzelle << "v"
                   << Maskenzelle << "H" << begin * Maskenzelle << "z";
        }
    return {inside.str(), Outline(mask).text()};
}

}  // namespace zentrox::page
