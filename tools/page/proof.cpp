#include "tools/page/proof.h"

#include <algorithm>
#include <filesystem>

#include "tools/story/inputs.h"

namespace zentrox::page {

namespace {

using nlohmann::json;

class ProofReader {
public:
    ProofReader(const std::string& name, const Reading& reading) : name_(name), reading_(reading) {
        for (const std::string& text : reading.texts)
            lines_.push_back(1 + std::count(text.begin(), text.end(), '\n'));
    }

    json read(const json& proof) {
        json out{{"complete", proof.at("complete").get<bool>()},
                 {"states", proof.at("states").get<std::uint64_t>()},
                 {"endings", json::array()},
                 {"dead", json::array()},
                 {"findings", json::array()}};
        for (const json& ending : proof.at("endings"))
            out["endings"].push_back({{"name", ending.at("name").get<std::string>()},
                                      {"steps", ending.at("steps").get<std::uint32_t>()},
                                      {"walk", ending.at("walk").get<std::string>()},
                                      {"play", play(ending.value("play", json::array()))}});
        for (const json& end : proof.at("dead")) {
            json dead{{"steps", end.at("steps").get<std::uint32_t>()},
                      {"walk", end.at("walk").get<std::string>()},
                      {"play", play(end.value("play", json::array()))}};
            place(end, dead);
            out["dead"].push_back(std::move(dead));
        }
        for (const json& finding : proof.at("findings")) {
            json told{{"s", finding.at("severity").get<std::string>()},
                      {"code", finding.at("code").get<std::string>()},
                      {"t", finding.at("message").get<std::string>()}};
            place(finding, told);
            out["findings"].push_back(std::move(told));
        }
        return out;
    }

private:
    json play(const json& steps) {
        json out = json::array();
        for (const json& step : steps) {
            json told{{"room", step.at("room").get<std::string>()},
                      {"do", step.at("do").get<std::string>()},
                      {"texts", step.at("texts").get<std::vector<std::string>>()}};
            if (step.contains("file")) place(step, told);
            out.push_back(std::move(told));
        }
        return out;
    }

    // The proof may have been made from another directory; the end of the path tells the file.
    void place(const json& from, json& to) {
        const std::filesystem::path path(from.at("file").get<std::string>());
        const int line = from.at("line").get<int>();
        for (std::size_t i = 0; i < reading_.files.size(); ++i) {
            const std::filesystem::path own(reading_.files[i]);
            if (own.filename() != path.filename() || reading_.texts[i].empty()) continue;
            if (line < 1 || line > lines_[i]) break;
            to["f"] = i;
            to["l"] = line;
            return;
        }
        throw story::WrongCall{name_ + " stammt von keiner Suche durch diese Geschichte, wie sie jetzt dasteht"};
    }

    const std::string& name_;
    const Reading& reading_;
    std::vector<std::ptrdiff_t> lines_;
};

}  // namespace

json proofOf(const std::string& text, const std::string& name, const Reading& reading) try {
    return ProofReader(name, reading).read(json::parse(text));
} catch (const json::exception&) {
    throw story::WrongCall{name + " ist nicht, was zentrox-story prove --json schreibt"};
}

}  // namespace zentrox::page
