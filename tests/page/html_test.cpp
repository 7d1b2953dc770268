#include <fstream>

#include "tests/page/page_support.h"
#include "tools/page/page.h"
#include "tools/story/inputs.h"

namespace zentrox::page::test {

namespace {

std::string between(const std::string& text, const std::string& from, const std::string& to) {
    const std::size_t begin = text.find(from) + from.size();
    return text.substr(begin, text.find(to, begin) - begin);
}

int countOf(const std::string& text, const std::string& what) {
    int count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++count;
    return count;
}

}  // namespace

TEST(Html, NothingOfTheStoryLeavesItsElement) {
    const std::string nasty = "</script><script>alert(1)</script><!-- <b> @@SCRIPT@@ \\u003c & ' $1 \xFF";
    const nlohmann::ordered_json model{{"t", nasty}, {nasty, 1}};
    const std::string page = htmlOf(model, nasty);
    const std::string plain = htmlOf(nlohmann::ordered_json{{"t", ""}}, "");
    for (const char* const tag : {"<script", "</script", "<!--", "<b>"})
        EXPECT_EQ(countOf(page, tag), countOf(plain, tag)) << tag;
    const std::string inside = between(page, "type=\"application/json\">", "</script>");
    EXPECT_EQ(nlohmann::json::parse(inside)["t"], nasty.substr(0, nasty.size() - 1) + "\xEF\xBF\xBD");
}

TEST(Html, TheDemoFitsInItsPage) {
    const auto directory = std::filesystem::path(testing::TempDir()) / "zentrox-page-test";
    std::ostringstream out;
    std::ostringstream err;
    write({{DEMO}, (directory / "page.html").string(), {}, {}, {}, {}}, out, err);
    EXPECT_NE(err.str().find("--data"), std::string::npos) << "it tells that there are no pictures";
    std::ifstream file(directory / "page.html");
    const std::string page((std::istreambuf_iterator<char>(file)), {});
    const auto model = nlohmann::json::parse(between(page, "type=\"application/json\">", "</script>"));
    EXPECT_EQ(model["title"], "Die letzte Stunde");
    EXPECT_GT(model["rooms"].size(), 8U);
    for (const auto& room : model["rooms"]) EXPECT_NE(model["files"][room["f"].get<std::size_t>()]["t"], "");
    for (const auto& section : model["sections"]) EXPECT_LE(section["l"], section["e"]);
    std::filesystem::remove_all(directory);
}

TEST(Html, WrongCallsAreTold) {
    std::ostringstream ignored;
    const auto call = [&](const Order& order) { write(order, ignored, ignored); };
    EXPECT_THROW(call({{DEMO}, "/tmp/x.html", "/nowhere", {}, {}, {}}), story::WrongCall);
    EXPECT_THROW(call({{DEMO}, "/tmp/x.html", {}, {}, {std::string(DEMO) + "/flur.story"}, {}}), story::WrongCall);
    EXPECT_THROW(call({{DEMO}, "/tmp/x.html", {}, {}, {}, std::string(DEMO) + "/flur.story"}), story::WrongCall);
    EXPECT_THROW(call({{"/nowhere"}, "/tmp/x.html", {}, {}, {}, {}}), story::WrongCall);
}

}  // namespace zentrox::page::test
