#include "tools/web/pack.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <nlohmann/json.hpp>
#include <set>
#include <thread>

#include "engine/files/titeldatei.h"
#include "platform/machine/replace_file.h"
#include "platform/values/text.h"
#include "tools/story/build.h"
#include "tools/web/gather.h"
#include "tools/web/media.h"
#include "tools/web/rooms.h"
#include "tools/web/store.h"

namespace zentrox::web {

namespace fs = std::filesystem;
using Json = nlohmann::json;

namespace {

constexpr const char* dataFolder = "data";
// Goes into the names of converted files: to be raised when they are made another way.
constexpr const char* conversion = "1";

// What replaces these words in the files of the page.
using Words = std::map<std::string, std::string>;

std::string filled(std::string text, const Words& words) {
    for (const auto& [word, value] : words)
        for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos; at += value.size())
            text.replace(at, word.size(), value);
    return text;
}

std::string asHtml(const std::string& text) {
    return filled(text, {{"&", "&amp;"}, {"<", "&lt;"}, {"\"", "&quot;"}});
}

// All files of the story and what the page is told of each.
class Packer {
public:
    Packer(const Order& order, std::ostream& out, std::ostream& err)
        : order_(order),
          out_(out),
          err_(err),
          store_(order.into) {}

    bool all() {
        std::vector<StoryFile> files = gather(order_.story, storyRoot);
        for (std::size_t i = 0; i < order_.discs.size(); ++i)
            for (StoryFile& file : gather(order_.discs[i], discRoot(i))) files.push_back(std::move(file));
        addAll(files);
        for (const StoryFile& font : gather(order_.engine / "fonts", "/fonts")) files_[font.path] = plain(font);
        for (const StoryFile& file : files)
            if (isForShow(file)) show(file);
        writePage();
        return whole_;
    }

private:
    // Sounds and films take seconds each: as many at a time as there are processors.
    void addAll(const std::vector<StoryFile>& files) {
        out_ << files.size() << " Dateien der Geschichte\n" << std::flush;
        std::atomic<std::size_t> next = 0;
        const auto work = [&] {
            for (std::size_t i = next++; i < files.size(); i = next++) add(files[i]);
        };
        std::vector<std::thread> helpers;
        for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i) helpers.emplace_back(work);
        work();
        for (std::thread& helper : helpers) helper.join();
    }

    void add(const StoryFile& file) {
        const MediaFacts facts = mediaFacts(file.file);
        Json entry;
        try {
            entry = facts.kind == Media::none ? plain(file) : media(file, facts);
        } catch (const std::runtime_error& error) {
            complain(file.path + ": " + error.what());
            entry = Json{{"u", ""}, {"n", 0}};
        }
        if (facts.sound > 0) entry["s"] = facts.sound;
        if (facts.film > 0) entry["f"] = facts.film;
        const std::lock_guard lock(mutex_);
        files_[file.path] = entry;
    }

    // One decoder after the other: its libraries are not asked to work in two threads.
    MediaFacts mediaFacts(const fs::path& file) {
        const std::lock_guard lock(mutex_);
        return factsOf(file);
    }

    Json plain(const StoryFile& file) {
        const std::string bytes = readAll(file.file);
        if (bytes.empty()) return {{"u", ""}, {"n", 0}};
        const Stored stored = store_.keep(dataFolder, bytes);
        Json entry{{"u", stored.url}, {"n", bytes.size()}, {"k", stored.bytes}};
        if (stored.packed) entry["z"] = 1;
        return entry;
    }

    Json media(const StoryFile& file, const MediaFacts& facts) {
        const std::string bytes = readAll(file.file);
        const std::string extension = facts.playable ? lower(file.file.extension().string()) : "";
        const std::string url = std::string(dataFolder) + "/" +
                                nameFor(facts.playable ? bytes : bytes + conversion) +
                                (facts.playable ? extension : std::string(".") + extensionOf(facts.kind));
        const fs::path target = store_.place(url);
        if (facts.playable) {
            story::writeIfChanged(target, bytes);
        } else if (claim(url) && !fs::exists(target)) {
            fs::create_directories(target.parent_path());
            fs::path beside = target.parent_path() / ("neu-" + target.filename().string());
            convert(file.file, facts, musics(), beside);
            placeFile(beside, target);
            say(file.path);
        }
        return {{"u", url}, {"n", bytes.size()}, {"k", fs::exists(target) ? fs::file_size(target) : 0}};
    }

    // The same song may lie on the disc as well.
    bool claim(const std::string& url) {
        const std::lock_guard lock(mutex_);
        return claimed_.insert(url).second;
    }
    fs::path musics() const {
        for (const char* name : {"musics", "Musics"})
            if (fs::exists(order_.story / name)) return order_.story / name;
        return order_.story;
    }
    void say(const std::string& text) {
        const std::lock_guard lock(mutex_);
        out_ << "  " << text << "\n" << std::flush;
    }
    void complain(const std::string& text) {
        const std::lock_guard lock(mutex_);
        err_ << "zentrox-story: " << text << "\n";
        whole_ = false;
    }

    // --- what a disc holds beside the game: pages, pictures and films that a browser shows by itself

