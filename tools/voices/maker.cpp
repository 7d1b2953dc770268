#include "tools/voices/maker.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iomanip>
#include <mutex>
#include <sstream>
#include <thread>

#include "platform/machine/replace_file.h"
#include "tools/voices/level.h"
#include "tools/voices/process.h"
#include "tools/voices/spoken.h"

namespace zentrox::voices {

namespace fs = std::filesystem;

namespace {

constexpr int rate = 22050;
constexpr const char* kilobits = "40";
constexpr const char* listName = ".voices";
constexpr const char* madeBy = "1";  // another number makes everything anew

using List = std::map<std::string, std::string>;  // file to what it was made from

std::string fingerprint(const std::string& text) {
    std::uint64_t hash = 14695981039346656037U;  // FNV-1a
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    std::ostringstream out;
    out << std::hex << std::setw(16) << std::setfill('0') << hash;
    return out.str();
}

std::string recipe(const SpokenLine& line, const Table& table) {
    const Voice& voice = table.voices.find(line.person)->second;
    std::ostringstream all;
    all << madeBy << '\n' << voice.variant << ' ' << voice.pitch << ' ' << voice.speed << ' ' << voice.level;
    for (const std::string& effect : voice.effects) all << ' ' << effect;
    for (const std::string& effect : table.effects) all << ' ' << effect;
    all << '\n' << spoken(line.text, table.words);
    return fingerprint(all.str());
}

List readList(const fs::path& path) {
    List list;
    std::ifstream in(path);
    std::string made;
    std::string file;
    while (in >> made && std::getline(in >> std::ws, file)) list[file] = made;
    return list;
}

void writeList(const fs::path& path, const List& list) {
    std::string text;
    for (const auto& [file, made] : list) text.append(made).append(" ").append(file).append("\n");
    replaceFile(path, text);
}

std::vector<std::int16_t> readSamples(const fs::path& path) {
    std::vector<std::int16_t> samples(fs::file_size(path) / sizeof(std::int16_t));
    std::ifstream in(path, std::ios::binary);
    in.read(reinterpret_cast<char*>(samples.data()),
            static_cast<std::streamsize>(samples.size() * sizeof(std::int16_t)));
    if (!in) throw std::runtime_error("can't read " + path.string());
    return samples;
}

void writeSamples(const fs::path& path, const std::vector<std::int16_t>& samples) {
    replaceFile(path, {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(std::int16_t)});
}

void speak(const Table& table, const SpokenLine& line, const fs::path& target, const fs::path& work) {
    const Voice& voice = table.voices.find(line.person)->second;
    const std::string said = work / (line.file + ".wav");
    const std::string samples = work / (line.file + ".raw");
    const std::vector<std::string> form{"-t", "raw", "-r", std::to_string(rate), "-e", "signed", "-b",
                                        "16", "-c",  "1"};

    runProgram({"espeak-ng", "-v", voice.variant, "-p", std::to_string(voice.pitch), "-s",
                std::to_string(voice.speed), "-z", "-w", said, "--", toUtf8(spoken(line.text, table.words))});
    std::vector<std::string> shape{"sox", "-V1", "-D", said};
    shape.insert(shape.end(), form.begin(), form.end());
    shape.push_back(samples);
    shape.insert(shape.end(), voice.effects.begin(), voice.effects.end());
    shape.insert(shape.end(), table.effects.begin(), table.effects.end());
    runProgram(shape);

    std::vector<std::int16_t> voiceSamples = readSamples(samples);
    if (voiceSamples.empty()) throw std::runtime_error("nothing to be heard");
    level(voiceSamples, rate, voice.level);
    writeSamples(samples, voiceSamples);

    std::vector<std::string> pack{"sox", "-V1", "-D"};
    pack.insert(pack.end(), form.begin(), form.end());
    pack.insert(pack.end(), {samples, "-t", "mp3", "-C", kilobits, target.string()});
    runProgram(pack);
    fs::remove(said);
    fs::remove(samples);
}

// Speaks lines on all processors, and notes each one that is done.
class Work {
public:
    Work(std::vector<const SpokenLine*> lines, const Table& table, const fs::path& into, const fs::path& work,
         const Speaker& speak, List kept)
        : lines_(std::move(lines)),
          table_(table),
          into_(into),
          work_(work),
          speak_(speak),
          list_(std::move(kept)) {}

    void run(Made& made) {
        std::vector<std::thread> threads;
        const unsigned count = std::max(1U, std::thread::hardware_concurrency());
        for (unsigned i = 0; i < count; ++i)
            threads.emplace_back([&] {
                for (std::size_t line = 0; (line = next_++) < lines_.size() && !stopped_;) one(*lines_[line], made);
            });
        for (std::thread& thread : threads) thread.join();
    }

private:
    void one(const SpokenLine& line, Made& made) {
        const std::string file = line.file + ".mp3";
        const fs::path unfinished = into_ / ("." + file);
        try {
            speak_(line, unfinished, work_);
            placeFile(unfinished, into_ / file);
            const std::lock_guard guard(mutex_);
            list_[file] = recipe(line, table_);
            writeList(into_ / listName, list_);
            made.written.push_back(file);
        } catch (const std::exception& error) {
            std::error_code ignored;
            fs::remove(unfinished, ignored);
            const std::lock_guard guard(mutex_);
            stopped_ = true;
            made.failed.push_back(file + ": " + error.what());
        }
    }

    std::vector<const SpokenLine*> lines_;
    const Table& table_;
    const fs::path& into_;
    const fs::path& work_;
    const Speaker& speak_;
    List list_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<bool> stopped_ = false;  // what fails once mostly fails each time
    std::mutex mutex_;                   // guards the list and what has been made
};

}  // namespace

Speaker speakerOf(const Table& table) {
    return [table](const SpokenLine& line, const fs::path& target, const fs::path& work) {
        speak(table, line, target, work);
    };
}

Made makeLines(const std::vector<SpokenLine>& lines, const Table& table, const fs::path& into, const fs::path& work,
               const Speaker& speak) {
    fs::create_directories(into);
    fs::create_directories(work);
    const List old = readList(into / listName);
    List kept;
    std::vector<const SpokenLine*> changed;
    for (const SpokenLine& line : lines) {
        const std::string file = line.file + ".mp3";
        const auto was = old.find(file);
        const bool stands = was != old.end() && was->second == recipe(line, table) && fs::exists(into / file);
        if (stands)
            kept.insert(*was);
        else
            changed.push_back(&line);
    }
    Made made;
    for (const auto& [file, recipe] : old) {
        const bool wanted = std::any_of(lines.begin(), lines.end(), [&, name = file](const SpokenLine& line) {
            return line.file + ".mp3" == name;
        });
        if (!wanted && fs::remove(into / file)) made.removed.push_back(file);
    }
    // What is about to change leaves the list first: should we be cut off, it is made again.
    if (kept != old) writeList(into / listName, kept);
    Work(changed, table, into, work, speak, kept).run(made);
    fs::remove_all(work);
    return made;
}

}  // namespace zentrox::voices
