// The language of stories as editors colour it, made from the table of its words. What comes out lies in
// `editors/`.
#pragma once

#include <string>

namespace zentrox::editors {

std::string vimSyntax();
std::string textMateGrammar();  // JSON, for VS Code and others
std::string kateSyntax();       // XML, for all that KDE's highlighting serves

}  // namespace zentrox::editors
