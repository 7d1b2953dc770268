// The folder of a page, made of a small story and a stand-in for the engine.
#include <gtest/gtest.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/support/temp_directory.h"
#include "tools/web/pack.h"
#include "tools/web/store.h"

namespace zentrox::web {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

// 50 ms of nothing, 8000 samples a second.
std::string wave() {
    const std::string samples(400, '\x80');
    return "RIFF\xB4\x01\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1F\0\0\x40\x1F\0\0\x01\0\x08\0data\x90\x01\0\0"s +
           samples;
}

// One note of a beat, half a second.
const std::string song = "MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0\x0C\0\x90\x40\x40\x60\x80\x40\0\0\xFF\x2F\0"s;

class PagePack : public testing::Test {
protected:
    void SetUp() override {
        place.write("engine/page/index.html",
                    "<title>{{TITEL}}</title><script src=\"{{ORDNER}}/main.js\"></script>");
        place.write("engine/page/sw.js", "const version = \"{{VERSION}}\", shell = [\"{{DATEIEN}}\"];");
        place.write("engine/page/manifest.webmanifest", "{{TITEL}}");
        place.write("engine/page/ordner.html", "INHALT");
        place.write("engine/page/main.js", "play();");
        place.write("engine/zentrox.js", "engine");
        place.write("engine/zentrox.wasm", "\0asm"s);
        place.write("engine/fonts/Letters.ttf", "letters");
        place.write("story/Graphics/Hof.BMP", "BM" + std::string(9000, 'x'));
        place.write("story/graphics/tür.bmp", "BM" + std::string(9000, 'x'));
        place.write("story/sounds/Ruf.WAV", wave());
        place.write("story/saves/alt.xtc", "a saved game is no part of it");
    }

    bool make(std::string title = "Auf & <davon>") {
        out.str("");
        err.str("");
        return pack({story, {}, engine, into, std::move(title)}, out, err);
    }
    fs::path app() const { return fs::directory_iterator(into / "app")->path(); }
    nlohmann::json list() const { return nlohmann::json::parse(readAll(app() / "story.json")); }

    test::TempDirectory place;
    fs::path engine = place.path() / "engine";
    fs::path story = place.path() / "story";
    fs::path into = place.path() / "page";
    std::ostringstream out, err;
};

TEST_F(PagePack, NamesFilesByTheirContentAndKeepsThemToTheByte) {
    ASSERT_TRUE(make()) << err.str();
    const auto files = list()["files"];
    const auto hof = files.at("/spiel/Graphics/Hof.BMP");
    EXPECT_EQ(hof["u"], files.at("/spiel/graphics/tür.bmp")["u"]);
    EXPECT_EQ(hof["n"], 9002);
    EXPECT_EQ(hof["z"], 1);
    EXPECT_LT(fs::file_size(into / std::string(hof["u"])), 200U);
    const auto ruf = files.at("/spiel/sounds/Ruf.WAV");
    EXPECT_EQ(ruf["s"], 50);
    EXPECT_FALSE(ruf.contains("z"));
    EXPECT_EQ(readAll(into / std::string(ruf["u"])), wave());
    EXPECT_TRUE(files.contains("/fonts/Letters.ttf"));
    EXPECT_FALSE(files.contains("/spiel/saves/alt.xtc"));
}

TEST_F(PagePack, FillsThePageAndItsWorker) {
    ASSERT_TRUE(make());
    const std::string folder = "app/" + app().filename().string();
    EXPECT_EQ(readAll(into / "index.html"),
              "<title>Auf &amp; &lt;davon></title><script src=\"" + folder + "/main.js\"></script>");
    const std::string worker = readAll(into / "sw.js");
    EXPECT_EQ(worker.find("{{"), std::string::npos);
    for (const std::string& name : {folder + "/story.json", folder + "/engine.js", folder + "/main.js"}) {
        EXPECT_NE(worker.find('"' + name + '"'), std::string::npos) << name;
        EXPECT_TRUE(fs::exists(into / name)) << name;
    }
    EXPECT_FALSE(fs::exists(app() / "ordner.html"));
}

TEST_F(PagePack, ChangesNothingTheSecondTimeAndTheNameOfWhatChanged) {
    ASSERT_TRUE(make());
    const auto before = app();
    const auto data = into / std::string(list()["files"]["/spiel/sounds/Ruf.WAV"]["u"]);
    const auto written = fs::last_write_time(data);
    ASSERT_TRUE(make());
    EXPECT_EQ(app(), before);
    EXPECT_EQ(fs::last_write_time(data), written);
    place.write("story/Graphics/Hof.BMP", "BM another");
    ASSERT_TRUE(make());
    EXPECT_NE(app(), before);
    EXPECT_NE(list()["files"]["/spiel/Graphics/Hof.BMP"]["u"], list()["files"]["/spiel/graphics/tür.bmp"]["u"]);
}

TEST_F(PagePack, NamesAToolThatIsMissingAndMakesTheRest) {
    place.write("story/musics/Lied.mid", song);
    const std::string tools = std::getenv("PATH");
    setenv("PATH", place.path().c_str(), 1);
    const bool whole = make();
    setenv("PATH", tools.c_str(), 1);
    EXPECT_FALSE(whole);
    EXPECT_NE(err.str().find("/spiel/musics/Lied.mid: fluidsynth fehlt"), std::string::npos) << err.str();
    const auto lied = list()["files"]["/spiel/musics/Lied.mid"];
    EXPECT_EQ(lied["u"], "");
    EXPECT_EQ(lied["s"], 500);  // it is waited for all the same
}

}  // namespace
}  // namespace zentrox::web
