// What `zentrox-story prove --json` has found, for the page.
#pragma once

#include <nlohmann/json.hpp>

#include "tools/page/reading.h"

namespace zentrox::page {

// `complete`, `states`, `endings`, `dead`, `findings`; files are numbers of the story. Throws `story::WrongCall`
// with `name` where that is no such file, or one of another story.
nlohmann::json proofOf(const std::string& json, const std::string& name, const Reading& reading);

}  // namespace zentrox::page
