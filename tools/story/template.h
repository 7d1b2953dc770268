// The files of a fresh story, as they lie in `tools/story/template`.
#pragma once

#include <span>
#include <string_view>

namespace zentrox::story {

struct TemplateFile {
    const char* path;  // below the story's directory
    std::string_view text;
};

std::span<const TemplateFile> templateFiles();

}  // namespace zentrox::story
