#include "tools/editors/grammars.h"

#include <array>
#include <nlohmann/json.hpp>
#include <vector>

#include "tools/story/grammar.h"
#include "tools/story/vocabulary.h"

namespace zentrox::editors {

using story::WordKind;

namespace {

using Strings = std::vector<std::string>;

// An umlaut may be spelled as two letters.
Strings spellings(TextView word) {
    Strings all{""};
    for (const char c : word) {
        const std::string own = toUtf8(TextView(&c, 1));
        const Text other = story::normalised(TextView(&c, 1));
        const std::size_t count = all.size();
        if (other.size() > 1)
            for (std::size_t i = 0; i < count; ++i)
                all.push_back(all[i] + (c == lower(c) ? other : toUtf8(upper(other))));
        for (std::size_t i = 0; i < count; ++i) all[i] += own;
    }
    return all;
}

Strings wordsOf(WordKind kind) {
    Strings words;
    for (const story::LanguageWord& word : story::languageWords())
        if (word.kind == kind)
            for (std::string& spelled : spellings(word.name)) words.push_back(std::move(spelled));
    return words;
}

Strings innerWords() {
    Strings words;
    for (const TextView word : story::innerWords())
        for (std::string& spelled : spellings(word)) words.push_back(std::move(spelled));
    return words;
}

std::string joined(const Strings& words, const char* between) {
    std::string out;
    for (const std::string& word : words) out += (out.empty() ? "" : between) + word;
    return out;
}

// The groups of words, as each editor names what they look like.
struct Group {
    WordKind kind;
    const char* name;
    const char* vim;
    const char* textMate;
    const char* kate;
};
constexpr std::array groups{
    Group{WordKind::heading, "Heading", "Structure", "keyword.declaration", "dsKeyword"},
    Group{WordKind::detail, "Detail", "Type", "storage.type", "dsDataType"},
    Group{WordKind::script, "Script", "Label", "entity.name.section", "dsImport"},
    Group{WordKind::block, "Block", "Conditional", "keyword.control", "dsControlFlow"},
    Group{WordKind::command, "Command", "Function", "support.function", "dsFunction"},
};

}  // namespace

// --- Vim

std::string vimSyntax() {
    std::string out =
        R"(" Stories of Zentrox. Made by `zentrox-story grammar vim`.
if exists('b:current_syntax')
  finish
endif

syntax case ignore
syntax sync minlines=1

syntax match zentroxNumber /\%(^\|[ \t,]\)\@1<=-\?\d\+\%(\.\d\+\)\?\ze\%([ \t,]\|$\)/
syntax match zentroxSpeaker /^[ \t]*\zs[^ \t",{/][^",{]\{-}:\ze\%([ \t]*"\|[ \t]*$\)/
)";
    out += "syntax match zentroxInner /[ \\t,]\\@1<=\\%(" + joined(innerWords(), "\\|") +
           "\\)\\ze\\%([ \\t,]\\|$\\)/\n";
    for (const Group& group : groups)
        out += std::string("syntax match zentrox") + group.name + " /^[ \\t,]*\\zs\\%(" +
               joined(wordsOf(group.kind), "\\|") + "\\)\\ze\\%([ \\t,\"{]\\|$\\)/\n";
    out +=
        R"(syntax match zentroxDetail /\%(^[ \t]*\%(Fläche\|Flaeche\)[ \t]\+\)\@<=\%(Rechteck\|Vieleck\|Maskenbild\)\ze[ \t,]/
syntax match zentroxCharacter /{\x\x}/
syntax match zentroxUnclosed /"[^"]*$/
syntax match zentroxText /"[^"]*"/ contains=zentroxColour,zentroxNoPlace
syntax match zentroxColour /"\@1<=\$[0-9A-F]/ contained
syntax match zentroxNoPlace /#/ contained
syntax match zentroxComment +\%(^\|[ \t,]\)\@1<=//.*$+ contains=zentroxSilence,zentroxTodo,@Spell
syntax match zentroxSilence /stumm:[ \t]*[a-z0-9, \t-]*/ contained
syntax keyword zentroxTodo TODO FIXME XXX contained

highlight default link zentroxNumber Number
highlight default link zentroxSpeaker Identifier
highlight default link zentroxInner Operator
highlight default link zentroxCharacter SpecialChar
highlight default link zentroxUnclosed Error
highlight default link zentroxText String
highlight default link zentroxColour Special
highlight default link zentroxNoPlace Error
highlight default link zentroxComment Comment
highlight default link zentroxSilence SpecialComment
highlight default link zentroxTodo Todo
)";
    for (const Group& group : groups)
        out += std::string("highlight default link zentrox") + group.name + " " + group.vim + "\n";
    return out + "\nlet b:current_syntax = 'zentrox'\n";
}

// --- TextMate

