// Puts the line of an area into a source, at the object that it belongs to; all else stays as it is written.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/values/geometry.h"

namespace zentrox::author {

// "Rechteck 1 2 3 4", its corners in any order.
std::string rectangleLine(Point a, Point b);
// "Vieleck 1 2, 3 4, 5 6"
std::string polygonLine(const std::vector<Point>& corners);

// `source` with the area of the object that begins in `objectLine`, counted from 1: the new line in place of those
// that stand there, or behind them. An object without `Fläche` gets one. Nothing if no object begins in that line.
std::optional<std::string> withArea(const std::string& source, int objectLine, const std::string& areaLine,
                                    bool further);

}  // namespace zentrox::author
