// The real program under a display of its own: how soon its first room stands, what it takes while it stands idle,
// how soon an author sees what was saved.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <benchmark/benchmark.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

// Another program, ended with this object.
class Process {
public:
    explicit Process(std::vector<std::string> words) {
        std::vector<char*> arguments;
        arguments.reserve(words.size() + 1);
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        id_ = fork();
        if (id_ == 0) {
            execv(arguments[0], arguments.data());
            _exit(127);
        }
    }
    ~Process() {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    pid_t id() const { return id_; }

private:
    pid_t id_ = 0;
};

// An X server without a screen, and a look at where the room is and no text.
class Screen {
public:
    Screen() : server_({XVFB_PROGRAM, ":97", "-screen", "0", "800x600x24", "-nolisten", "tcp"}) {
        setenv("DISPLAY", ":97", 1);
        setenv("ZENTROX_SOUND", "none", 1);
        for (int i = 0; i < 100 && display_ == nullptr; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            display_ = XOpenDisplay(":97");
        }
        if (display_ == nullptr) throw std::runtime_error("no display");
    }
    ~Screen() { XCloseDisplay(display_); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    unsigned long colour() const {
        XImage* const image = XGetImage(display_, DefaultRootWindow(display_), 120, 100, 1, 1, AllPlanes, ZPixmap);
        const unsigned long pixel = XGetPixel(image, 0, 0) & 0xFFFFFFU;
        XDestroyImage(image);
        return pixel;
    }
    // The root window is black where no picture stands.
    bool shown() const { return colour() != 0; }

private:
    Process server_;
    Display* display_ = nullptr;
};

Screen& screen() {
    static Screen one;
    return one;
}

// A small story to stand in.
const fs::path& story() {
    static const fs::path directory = [] {
        fs::path made = fs::temp_directory_path() / ("zentrox-bench-" + std::to_string(getpid()));
        const std::string command = std::string(STORY_COMPILER) + " new '" + made.string() + "' >/dev/null";
        if (std::system(command.c_str()) != 0) throw std::runtime_error("no story");
        return made;
    }();
    return directory;
}

std::vector<std::string> game() {
    return {ZENTROX_PROGRAM, "--dir", story().string(), "Start.lsd"};
}

double untilShown(const std::vector<std::string>& command) {
    while (screen().shown()) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const auto begin = Clock::now();
    const Process process(command);
    while (!screen().shown()) {
        if (Clock::now() - begin > std::chrono::seconds(20)) throw std::runtime_error("nothing is shown");
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

void bareWindow(benchmark::State& state) {
    for (auto _ : state) state.SetIterationTime(untilShown({BARE_WINDOW}));
}
BENCHMARK(bareWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);

void firstRoom(benchmark::State& state) {
    for (auto _ : state) state.SetIterationTime(untilShown(game()));
}
BENCHMARK(firstRoom)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);

double fieldOf(pid_t id, const char* name) {
    std::ifstream status("/proc/" + std::to_string(id) + "/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind(name, 0) == 0) return std::strtod(line.c_str() + std::string(name).size() + 1, nullptr);
    return 0;
}

double processorSeconds(pid_t id) {
    std::ifstream file("/proc/" + std::to_string(id) + "/schedstat");
    double nanoseconds = 0;
    file >> nanoseconds;
    return nanoseconds / 1e9;
}

// The demo's sources and data, to be changed.
const fs::path& demo() {
    static const fs::path directory = [] {
        fs::path made = fs::temp_directory_path() / ("zentrox-bench-demo-" + std::to_string(getpid()));
        fs::copy(DEMO_DATA, made, fs::copy_options::recursive);
        fs::copy(DEMO_STORY, made / "story", fs::copy_options::recursive);
        return made;
    }();
    return directory;
}

void write(const fs::path& file, const std::string& text) {
    const fs::path beside = file.string() + "~";
    std::ofstream(beside, std::ios::binary) << text;
    fs::rename(beside, file);
}

// From the write of a source, as an editor does it, to the other picture on the screen.
void savedSource(benchmark::State& state) {
    const fs::path file = demo() / "story" / "hof.story";
    std::ostringstream read;
    read << std::ifstream(file, std::ios::binary).rdbuf();
    const std::string before = read.str();
    std::string after = before;
    const std::size_t at = after.find("\"hof.jpg\"");
    if (at == std::string::npos) throw std::runtime_error("the yard has another picture");
    after.replace(at, 9, "\"keller.jpg\"");
    while (screen().shown()) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const Process process({ZENTROX_PROGRAM, "--author", file.parent_path().string(), "--dir", demo().string(),
                           "--flags", "HOF_GESEHEN", "Hof.lsd"});
    std::this_thread::sleep_for(std::chrono::seconds(5));
    bool other = false;
    double longest = 0;
    const double usedBefore = processorSeconds(process.id());
    for (auto _ : state) {
        const unsigned long shown = screen().colour();
        const auto begin = Clock::now();
        write(file, (other = !other) ? after : before);
        while (screen().colour() == shown) {
            if (Clock::now() - begin > std::chrono::seconds(20)) throw std::runtime_error("nothing new is shown");
            std::this_thread::sleep_for(std::chrono::microseconds(500));
        }
        const double took = std::chrono::duration<double>(Clock::now() - begin).count();
        state.SetIterationTime(took);
        longest = std::max(longest, took);
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
    }
    state.counters["longest_ms"] = 1000 * longest;
    const double used = processorSeconds(process.id()) - usedBefore;
    state.counters["processor_ms"] = 1000 * used / static_cast<double>(state.iterations());
    fs::remove_all(demo());
}
BENCHMARK(savedSource)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void idleRoom(benchmark::State& state) {
    constexpr double seconds = 10;
    for (auto _ : state) {
        while (screen().shown()) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        const Process process(game());
        std::this_thread::sleep_for(std::chrono::seconds(4));  // the start script is over
        const double before = processorSeconds(process.id());
        const double wakesBefore = fieldOf(process.id(), "voluntary_ctxt_switches");
        const auto begin = Clock::now();
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
        const double passed = std::chrono::duration<double>(Clock::now() - begin).count();
        state.SetIterationTime(passed);
        state.counters["core_percent"] = 100 * (processorSeconds(process.id()) - before) / passed;
        state.counters["wakes_per_s"] = (fieldOf(process.id(), "voluntary_ctxt_switches") - wakesBefore) / passed;
        state.counters["resident_MB"] = fieldOf(process.id(), "VmRSS") / 1024;
    }
}
BENCHMARK(idleRoom)->UseManualTime()->Iterations(1);

}  // namespace
