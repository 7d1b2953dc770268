#include "fuzz/play.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>
#include <system_error>

#include "main/spiel.h"
#include "platform/codec/zip.h"
#include "platform/machine/whole_file.h"
#include "platform/probe/backend.h"
#include "platform/probe/recorder.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"
#include "tools/probe/story.h"

// The fonts live as long as the process, and fontconfig keeps what it has found as distances, not as pointers: it
// only seems to be lost.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

namespace zentrox::fuzz {

namespace fs = std::filesystem;

namespace {

constexpr int steps = 80;                      // of a person, then the play is over
constexpr Milliseconds longestPlay = 120'000;  // of virtual time

bool isWritten(const std::string& file) {
    return file.ends_with(".lsd") || file.ends_with(".skp");
}

// Does the next thing that the course says.
class Aimless : public probe::Person {
public:
    Aimless(Course& course, probe::ProbeBackend& backend) : course_(course), backend_(backend) {}

    void attach(Platform* platform, Zustand* z, probe::Story* story) {
        platform_ = platform;
        z_ = z;
        story_ = story;
    }
    bool over() const { return steps_ >= steps || course_.over() || backend_.clock() > longestPlay; }

    std::optional<Input> next() override {
        if (pending_.empty() && backend_.clock() >= rests_) decide();
        if (pending_.empty()) return std::nullopt;
        const Input input = pending_.front();
        pending_.erase(pending_.begin());
        return input;
    }
    bool ready() override { return !pending_.empty() || backend_.clock() >= rests_; }
    std::optional<Milliseconds> due() override { return rests_; }
    // A loop without a wait: a person would close the window.
    void stuck() override { throw ProgramEnd{1}; }

private:
    void decide() {
        if (over()) throw ProgramEnd{};
        ++steps_;
        rests_ = backend_.clock() + 1;
        switch (course_.byte() % 10) {
            case 0: rests_ = backend_.clock() + course_.pair(); return;
            case 1:
            case 2: return click(somewhere());
            case 3:
            case 4: return click(story_->object(objectName()));
            case 5: return click(story_->option(static_cast<int>(course_.below(8)) + 1));
            case 6: return drag();
            case 7: return type(static_cast<char>(course_.byte()));
            case 8: return tap(key::space);
            default: return seldom();
        }
    }
    void seldom() {
        switch (course_.byte() % 6) {
            case 0: pending_.push_back({.kind = Input::Kind::close}); return;
            case 1: pending_.push_back({.kind = Input::Kind::resize, .size = {point().x, point().y}}); return;
            case 2: pending_.push_back({.kind = Input::Kind::wheel, .at = point(), .code = 1}); return;
            case 3: story_->decide(course_.byte() % 2 == 0); return;
            case 4: pending_.push_back({.kind = Input::Kind::keyDown, .code = code()}); return;
            default: return tap(code());
        }
    }
    int code() { return static_cast<int>(course_.byte()); }
    Point point() {
        const auto x = static_cast<int>(course_.below(256)) * 3;
        return {x, static_cast<int>(course_.below(256)) * 2};
    }
    std::optional<Point> somewhere() { return point(); }
    Text objectName() {
        const auto& objects = z_->AktuellerRaum.Objekte;
        return objects.empty() ? Text() : objects[course_.below(objects.size())].Name;
    }
    Text itemName() {
        const auto carried = static_cast<std::size_t>(std::clamp(z_->InventarLetzter + 1, 0, InventarPlätze));
        if (carried == 0) return {};
        Text name = z_->Inventar[course_.below(carried)];
        name.erase(0, name.rfind('\\') + 1);
        return name.substr(0, name.rfind('.'));
    }
    void click(std::optional<Point> at) {
        if (!at) return;
        const Button button = course_.byte() % 4 == 0 ? Button::right : Button::left;
        pending_.push_back({.kind = Input::Kind::move, .at = *at});
        pending_.push_back({.kind = Input::Kind::press, .at = *at, .button = button});
        pending_.push_back({.kind = Input::Kind::release, .at = *at, .button = button});
    }
    // An item onto an object or another item.
    void drag() {
        const auto from = story_->item(itemName());
        if (!from) return tap(key::space);
        const auto to = course_.byte() % 2 == 0 ? story_->item(itemName()) : story_->object(objectName());
        pending_.push_back({.kind = Input::Kind::press, .at = *from, .button = Button::left});
        pending_.push_back({.kind = Input::Kind::move, .at = to.value_or(point()), .button = Button::left});
        pending_.push_back({.kind = Input::Kind::release, .at = to.value_or(point()), .button = Button::left});
    }
    void tap(int code) {
        pending_.push_back({.kind = Input::Kind::keyDown, .code = code});
        pending_.push_back({.kind = Input::Kind::keyUp, .code = code});
    }
    void type(char character) {
        pending_.push_back({.kind = Input::Kind::keyDown, .code = static_cast<unsigned char>(upper(character))});
        pending_.push_back({.kind = Input::Kind::keyPress, .character = character});
        pending_.push_back({.kind = Input::Kind::keyUp, .code = static_cast<unsigned char>(upper(character))});
    }

