// Maps and talks as the page's script takes them.
#pragma once

#include <nlohmann/json.hpp>

#include "tools/page/map.h"
#include "tools/page/talks.h"

namespace zentrox::page {

nlohmann::ordered_json asJson(const RoomMap& map);
nlohmann::ordered_json asJson(const Talk& talk);

}  // namespace zentrox::page