    static bool isForShow(const StoryFile& file) {
        const std::string path = lower(file.path);
        return path.starts_with("/cd") && path.find("/spiel/") == std::string::npos &&
               std::count(path.begin(), path.end(), '/') > 2;
    }
    void show(const StoryFile& file) {
        const Json& entry = files_[file.path];
        fs::path target = order_.into / file.path.substr(1);
        if (entry.contains("f")) target.replace_extension(".webm");
        const fs::path from = entry.contains("f") ? store_.place(entry["u"]) : file.file;
        if (!fs::exists(from)) return;
        story::writeIfChanged(target, readAll(from));
        shown_[target.parent_path()].push_back(target.filename().string());
    }
    // A folder without a page of its own gets one that lists what is in it.
    void listShown() {
        for (const auto& [folder, names] : shown_) {
            if (std::find(names.begin(), names.end(), "index.html") != names.end()) continue;
            std::string items;
            for (const std::string& name : names)
                items += name.ends_with(".webm")
                             ? "<figure><video controls preload=\"none\" src=\"" + asHtml(name) +
                                   "\"></video><figcaption>" + asHtml(fs::path(name).stem().string()) +
                                   "</figcaption></figure>\n"
                             : "<p><a href=\"" + asHtml(name) + "\">" + asHtml(name) + "</a></p>\n";
            const Words words{{"TITEL", asHtml(folder.filename().string())}, {"INHALT", items}};
            story::writeIfChanged(folder / "index.html",
                                  filled(readAll(order_.engine / "page/ordner.html"), words));
        }
    }

    // --- the page

    // Paths of the game as the engine spells them, those that are not there left out.
    Json spelled(const std::vector<Text>& paths) const {
        Json list = Json::array();
        for (const Text& path : paths) {
            std::string wanted = lower(std::string(storyRoot) + "/" + toUtf8(path));
            std::replace(wanted.begin(), wanted.end(), '\\', '/');
            if (const auto found = byLowerCase_.find(wanted); found != byLowerCase_.end())
                list.push_back(found->second);
        }
        return list;
    }
    Json rooms() {
        for (const auto& [path, entry] : files_) byLowerCase_[lower(path)] = path;
        Json rooms = Json::object();
        for (const RoomNeeds& needs : roomNeeds(order_.story)) {
            const Json name = spelled({needs.room});
            if (!name.empty()) rooms[name[0]] = {{"needs", spelled(needs.files)}, {"next", spelled(needs.next)}};
        }
        return rooms;
    }
    Json story(const Stored& engine) {
        Json discs = Json::array();
        for (std::size_t i = 0; i < order_.discs.size(); ++i) discs.push_back(discRoot(i));
        return {{"title", order_.title}, {"root", storyRoot},
                {"discs", discs},        {"engine", {{"u", engine.url}, {"k", engine.bytes}}},
                {"files", files_},       {"rooms", rooms()}};
    }
    // All but the first page, what names it, and its worker lies in a folder named by its content.
    void writePage() {
        listShown();
        const Stored engine = store_.keep("engine", readAll(order_.engine / "zentrox.wasm"));
        const std::string list = story(engine).dump(-1, ' ', false, Json::error_handler_t::replace);
        const auto sources = gather(order_.engine / "page", "");
        std::string all = list + readAll(order_.engine / "zentrox.js");
        for (const StoryFile& source : sources) all += readAll(source.file);
        const std::string version = nameFor(all);
        const std::string folder = "app/" + version;
        fs::remove_all(order_.into / "app");
        story::writeIfChanged(order_.into / folder / "story.json", list);
        story::writeIfChanged(order_.into / folder / "engine.js", readAll(order_.engine / "zentrox.js"));
        std::string shell = "\"" + folder + "/story.json\",\"" + folder + "/engine.js\",\"" + engine.url + "\"";
        const std::set<std::string> atTheTop{"/index.html", "/sw.js", "/manifest.webmanifest"};
        for (const StoryFile& source : sources)
            if (!atTheTop.contains(source.path) && source.path != "/ordner.html") {
                story::writeIfChanged(order_.into / (folder + source.path), readAll(source.file));
                shell += ",\"" + folder + source.path + "\"";
            }
        const Words words{{"{{TITEL}}", asHtml(order_.title)},
                          {"{{ORDNER}}", folder},
                          {"{{VERSION}}", version},
                          {"\"{{DATEIEN}}\"", shell}};
        for (const std::string& name : atTheTop)
            story::writeIfChanged(order_.into / name.substr(1),
                                  filled(readAll(order_.engine / ("page" + name)), words));
        out_ << order_.into.string() << "/index.html\n";
    }

    const Order& order_;
    std::ostream& out_;
    std::ostream& err_;
    Store store_;
    std::mutex mutex_;
    std::map<std::string, Json> files_;
    std::map<std::string, std::string> byLowerCase_;
    std::map<fs::path, std::vector<std::string>> shown_;
    std::set<std::string> claimed_;
    bool whole_ = true;
};

}  // namespace

fs::path engineFor(const fs::path& programDirectory) {
    for (const char* place : {"../web-engine", "web-engine", "../share/zentrox/web-engine"}) {
        const fs::path directory = (programDirectory / place).lexically_normal();
        if (fs::exists(directory / "zentrox.wasm") && fs::exists(directory / "page/index.html")) return directory;
    }
    return {};
}

bool pack(const Order& order, std::ostream& out, std::ostream& err) {
    Order named = order;
    if (named.title.empty()) named.title = toUtf8(angegebenOder(TitelLesen(Files(order.story)).Name, "Zentrox"));
    return Packer(named, out, err).all();
}

}  // namespace zentrox::web
