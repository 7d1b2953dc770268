// A report of a problem: one file, a walk that leads from the last room entered to the problem, with all else that
// helps in its remarks. `zentrox-probe --as-recorded` replays it.
#pragma once

#include <filesystem>
#include <optional>

#include "author/walkwriter.h"
#include "comfort/comforts.h"
#include "main/beginning.h"

namespace zentrox {

class Report : public Beobachter {
public:
    // Reports go to `directory`; it need not be there. `call` is what `walkCall` gives for this play. Must outlive
    // the play, whose keys, looks and hints it takes.
    Report(Comforts& comforts, std::filesystem::path directory, const std::string& call);
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    // Begins the walk anew.
    void Betritt(TextView room) override;
    // So it does where a room has been played for very long, with what a saved game would hold.
    void Ruht() override;

    // The play has ended by a fault of the program, its windows are gone: asks whether to write a report, and does.
    void offerAfter(const std::string& fault);

private:
    void beginWalk(const std::string& call);
    void beginHere();
    // What has become of it, for the player.
    Text write();
    std::string head() const;
    std::string tail() const;

    Comforts& comforts_;
    std::filesystem::path directory_;
    std::string call_;
    std::string fault_;
    Text room_;
    bool shortened_ = false;  // the walk does not begin where the room was entered
    author::RecordText walk_;
    std::optional<author::WalkWriter> writer_;  // always the same place in memory: it listens from there
};

}  // namespace zentrox