    Course& course_;
    probe::ProbeBackend& backend_;
    Platform* platform_ = nullptr;
    Zustand* z_ = nullptr;
    probe::Story* story_ = nullptr;
    std::vector<Input> pending_;
    Milliseconds rests_ = 0;
    int steps_ = 0;
};

// One life of the program, as the probe lives it.
void live(const Files& files, const Stage& stage, const Text& room, probe::ProbeBackend& backend, Aimless& person) {
    static const auto fonts = makeFonts();
    backend.beginAnew();
    Recorder recorder(
        files, [&] { return backend.clock(); }, [](Milliseconds, const Text&) {});
    backend.setClockMoved([&] { recorder.settle(); });
    Platform platform(backend, *fonts, recorder, files);
    platform.roots = {stage.directory() / "cd"};
    const auto z = std::make_unique<Zustand>();
    probe::Story story(platform, *z, recorder);
    person.attach(&platform, z.get(), &story);
    Spielen(platform, *z, room);
    backend.setClockMoved(nullptr);
}

}  // namespace

std::string Course::bytes(std::size_t count) {
    const std::size_t there = std::min(count, static_cast<std::size_t>(end_ - at_));
    std::string all(reinterpret_cast<const char*>(at_), there);
    at_ += there;
    return all;
}

Stage::Stage() : directory_("/dev/shm/zentrox-play-" + std::to_string(getpid())) {
    const fs::path whole = ZENTROX_FUZZ_STORY;
    for (const auto& entry : fs::recursive_directory_iterator(whole))
        if (entry.is_regular_file()) files_.push_back(entry.path().lexically_relative(whole));
    std::sort(files_.begin(), files_.end(), [](const std::string& a, const std::string& b) {
        return std::pair(!isWritten(a), a) < std::pair(!isWritten(b), b);
    });
    written_ = static_cast<std::size_t>(std::count_if(files_.begin(), files_.end(), isWritten));
    for (const std::string& file : files_) lay(file);
    fs::create_directory(directory_ / "cd");
}

Stage::~Stage() {
    std::error_code ignored;
    fs::remove_all(directory_, ignored);
}

void Stage::lay(const std::string& file) const {
    fs::create_directories((directory_ / file).parent_path());
    const fs::path from = fs::path(ZENTROX_FUZZ_STORY) / file;
    std::error_code error;
    // The fuzzer's own timer interrupts a copy that a burdened machine takes long for.
    do fs::copy_file(from, directory_ / file, fs::copy_options::overwrite_existing, error);
    while (error == std::errc::interrupted);
    if (error) throw fs::filesystem_error("no copy", from, error);
}

std::string Stage::whole(const std::string& file) const {
    return readFile(directory_ / file).value_or("");
}

void Stage::remove(const std::string& file) {
    fs::remove(directory_ / file);
    changed_.push_back(file);
}

void Stage::replace(const std::string& file, const std::string& bytes) {
    remove(file);
    std::FILE* const out = std::fopen((directory_ / file).c_str(), "wb");
    if (out == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), out) != bytes.size() || std::fclose(out) != 0)
        std::abort();
}

void Stage::restore() {
    for (const std::string& file : changed_) lay(file);
    changed_.clear();
    std::error_code ignored;
    fs::remove_all(directory_ / "saves", ignored);
}

void play(const Stage& stage, const Text& room, std::uint64_t seed, Course& course) {
    const Files files(stage.directory());
    probe::ProbeBackend backend(seed, nullptr);
    Aimless person(course, backend);
    backend.setPerson(&person);
    Text begin = room;
    do {
        live(files, stage, begin, backend, person);
        begin.clear();
    } while (backend.restartWanted() && !person.over());
}

}  // namespace zentrox::fuzz