std::string textMateGrammar() {
    using Json = nlohmann::ordered_json;
    const auto scope = [](const std::string& name) { return name + ".zentrox-story"; };
    const auto rule = [&](const std::string& match, const std::string& name) {
        return Json{{"match", match}, {"name", scope(name)}};
    };
    Json patterns = Json::array();
    patterns.push_back({{"match", "(?<![^\\s,])(//)(.*)$"},
                        {"name", scope("comment.line.double-slash")},
                        {"captures", {{"1", {{"name", scope("punctuation.definition.comment")}}}}}});
    patterns.push_back({{"match", "\"([^\"]*)\""},
                        {"name", scope("string.quoted.double")},
                        {"captures",
                         {{"1",
                           {{"patterns", Json::array({rule("(?<=\")\\$[0-9A-Fa-f]", "constant.other.colour"),
                                                      rule("#", "invalid.illegal")})}}}}}});
    patterns.push_back(rule("\"[^\"]*$", "invalid.illegal.unclosed"));
    patterns.push_back(rule("\\{[0-9A-Fa-f]{2}\\}", "constant.character.escape"));
    for (const Group& group : groups)
        patterns.push_back(
            {{"match", "(?i)^\\x{FEFF}?[ \\t,]*(" + joined(wordsOf(group.kind), "|") + ")(?=[\\s,\"{]|$)"},
             {"captures", {{"1", {{"name", scope(group.textMate)}}}}}});
    patterns.push_back(rule("(?i)(?<=\\s)(?:Rechteck|Vieleck|Maskenbild)(?=[\\s,]+[-0-9\"])", "storage.type"));
    patterns.push_back(rule("^[ \\t]*[^\\s\",{/][^\",{]*?:(?=\\s*\"|\\s*$)", "entity.name.type.person"));
    patterns.push_back(
        rule("(?i)(?<=[\\s,])(?:" + joined(innerWords(), "|") + ")(?=[\\s,]|$)", "keyword.operator.word"));
    patterns.push_back(rule("(?<=[\\s,])-?[0-9]+(?:\\.[0-9]+)?(?=[\\s,]|$)", "constant.numeric"));
    const Json grammar{{"information_for_contributors", Json::array({"Made by `zentrox-story grammar vscode`."})},
                       {"name", "Zentrox-Geschichte"},
                       {"scopeName", "source.zentrox-story"},
                       {"fileTypes", Json::array({"story"})},
                       {"patterns", patterns}};
    return grammar.dump(2) + "\n";
}

// --- Kate

namespace {

std::string kateList(const std::string& name, const Strings& words) {
    std::string out = "    <list name=\"" + name + "\">\n";
    for (const std::string& word : words) out += "      <item>" + word + "</item>\n";
    return out + "    </list>\n";
}

}  // namespace

std::string kateSyntax() {
    std::string out = R"xml(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE language>
<!-- Made by `zentrox-story grammar kate`. -->
<language name="Zentrox-Geschichte" section="Sources" extensions="*.story" version="1" kateversion="5.62" casesensitive="0">
  <highlighting>
)xml";
    for (const Group& group : groups) out += kateList(group.name, wordsOf(group.kind));
    out += kateList("Inner", innerWords());
    out += R"xml(    <contexts>
      <context name="Line" attribute="Normal" lineEndContext="#stay">
)xml";
    for (const Group& group : groups)
        out += std::string("        <keyword attribute=\"") + group.name + "\" context=\"Arguments\" String=\"" +
               group.name + "\" firstNonSpace=\"true\"/>\n";
    out +=
        R"xml(        <RegExpr attribute="Speaker" context="Arguments" String="[^\s&quot;,{/][^&quot;,{]*:(?=\s*&quot;|\s*$)" firstNonSpace="true"/>
        <IncludeRules context="Anywhere"/>
      </context>
      <context name="Arguments" attribute="Normal" lineEndContext="#pop">
        <keyword attribute="Inner" context="#stay" String="Inner"/>
        <RegExpr attribute="Detail" context="#stay" String="\b(?:Rechteck|Vieleck|Maskenbild)(?=[\s,])" insensitive="true"/>
        <RegExpr attribute="Number" context="#stay" String="(?&lt;=[\s,])-?[0-9]+(?:\.[0-9]+)?(?=[\s,]|$)"/>
        <IncludeRules context="Anywhere"/>
      </context>
      <context name="Anywhere" attribute="Normal" lineEndContext="#stay">
        <RegExpr attribute="Comment" context="Comment" String="(?&lt;![^\s,])//" />
        <RegExpr attribute="Colour" context="Text" String="&quot;\$[0-9A-Fa-f](?=[^&quot;]*&quot;)"/>
        <RegExpr attribute="Text" context="Text" String="&quot;(?=[^&quot;]*&quot;)"/>
        <RegExpr attribute="Error" context="#stay" String="&quot;[^&quot;]*$"/>
        <RegExpr attribute="Character" context="#stay" String="\{[0-9A-Fa-f]{2}\}"/>
      </context>
      <context name="Text" attribute="Text" lineEndContext="#pop">
        <DetectChar attribute="Error" context="#stay" char="#"/>
        <DetectChar attribute="Text" context="#pop" char="&quot;"/>
      </context>
      <context name="Comment" attribute="Comment" lineEndContext="#pop">
        <IncludeRules context="##Comments"/>
      </context>
    </contexts>
    <itemDatas>
      <itemData name="Normal" defStyleNum="dsNormal"/>
      <itemData name="Comment" defStyleNum="dsComment"/>
      <itemData name="Text" defStyleNum="dsString" spellChecking="true"/>
      <itemData name="Colour" defStyleNum="dsSpecialString"/>
      <itemData name="Character" defStyleNum="dsSpecialChar"/>
      <itemData name="Number" defStyleNum="dsDecVal"/>
      <itemData name="Inner" defStyleNum="dsOperator"/>
      <itemData name="Speaker" defStyleNum="dsVariable"/>
      <itemData name="Error" defStyleNum="dsError"/>
)xml";
    for (const Group& group : groups)
        out += std::string("      <itemData name=\"") + group.name + "\" defStyleNum=\"" + group.kate + "\"/>\n";
    return out + R"xml(    </itemDatas>
  </highlighting>
  <general>
    <comments>
      <comment name="singleLine" start="//" position="afterwhitespace"/>
    </comments>
    <keywords casesensitive="0"/>
  </general>
</language>
)xml";
}

}  // namespace zentrox::editors
