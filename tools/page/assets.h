// What the page is made of besides the story, as it lies in `tools/page/web`.
#pragma once

#include "tools/story/template.h"

namespace zentrox::story {

std::span<const TemplateFile> pageFiles();

}  // namespace zentrox::story
