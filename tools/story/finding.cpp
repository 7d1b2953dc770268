#include "tools/story/finding.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <tuple>

#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

constexpr std::size_t longestShown = 60;
constexpr std::size_t mostCandidates = 1000;  // among more than these nobody looks for a likely one
constexpr std::size_t shortestTypo = 2;
constexpr std::size_t shortestBeginning = 3;  // of a longer name
constexpr std::size_t mostLonger = 3;

const char* nameOf(Severity severity) {
    return severity == Severity::error ? "error" : "warning";
}

// How many single characters have to change to get from one word to the other; `enough` if it is not less.
std::size_t distance(TextView a, TextView b, std::size_t enough) {
    if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) >= enough) return enough;
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] != b[j - 1] ? 1 : 0);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, changed});
        }
        if (*std::min_element(row.begin(), row.end()) >= enough) return enough;
    }
    return row[b.size()];
}

// What is numbered is no typing error of its neighbour.
Text digitsOf(TextView text) {
    Text digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

// A name that came from outside may hold anything but must not break the line of a finding.
std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

}  // namespace

void Findings::broken(Place place, std::string_view code, const std::string& message) {
    findings_.push_back({place, Severity::error, std::string(code), message, true});
}

void Findings::error(Place place, std::string_view code, const std::string& message) {
    findings_.push_back({place, Severity::error, std::string(code), message, false});
}

void Findings::warning(Place place, std::string_view code, const std::string& message) {
    findings_.push_back({place, Severity::warning, std::string(code), message, false});
}

void Findings::settle(const Story& story) {
    const std::set<Silence> silences(story.silences.begin(), story.silences.end());
    std::erase_if(findings_, [&](const Finding& f) {
        return !f.fixed && silences.contains({f.place.file, f.place.line, f.code});
    });
    const auto key = [&](const Finding& f) {
        return std::make_tuple(std::string_view(story.files[static_cast<std::size_t>(f.place.file)]), f.place,
                               std::string_view(f.code), std::string_view(f.message));
    };
    std::sort(findings_.begin(), findings_.end(),
              [&](const Finding& a, const Finding& b) { return key(a) < key(b); });
    findings_.erase(std::unique(findings_.begin(), findings_.end(),
                                [&](const Finding& a, const Finding& b) { return key(a) == key(b); }),
                    findings_.end());
}

bool Findings::hasErrors() const {
    return std::any_of(findings_.begin(), findings_.end(),
                       [](const Finding& f) { return f.severity == Severity::error; });
}

bool Findings::hasBroken() const {
    return std::any_of(findings_.begin(), findings_.end(), [](const Finding& f) { return f.fixed; });
}

std::string asLines(const Story& story, const Findings& findings) {
    std::string out;
    for (const Finding& f : findings.all())
        out += story.files[static_cast<std::size_t>(f.place.file)] + ":" + std::to_string(f.place.line) + ":" +
               std::to_string(f.place.column) + ": " + nameOf(f.severity) + " [" + f.code +
               "]: " + oneLine(f.message) + "\n";
    return out;
}

std::string asJson(const Story& story, const Findings& findings) {
    auto list = nlohmann::ordered_json::array();
    for (const Finding& f : findings.all())
        list.push_back({{"file", story.files[static_cast<std::size_t>(f.place.file)]},
                        {"line", f.place.line},
                        {"column", f.place.column},
                        {"severity", nameOf(f.severity)},
                        {"code", f.code},
                        {"message", f.message}});
    // A name of the system may be no UTF-8.
    return list.dump(1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

std::string shown(TextView text) {
    Text cut(text.substr(0, longestShown));
    std::replace_if(
        cut.begin(), cut.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    return "\"" + toUtf8(cut) + (text.size() > longestShown ? "...\"" : "\"");
}

std::string perhaps(TextView word, const std::vector<Text>& candidates) {
    if (word.size() < shortestTypo || word.size() > longestShown || candidates.size() > mostCandidates) return "";
    const Text sought = normalised(word);
    const Text digits = digitsOf(sought);
    const Text* best = nullptr;
    std::vector<const Text*> longer;
    std::size_t least = std::max<std::size_t>(sought.size() / 3, 1) + 1;
    for (const Text& candidate : candidates) {
        if (candidate.empty() || candidate.size() > longestShown) continue;
        const Text name = normalised(candidate);
        if (name.starts_with(sought)) longer.push_back(&candidate);
        if (digitsOf(name) != digits) continue;
        const std::size_t far = distance(sought, name, least);
        if (far >= least) continue;
        least = far;
        best = &candidate;
    }
    if (best) return "; gemeint ist vielleicht " + shown(*best);
    if (longer.empty() || longer.size() > mostLonger || sought.size() < shortestBeginning) return "";
    std::string hint = "; gemeint ist vielleicht ";
    for (const Text* const name : longer) hint += (name == longer.front() ? "" : " oder ") + shown(*name);
    return hint;
}

}  // namespace zentrox::story
