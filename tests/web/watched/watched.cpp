// The game in a browser, as `main/web.cpp` has it, and an answer to what a test asks while the game waits.
#include <emscripten.h>

#include <memory>
#include <sstream>

#include "main/page.h"
#include "platform/probe/recorder.h"
#include "tools/probe/story.h"

namespace {

using namespace zentrox;

struct Watched {
    explicit Watched(Platform& played, Zustand& zustand)
        : platform(played),
          recorder(
              played.files, [] { return Milliseconds{0}; }, [](Milliseconds, const Text&) {}),
          story(played, zustand, recorder) {}

    Platform& platform;
    Recorder recorder;
    probe::Story story;
};

std::unique_ptr<Watched> watched;

std::string yes(bool answer) {
    return answer ? "yes" : "";
}

std::string place(std::optional<Point> at) {
    return at ? std::to_string(at->x) + " " + std::to_string(at->y) : "";
}

std::string answer(const std::string& what, const Text& name) {
    if (!watched) return what == "ended" ? "yes" : "";
    probe::Story& story = watched->story;
    const Window* const window = watched->platform.queue.active();
    if (what == "window") return window != nullptr ? toUtf8(window->name()) : "";
    if (what == "title") return yes(window != nullptr && window->title().find(name) != Text::npos);
    if (what == "text") return yes(window != nullptr && window->shows(name));
    if (what == "stands") return yes(story.standingText().has_value());
    if (what == "idle") return yes(story.idle());
    if (what == "choice") return yes(story.choiceOpen());
    if (what == "flag") return yes(story.flag(name));
    if (what == "item") return yes(story.carries(name));
    if (what == "room") return yes(story.inRoom(name));
    if (what == "evil") return yes(std::to_string(story.evil()) == name);
    if (what == "bar") return yes(story.barOpen() && !story.barSlides());
    if (what == "object") return place(story.object(name));
    if (what == "slot") return place(story.item(name));
    if (what == "option") return place(story.option(std::stoi(name)));
    if (what == "above") return place(story.aboveBar());
    if (what == "seed") return watched->platform.random.reseed(std::stoull(name)), "";
    if (what == "why") return toUtf8(watched->platform.queue.reasons());
    return "?";
}

}  // namespace

// `name` is UTF-8. The answer stays until the next question.
extern "C" EMSCRIPTEN_KEEPALIVE const char* zentroxAsk(const char* what, const char* name) {
    static std::string last;
    last = answer(what, fromUtf8(name));
    return last.c_str();
}

int main(int argc, char** argv) {
    return playPage({argv + 1, argv + argc}, [](Platform* platform, Zustand* zustand) {
        watched = platform != nullptr ? std::make_unique<Watched>(*platform, *zustand) : nullptr;
    });
}
