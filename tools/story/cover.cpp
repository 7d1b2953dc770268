// The fewest rectangles that cover a mask. Only the largest possible rectangles matter; what is left is to choose
// the fewest of them that together hold each cell. Nearly all masks are decided by cells that only one of them
// holds; the rest is a search that is given up after a while.
#include <algorithm>
#include <bitset>
#include <map>

#include "tools/story/area.h"

namespace zentrox::story {

namespace {

constexpr std::size_t mostWork = 2000000;  // looks at a rectangle, in the search for one connected part of a mask

using Cells = std::bitset<static_cast<std::size_t>(Maskenspalten) * Maskenzeilen>;

std::size_t cellIndex(int column, int row) {
    return static_cast<std::size_t>(row * Maskenspalten + column);
}

Cells cellsOf(const Rect& rect) {
    Cells cells;
    for (int row = rect.y; row < rect.bottom(); ++row)
        for (int column = rect.x; column < rect.right(); ++column) cells.set(cellIndex(column, row));
    return cells;
}

// --- all rectangles that can't grow

bool rowIsSet(const Maske& mask, int row, int left, int right) {
    for (int column = left; column < right; ++column)
        if (!mask.at(column, row)) return false;
    return true;
}

// Those whose lower edge is below `row`, from the heights of the columns that end there.
void addRectanglesAbove(const Maske& mask, int row, const std::vector<int>& heights, std::vector<Rect>& found) {
    struct Open {
        int left;
        int height;
    };
    std::vector<Open> open;
    for (int column = 0; column <= Maskenspalten; ++column) {
        const int height = column < Maskenspalten ? heights[static_cast<std::size_t>(column)] : 0;
        int left = column;
        while (!open.empty() && open.back().height > height) {
            const Open top = open.back();
            open.pop_back();
            left = top.left;
            if (row + 1 == Maskenzeilen || !rowIsSet(mask, row + 1, top.left, column))
                found.push_back({top.left, row - top.height + 1, column - top.left, top.height});
        }
        if (height > 0 && (open.empty() || open.back().height < height)) open.push_back({left, height});
    }
}

std::vector<Rect> largestRectangles(const Maske& mask) {
    std::vector<Rect> found;
    std::vector<int> heights(Maskenspalten, 0);
    for (int row = 0; row < Maskenzeilen; ++row) {
        for (int column = 0; column < Maskenspalten; ++column) {
            int& height = heights[static_cast<std::size_t>(column)];
            height = mask.at(column, row) ? height + 1 : 0;
        }
        addRectanglesAbove(mask, row, heights, found);
    }
    return found;
}

// --- connected parts

Maske takePart(Maske& mask, int column, int row) {
    Maske part;
    std::vector<Point> todo{{column, row}};
    while (!todo.empty()) {
        const Point p = todo.back();
        todo.pop_back();
        if (!mask.at(p.x, p.y)) continue;
        mask.set(p.x, p.y, false);
        part.set(p.x, p.y, true);
        todo.insert(todo.end(), {{p.x - 1, p.y}, {p.x + 1, p.y}, {p.x, p.y - 1}, {p.x, p.y + 1}});
    }
    return part;
}

// --- the choice among them

class Cover {
public:
    explicit Cover(const std::vector<Rect>& rectangles) {
        for (const Rect& rect : rectangles) sets_.push_back(cellsOf(rect));
        gatherCells();
        dropImplied();
        std::stable_sort(cells_.begin(), cells_.end(),
                         [](const Cell& a, const Cell& b) { return a.holders.size() < b.holders.size(); });
    }

    // Indexes of the rectangles chosen.
    std::vector<std::size_t> solve() {
        Cells all;
        for (const Cell& cell : cells_) all.set(cell.index);
        search(all, 0);
        return best_;
    }

private:
    // A cell that has to be covered, and the rectangles that hold it.
    struct Cell {
        std::size_t index;
        std::vector<std::size_t> holders;
    };

    // Of cells that the same rectangles hold one is enough.
    void gatherCells() {
        std::vector<std::vector<std::size_t>> holders(Cells().size());
        for (std::size_t set = 0; set < sets_.size(); ++set)
            for (std::size_t i = 0; i < holders.size(); ++i)
                if (sets_[set][i]) holders[i].push_back(set);
        std::map<std::vector<std::size_t>, std::size_t> kinds;
        for (std::size_t i = 0; i < holders.size(); ++i)
            if (!holders[i].empty()) kinds.emplace(std::move(holders[i]), i);
        for (const auto& [held, index] : kinds) cells_.push_back({index, held});
    }

    // A cell is covered for sure with another one whose rectangles all hold it as well.
    void dropImplied() {
        std::vector<Cell> needed;
        for (const Cell& cell : cells_) {
            const bool implied = std::any_of(cells_.begin(), cells_.end(), [&](const Cell& other) {
                return other.holders.size() < cell.holders.size() &&
                       std::includes(cell.holders.begin(), cell.holders.end(), other.holders.begin(),
                                     other.holders.end());
            });
            if (!implied) needed.push_back(cell);
        }
        cells_ = std::move(needed);
    }

    // Cells of which no two lie in one rectangle: each needs its own.
    std::size_t leastFor(Cells open) {
        std::size_t count = 0;
        for (const Cell& cell : cells_) {
            if (!open[cell.index]) continue;
            ++count;
            for (const std::size_t set : cell.holders) open &= ~sets_[set];
            work_ += cell.holders.size();
        }
        return count;
    }

    // Tries the rectangles of the open cell that the fewest hold, those first that cover most.
    void search(const Cells& open, std::size_t first) {
        while (first < cells_.size() && !open[cells_[first].index]) ++first;
        if (first == cells_.size()) {
            if (best_.empty() || chosen_.size() < best_.size()) best_ = chosen_;
            return;
        }
        auto choices = cells_[first].holders;
        std::stable_sort(choices.begin(), choices.end(), [&](std::size_t a, std::size_t b) {
            return (sets_[a] & open).count() > (sets_[b] & open).count();
        });
        for (const std::size_t i : choices) {
            if (!best_.empty() && (work_ > mostWork || chosen_.size() + leastFor(open) >= best_.size())) return;
            chosen_.push_back(i);
            search(open & ~sets_[i], first + 1);
            chosen_.pop_back();
        }
    }

    std::vector<Cells> sets_;
    std::vector<Cell> cells_;
    std::vector<std::size_t> chosen_;
    std::vector<std::size_t> best_;
    std::size_t work_ = 0;
};

}  // namespace

std::vector<Rect> fewestRectangles(const Maske& mask) {
    std::vector<Rect> result;
    Maske rest = mask;
    for (int column = 0; column < Maskenspalten; ++column) {
        for (int row = 0; row < Maskenzeilen; ++row) {
            if (!rest.at(column, row)) continue;
            const Maske part = takePart(rest, column, row);
            const auto rectangles = largestRectangles(part);
            for (const std::size_t i : Cover(rectangles).solve()) result.push_back(rectangles[i]);
        }
    }
    std::sort(result.begin(), result.end(),
              [](const Rect& a, const Rect& b) { return std::pair(a.y, a.x) < std::pair(b.y, b.x); });
    return result;
}

}  // namespace zentrox::story
