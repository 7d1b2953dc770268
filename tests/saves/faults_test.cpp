// Each call to the system with which a file is written fails in turn: the old file or the new one is there, whole.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/machine/whole_file.h"
#include "saves_fixture.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

struct Written {
    const char* name;
    std::vector<std::string>
        command;       // "@" stands for the directory, "%" for the walk's file, "%story" for a story
    std::string file;  // below it
    std::vector<std::string> sentences = {};  // said where it failed
    const char* walk = "";
    bool goesOn = false;  // the program plays on where it failed
};

const std::vector<std::string> ofTheGame{"konnte nicht unter spiel.xtc gespeichert werden!", "Der Datenträger "};
const std::vector<std::string> ofTheSettings{"Die Einstellungen können nicht gespeichert werden: Der Datenträger "};

std::vector<std::string> probe(std::vector<std::string> options) {
    std::vector<std::string> command{PROBE, "--quiet", "--dir", WALKS, "--args", "Bequem.lsd"};
    command.insert(command.end(), options.begin(), options.end());
    command.push_back("%");
    return command;
}

struct Ended {
    int status = 0;
    std::string said;
    bool faulted = false;
};

class Faults : public testing::TestWithParam<Written> {
protected:
    std::string placed(std::string word) const {
        if (const auto at = word.find('@'); at != std::string::npos) word.replace(at, 1, place.string());
        if (word == "%story") return (directory.path() / "story").string();
        return word == "%" ? (directory.path() / "walk").string() : word;
    }
    // Runs the program; without a kind nothing is broken.
    Ended run(int at, const std::string& kind) const {
        const fs::path said = directory.path() / "said";
        const fs::path seen = directory.path() / "seen";
        fs::remove(seen);
        const pid_t child = fork();
        if (child == 0) {
            if (freopen(said.c_str(), "w", stdout) == nullptr || dup2(1, 2) < 0) _exit(3);
            if (!kind.empty()) {
                setenv("LD_PRELOAD", FAULTS_LIBRARY, 1);
                setenv("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0", 1);
            }
            setenv("FAULT_DIRECTORY", (place / GetParam().file).parent_path().c_str(), 1);
            setenv("FAULT_AT", std::to_string(at).c_str(), 1);
            setenv("FAULT_KIND", kind.c_str(), 1);
            setenv("FAULT_SEEN", seen.c_str(), 1);
            std::vector<std::string> words;
            for (const std::string& word : GetParam().command) words.push_back(placed(word));
            std::vector<char*> pointers;
            for (std::string& word : words) pointers.push_back(word.data());
            pointers.push_back(nullptr);
            execv(pointers[0], pointers.data());
            _exit(3);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return {status, readFile(said).value_or(""), fs::exists(seen)};
    }
    std::size_t filesBeside() const {
        const auto folder = (place / GetParam().file).parent_path();
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
    }
    static void needSentences(const Ended& done, const std::string& where) {
        EXPECT_NE(done.said, "") << where;
        for (const std::string& sentence : GetParam().sentences)
            EXPECT_NE(done.said.find(sentence), std::string::npos) << where;
    }
    void breakCall(int at, const std::string& kind, const std::string& fresh, bool& more) {
        const fs::path file = place / GetParam().file;
        directory.write("place/" + GetParam().file, old);
        const std::size_t before = filesBeside();
        const Ended done = run(at, kind);
        more = done.faulted;
        const std::string now = readFile(file).value_or("nothing");
        const std::string where = kind + " at call " + std::to_string(at) + ": " + done.said;
        if (kind == "kill" && more) {
            EXPECT_TRUE(WIFSIGNALED(done.status)) << where;
            EXPECT_TRUE(now == old || now == fresh) << where;
            for (const auto& entry : fs::directory_iterator(file.parent_path()))
                if (entry.path() != file) fs::remove(entry.path());
            return;
        }
        ASSERT_TRUE(WIFEXITED(done.status)) << where;
        EXPECT_EQ(filesBeside(), before) << where;
        EXPECT_TRUE(now == old || now == fresh) << where;
        EXPECT_TRUE(WEXITSTATUS(done.status) == 0 || !GetParam().goesOn) << where;
        const bool told = WEXITSTATUS(done.status) != 0 || (GetParam().goesOn && !done.said.empty());
        if (told) return needSentences(done, where);
        EXPECT_EQ(now, fresh) << where;
    }

    TempDirectory directory;
    const fs::path place = directory.path() / "place";
    const std::string old = "what was there before\n";
};

TEST_P(Faults, LeaveTheOldFileOrTheNewOne) {
    fs::create_directories((place / GetParam().file).parent_path());
    directory.write("walk", GetParam().walk);
    directory.write("story/titel.txt", "Titel: Klein\nKennung: klein\n");
    directory.write("story/rooms/Start.lsd", "\"\"\r\n-1\r\n-1\r\n-1\r\n");
    directory.write("place/" + GetParam().file, old);
    const Ended whole = run(0, "");
    ASSERT_EQ(whole.status, 0) << whole.said;
    const std::string fresh = readFile(place / GetParam().file).value_or("");
    ASSERT_NE(fresh, old);
    int calls = 0;
    for (const std::string& kind : {std::string("kill"), std::string("short"), std::to_string(EINTR),
                                    std::to_string(EIO), std::to_string(ENOSPC)}) {
        bool more = true;
        for (int at = 1; more && at < 100; ++at) {
            breakCall(at, kind, fresh, more);
            calls += more ? 1 : 0;
        }
    }
    RecordProperty("calls", calls);
    EXPECT_GE(calls, 30) << "the library is not asked";
}

INSTANTIATE_TEST_SUITE_P(
    Programs, Faults,
    testing::Values(
        Written{"game", {SAVE_ONCE, "@"}, "saves/spiel.xtc", ofTheGame},
        Written{"settings", probe({"--settings", "@/einstellungen.txt", "--out", "@"}), "einstellungen.txt",
                ofTheSettings, "until idle\nkey f10\nuntil title \"Einstellungen\"\nkey left\nkey escape\n", true},
        Written{"picture", probe({"--out", "@"}), "bild.png", {}, "until idle\nshot bild.png\n"},
        Written{"lines", probe({"--ran", "@/ran.json"}), "ran.json", {}, "until idle\nuse Ding\nuntil idle\n"},
        Written{"pack", {STORY, "pack", "%story", "--into", "@/x.zentrox"}, "x.zentrox"},
        Written{"digits", {DIGITS, "500", "@/pi.txt"}, "pi.txt", {"lässt sich nicht schreiben: "}},
        Written{"notes", {NOTES, SONG, "@/lied.mid"}, "lied.mid", {"lässt sich nicht schreiben: "}},
        Written{"story", {STORY, "build", ROOM, "--into", "@"}, "rooms/Klein.lsd"}),
    [](const auto& program) { return program.param.name; });

}  // namespace
}  // namespace zentrox::test
