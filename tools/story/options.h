// What each command of zentrox-story takes on its command line. A `describe` adds the words of one command to its
// part of the command line; parsing then fills `options`.
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "tools/page/page.h"
#include "tools/prove/command.h"
#include "tools/web/pack.h"

namespace zentrox::story {

struct Options {
    std::vector<std::string> words;
    std::string into;
    std::string data;
    std::string with;
    bool json = false;
    std::vector<std::string> ran;
    double least = 0;
    prove::Call prove;
    web::Order web;
    bool program = false;
    std::string player;
    page::Order page;
    bool onlyTell = false;
    bool games = false;
};

void describeLines(CLI::App& app, Options& options);
void describeBuild(CLI::App& app, Options& options);
void describeCheck(CLI::App& app, Options& options);
void describeSource(CLI::App& app, Options& options);
void describeProve(CLI::App& app, Options& options);
void describeWeb(CLI::App& app, Options& options);
void describePage(CLI::App& app, Options& options);
void describeFormat(CLI::App& app, Options& options);
void describeServer(CLI::App& app, Options& options);
void describeGrammar(CLI::App& app, Options& options);
void describeCoverage(CLI::App& app, Options& options);
void describeFresh(CLI::App& app, Options& options);
void describePack(CLI::App& app, Options& options);

}  // namespace zentrox::story
