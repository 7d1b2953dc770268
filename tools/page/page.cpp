#include "tools/page/page.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <stdexcept>

#include "platform/machine/whole_file.h"
#include "tools/page/assets.h"
#include "tools/page/model.h"
#include "tools/page/proof.h"
#include "tools/story/build.h"
#include "tools/story/inputs.h"

namespace zentrox::page {

namespace fs = std::filesystem;

namespace {

std::string_view asset(std::string_view name) {
    for (const story::TemplateFile& file : story::pageFiles())
        if (name == file.path) return file.text;
    throw std::logic_error("no such part of the page");
}

// All scripts, in the order of their names.
std::string scripts() {
    std::string all;
    for (const story::TemplateFile& file : story::pageFiles())
        if (std::string_view(file.path).ends_with(".js")) all += file.text;
    return all;
}

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

// A script's element ends at "</script", whatever quotes stand around it, so that no "<" may stand in one.
std::string asScriptText(const nlohmann::ordered_json& model) {
    std::string out;
    for (const char c : model.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)) {
        if (c == '<')
            out += "\\u003c";
        else
            out += c;
    }
    return out;
}

void takeRan(const Order& order, story::Coverage& coverage) {
    for (const std::string& name : order.ran)
        if (!coverage.add(readFile(name).value_or("")))
            throw story::WrongCall{name + " stammt von keinem Gang durch diese Geschichte, wie sie jetzt dasteht"};
}

}  // namespace

std::string htmlOf(const nlohmann::ordered_json& model, const std::string& title) {
    const std::vector<std::pair<std::string_view, std::string>> parts{{"@@TITLE@@", escaped(title)},
                                                                      {"@@STYLE@@", std::string(asset("page.css"))},
                                                                      {"@@MODEL@@", asScriptText(model)},
                                                                      {"@@SCRIPT@@", scripts()}};
    std::string_view frame = asset("page.html");
    std::string out;
    while (!frame.empty()) {
        const std::size_t at = frame.find("@@");
        out += frame.substr(0, at);
        if (at == std::string_view::npos) break;
        frame.remove_prefix(at);
        for (const auto& [mark, text] : parts) {
            if (!frame.starts_with(mark)) continue;
            out += text;
            frame.remove_prefix(mark.size());
            break;
        }
    }
    return out;
}

void write(const Order& order, std::ostream& out, std::ostream& err) {
    story::needAll(order.ran);
    for (const std::string* const word : {&order.data, &order.proof})
        if (!word->empty()) story::needAll({*word});
    Reading reading = read(order.words, order.data);
    if (!order.title.empty()) reading.title = order.title;
    if (!reading.data)
        err << "zentrox-story: neben den Quellen liegen keine Daten, darum hat die Seite keine Bilder und Stimmen; "
               "wo sie liegen, sagt --data DIR\n";
    story::Coverage coverage(reading.story);
    takeRan(order, coverage);
    nlohmann::json proof;
    if (!order.proof.empty()) proof = proofOf(readFile(order.proof).value_or(""), order.proof, reading);
    Additions additions;
    if (!order.ran.empty()) additions.coverage = &coverage;
    if (!order.proof.empty()) additions.proof = &proof;
    additions.directory = fs::absolute(order.into).lexically_normal().parent_path();
    bool laidOut = true;
    const auto model = modelOf(reading, additions, laidOut);
    if (!laidOut)
        err << "zentrox-story: dot aus dem Paket graphviz fehlt, darum stehen Karte und Gespräche als Listen da\n";
    story::writeIfChanged(order.into, htmlOf(model, reading.title));
    out << order.into << "\n";
}

}  // namespace zentrox::page
