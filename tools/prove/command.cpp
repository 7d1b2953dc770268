#include "tools/prove/command.h"

#include <unistd.h>

#include <csignal>
#include <iomanip>
#include <ostream>

#include "tools/prove/games.h"
#include "tools/prove/report.h"
#include "tools/story/build.h"

namespace zentrox::prove {

namespace {

constexpr int clean = 0;
constexpr int hasFindings = 1;
constexpr int wrongCall = 2;
constexpr int stopped = 3;

constexpr double thousand = 1000;

constexpr const char* withoutStart =
    "zentrox-story: einen Raum Start.lsd gibt es hier nicht, und in ihm beginnt jedes Spiel\n";
constexpr const char* tooLarge =
    "zentrox-story: diese Geschichte hat mehr Räume, Merker und Gegenstände, als die Suche fasst\n";

// Set by Ctrl+C: the search ends and tells what it has.
std::atomic<bool> interrupted = false;

class Interrupt {
public:
    Interrupt() {
        before_ = std::signal(SIGINT, [](int) { interrupted = true; });
    }
    ~Interrupt() { std::signal(SIGINT, before_); }
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

private:
    void (*before_)(int) = nullptr;
};

void showProgress(std::ostream& err, const Progress& progress) {
    const double rate = progress.seconds > 0 ? static_cast<double>(progress.steps) / progress.seconds : 0;
    err << "\r" << progress.states << " Zustände, " << progress.open << " offen, " << std::fixed
        << std::setprecision(0) << rate / thousand << "000 Schritte/s  " << std::flush;
}

Options optionsOf(const Call& call, std::ostream& err) {
    Options options;
    options.bounds.seconds = call.seconds;
    options.bounds.states = call.states;
    if (call.megabytes) options.bounds.megabytes = *call.megabytes;
    options.bounds.interrupted = &interrupted;
    options.reduced = !call.full;
    if (isatty(STDERR_FILENO) != 0)
        options.progress = [&err](const Progress& progress) { showProgress(err, progress); };
    return options;
}

int statusOf(const Report& report) {
    if (!report.findings.empty()) return hasFindings;
    return report.complete ? clean : stopped;
}

void tell(const story::Story& story, const Report& report, const Call& call, std::ostream& out) {
    namespace fs = std::filesystem;
    if (!call.walks.empty())
        for (const auto& [name, walk] : walkFiles(story, report))
            story::writeIfChanged(fs::path(call.walks) / fs::path(name), walk);
    if (!call.graph.empty()) story::writeIfChanged(call.graph, asGraph(report));
    if (call.json) {
        out << asJson(story, report);
        return;
    }
    out << asText(story, report, call.walks);
    if (call.statistics) out << statistics(report) << asGraph(report);
}

}  // namespace

int run(const story::Story& story, const story::Findings& reading, const Call& call, std::ostream& out,
        std::ostream& err) {
    if (reading.hasErrors()) {
        Report unread;
        unread.complete = false;
        unread.findings = reading;
        out << (call.json ? asJson(story, unread) : story::asLines(story, reading));
        return hasFindings;
    }
    interrupted = false;
    const Interrupt onInterrupt;
    const Options options = optionsOf(call, err);
    try {
        story::SourceFiles files;
        const Report report = prove(story, endingMarks(story, files), options);
        if (options.progress) err << "\r\33[K" << std::flush;
        tell(story, report, call, out);
        return statusOf(report);
    } catch (const NoStart&) {
        err << withoutStart;
    } catch (const TooLarge&) {
        err << tooLarge;
    }
    return wrongCall;
}

void tellGames(const story::Story& story, std::ostream& out, std::ostream& err) {
    interrupted = false;
    const Interrupt onInterrupt;
    const Options options = optionsOf({}, err);
    try {
        story::SourceFiles files;
        const auto needs = gameNeeds(story, endingMarks(story, files), options);
        if (options.progress) err << "\r\33[K" << std::flush;
        out << asText(story, needs);
    } catch (const NoStart&) {
        err << withoutStart;
    } catch (const TooLarge&) {
        err << tooLarge;
    }
}

}  // namespace zentrox::prove
