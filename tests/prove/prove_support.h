// What the tests of the proofs share: stories in memory, proved whole and reduced.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/story/story_support.h"
#include "tools/prove/report.h"

namespace zentrox::prove::test {

class Proof {
public:
    explicit Proof(const std::string& source, bool reduced = true, Bounds bounds = {}) {
        story::test::MemoryFiles files;
        files.sources["probe.story"] = source;
        story = story::test::compiled(source, files);
        Options options;
        options.reduced = reduced;
        options.bounds = bounds;
        report = prove(story, endingMarks(story, files), options);
    }

    // "gut 3, boese 5"
    std::string endings() const {
        std::string all;
        for (const FoundEnding& ending : report.endings)
            all += (all.empty() ? "" : ", ") + ending.name + " " + std::to_string(ending.steps);
        return all;
    }
    // "12 in 3" for a step on line 12 that loses the game with the third step.
    std::string dead() const {
        std::string all;
        for (const DeadEnd& end : report.dead)
            all += (all.empty() ? "" : ", ") + std::to_string(end.place.line) + " in " + std::to_string(end.steps);
        return all;
    }
    // The steps into each, by which it is told apart where two commands of one step had a part in it.
    std::vector<std::uint32_t> deadSteps() const {
        std::vector<std::uint32_t> all;
        for (const DeadEnd& end : report.dead) all.push_back(end.steps);
        return all;
    }
    // "immer-gleich 4, nie-gespielt 5", without what is told of dead ends.
    std::string findings() const {
        std::string all;
        for (const story::Finding& finding : report.findings.all())
            if (finding.code != "verbaut")
                all += (all.empty() ? "" : ", ") + finding.code + " " + std::to_string(finding.place.line);
        return all;
    }
    std::string message(const std::string& code) const {
        for (const story::Finding& finding : report.findings.all())
            if (finding.code == code) return finding.message;
        return {};
    }

    story::Story story;
    Report report;
};

}  // namespace zentrox::prove::test
