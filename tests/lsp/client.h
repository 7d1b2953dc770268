// A client of the language server, for tests: a story in a directory of its own, and questions about places in it.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/temp_directory.h"
#include "tools/lsp/server.h"

namespace zentrox::lsp::test {

class Client {
public:
    explicit Client(const Json& capabilities = Json::object()) {
        server_ = std::make_unique<Server>(fs::path(), [this](const Json& message) { sent.push_back(message); });
        request("initialize", {{"capabilities", capabilities}});
        notice("initialized", Json::object());
    }

    std::vector<Json> sent;

    fs::path path(const std::string& name) const { return directory_.path() / name; }
    std::string uri(const std::string& name) const { return uriOf(path(name)); }
    void save(const std::string& name, const std::string& text) { directory_.write(name, text); }

    void open(const std::string& name, const std::string& text) {
        texts_[name] = text;
        notice("textDocument/didOpen",
               {{"textDocument", {{"uri", uri(name)}, {"languageId", "story"}, {"version", 1}, {"text", text}}}});
    }

    void take(const Json& message, bool cancelled = false) { server_->take({{message, ""}, cancelled}); }
    void notice(const std::string& method, const Json& params) {
        take({{"jsonrpc", "2.0"}, {"method", method}, {"params", params}});
    }
    // The whole answer.
    Json ask(const std::string& method, const Json& params) {
        take({{"jsonrpc", "2.0"}, {"id", ++id_}, {"method", method}, {"params", params}});
        EXPECT_EQ(sent.back().value("id", 0), id_);
        return sent.back();
    }
    Json request(const std::string& method, const Json& params) {
        const Json answer = ask(method, params);
        EXPECT_TRUE(answer.contains("result")) << answer;
        return answer.value("result", Json());
    }

    // Where the text of an open file first has `mark`; the cursor stands on its first character, or `in` further
    // on.
    Json at(const std::string& name, const std::string& mark, std::size_t in = 0) const {
        const std::string& text = texts_.at(name);
        const std::size_t place = text.find(mark);
        EXPECT_NE(place, std::string::npos) << mark;
        const Lines before(std::string_view(text).substr(0, place + in));
        return {{"textDocument", {{"uri", uri(name)}}}, {"position", asJson(before.end(Encoding::utf16))}};
    }

    // Places as "FILE:LINE:CHARACTER-CHARACTER", in order.
    std::vector<std::string> places(const Json& locations) const {
        std::vector<std::string> found;
        for (const Json& location : locations)
            found.push_back(fs::path(location.at("uri").get<std::string>()).filename().string() + ":" +
                            spelled(location.at("range")));
        std::sort(found.begin(), found.end());
        return found;
    }
    static std::string spelled(const Json& range) {
        const Json& start = range.at("start");
        const Json& end = range.at("end");
        EXPECT_EQ(start.at("line"), end.at("line"));
        return std::to_string(start.at("line").get<int>()) + ":" +
               std::to_string(start.at("character").get<int>()) + "-" +
               std::to_string(end.at("character").get<int>());
    }

    // The findings that are told now, by file, as "LINE:CHARACTER-CHARACTER CODE".
    std::map<std::string, std::vector<std::string>> findings() {
        sent.clear();
        server_->tellFindings();
        std::map<std::string, std::vector<std::string>> found;
        for (const Json& message : sent) {
            const Json& params = message.at("params");
            auto& list = found[fs::path(params.at("uri").get<std::string>()).filename().string()];
            for (const Json& finding : params.at("diagnostics"))
                list.push_back(spelled(finding.at("range")) + " " + finding.at("code").get<std::string>());
        }
        return found;
    }

    // What an edit makes of the files that are open.
    std::map<std::string, std::string> applied(const Json& edit) {
        std::map<std::string, std::string> texts;
        for (const auto& [name, text] : texts_)
            texts[name] = edited(text, edit.at("changes").value(uri(name), Json::array()));
        return texts;
    }
    static std::string edited(std::string text, Json edits) {
        const Lines lines(text);
        const auto place = [&](const Json& edit, const char* which) {
            return lines.offset(positionIn(edit.at("range").at(which)), Encoding::utf16);
        };
        std::vector<std::tuple<std::size_t, std::size_t, std::string>> all;
        for (const Json& edit : edits)
            all.emplace_back(place(edit, "start"), place(edit, "end"), edit.at("newText"));
        std::sort(all.rbegin(), all.rend());
        for (const auto& [from, to, put] : all) text.replace(from, to - from, put);
        return text;
    }

    const Server& server() const { return *server_; }

private:
    zentrox::test::TempDirectory directory_;
    std::unique_ptr<Server> server_;
    std::map<std::string, std::string> texts_;
    int id_ = 0;
};

}  // namespace zentrox::lsp::test
