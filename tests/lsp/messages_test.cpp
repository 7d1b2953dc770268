// The conversation itself: what is damaged, comes in pieces, in the wrong order, or not at all.
#include <chrono>
#include <fstream>
#include <random>
#include <sstream>

#include "client.h"

namespace zentrox::lsp::test {

namespace {

std::string framed(const Json& message) {
    std::ostringstream out;
    writeMessage(out, message);
    return out.str();
}

Json request(int id, const std::string& method, const Json& params = Json::object()) {
    return {{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", params}};
}
Json notice(const std::string& method, const Json& params = Json::object()) {
    return {{"jsonrpc", "2.0"}, {"method", method}, {"params", params}};
}

struct Spoken {
    int status = -1;
    std::vector<Json> messages;

    const Json* answer(const Json& id) const {
        for (const Json& message : messages)
            if (message.value("id", Json("none")) == id) return &message;
        return nullptr;
    }
    int errorOf(const Json& id) const {
        const Json* const found = answer(id);
        return found ? found->value("error", Json::object()).value("code", 0) : 1;
    }
};

Spoken serveAll(std::istream& in) {
    std::ostringstream out;
    Spoken spoken;
    spoken.status = serve(in, out, {});
    std::istringstream said(out.str());
    MessageReader reader(said);
    while (auto message = reader.next()) {
        EXPECT_EQ(message->problem, "");
        spoken.messages.push_back(message->message);
    }
    return spoken;
}
Spoken serveAll(const std::string& bytes) {
    std::istringstream in(bytes);
    return serveAll(in);
}

// Gives a few bytes at a time.
class Pieces : public std::streambuf {
public:
    Pieces(std::string bytes, std::size_t length) : bytes_(std::move(bytes)), length_(length) {}

protected:
    int_type underflow() override {
        if (at_ >= bytes_.size()) return traits_type::eof();
        char* const begin = bytes_.data() + at_;
        at_ += std::min(length_, bytes_.size() - at_);
        setg(begin, begin, bytes_.data() + at_);
        return traits_type::to_int_type(*begin);
    }

private:
    std::string bytes_;
    std::size_t length_;
    std::size_t at_ = 0;
};

const std::string hello = framed(request(1, "initialize")) + framed(notice("initialized"));
const std::string goodbye = framed(request(9, "shutdown")) + framed(notice("exit"));

}  // namespace

TEST(Messages, ComesAndGoes) {
    EXPECT_EQ(serveAll(hello + goodbye).status, 0);
    EXPECT_EQ(serveAll(hello + framed(notice("exit"))).status, 1);
    EXPECT_EQ(serveAll(hello).status, 1);  // the client is gone without a word
    EXPECT_EQ(serveAll("").status, 1);
    // What stands behind the end is not read any more.
    EXPECT_EQ(serveAll(hello + goodbye + framed(request(10, "initialize"))).answer(10), nullptr);
}

TEST(Messages, OutOfOrder) {
    const Spoken spoken = serveAll(
        framed(request(2, "textDocument/hover")) + hello + framed(request(3, "initialize")) +
        framed(request(4, "foo/bar")) + framed(notice("foo/bar")) + framed(request(5, "textDocument/hover")) +
        framed(request(9, "shutdown")) + framed(request(6, "textDocument/hover")) + framed(notice("exit")));
    EXPECT_EQ(spoken.errorOf(2), code::notInitialized);
    EXPECT_EQ(spoken.errorOf(3), code::invalidRequest);
    EXPECT_EQ(spoken.errorOf(4), code::unknownMethod);
    EXPECT_EQ(spoken.errorOf(5), code::invalidParams);
    EXPECT_EQ(spoken.errorOf(6), code::invalidRequest);
    EXPECT_EQ(spoken.status, 0);
}

TEST(Messages, DamagedOnesAreAnsweredAndTheNextOneIsRead) {
    const auto body = [](const std::string& text) {
        return "Content-Length: " + std::to_string(text.size()) + "\r\n\r\n" + text;
    };
    std::string deep(100000, '[');
    const std::vector<std::pair<std::string, int>> damaged{
        {body("{\"id\":"), code::parseError},
        {body(deep), code::parseError},
        {body("\xFF\xFE"), code::parseError},
        {body(""), code::parseError},
        {body("[]"), code::invalidRequest},
        {body("17"), code::invalidRequest},
        {body("{}"), code::invalidRequest},
        {body("{\"method\":17,\"id\":null}"), code::invalidRequest},
        {body("{\"method\":\"shutdown\",\"id\":{}}"), code::invalidRequest},
        {"Kauderwelsch\r\n\r\n", code::parseError},
        {"Content-Length: viel\r\n\r\n", code::parseError},
        {"Content-Length: -5\r\n\r\n", code::parseError},
        {"Content-Length: 99999999999999999999999\r\n\r\n", code::parseError},
        {"Content-Length: 1000000000000\r\n\r\n", code::parseError},
        {std::string(3000000, 'x') + "\r\n\r\n", code::parseError},
    };
    for (const auto& [bytes, error] : damaged) {
        const Spoken spoken = serveAll(hello + bytes + framed(request(2, "foo")) + goodbye);
        EXPECT_EQ(spoken.errorOf(nullptr), error) << bytes.substr(0, 60);
        EXPECT_EQ(spoken.errorOf(2), code::unknownMethod) << bytes.substr(0, 60);
        EXPECT_EQ(spoken.status, 0);
    }
    // A length that is too small: the rest of the message runs into the next header.
    const Spoken shorter = serveAll(hello + "Content-Length: 10\r\n\r\n{\"id\":1,\"method\":\"x\"}" +
                                    framed(request(2, "foo")) + goodbye);
    EXPECT_EQ(shorter.errorOf(2), code::unknownMethod);
    // Other fields, in any case, and line feeds alone.
    const std::string text = request(2, "foo").dump();
    const Spoken spelled =
        serveAll(hello + "Content-Type: application/vscode-jsonrpc; charset=utf-8\r\nCONTENT-LENGTH:" +
                 std::to_string(text.size()) + "\n\n" + text + goodbye);
    EXPECT_EQ(spelled.errorOf(2), code::unknownMethod);
}

TEST(Messages, ParametersWithoutSense) {
    const Json document{{"uri", "file:///a.story"}, {"text", "Raum \"a.lsd\"\n"}, {"version", "1"}};
    const std::string open = framed(notice("textDocument/didOpen", {{"textDocument", document}}));
    const auto change = [](const Json& changes) {
        return framed(notice("textDocument/didChange",
                             {{"textDocument", {{"uri", "file:///a.story"}}}, {"contentChanges", changes}}));
    };
    const auto range = [](const Json& line, const Json& character) {
        const Json place{{"line", line}, {"character", character}};
        return Json{{"start", place}, {"end", {{"line", 0}, {"character", 0}}}};
    };
    std::string bytes = hello + open;
    for (const Json& number : {Json(-1), Json(1e300), Json(9223372036854775807), Json("1"), Json(), Json(99)})
        bytes += change({{{"range", range(number, 0)}, {"text", "x"}}}) +
                 change({{{"range", range(0, number)}, {"text", "x"}}});
    bytes += change(nullptr) + change("x") + change({{{"text", 7}}}) + change({1});
    for (const Json& params :
         {Json(), Json(7), Json::array(), Json{{"textDocument", 7}}, Json{{"textDocument", {{"uri", 7}}}}}) {
        bytes += framed(notice("textDocument/didOpen", params)) + framed(notice("textDocument/didChange", params)) +
                 framed(notice("textDocument/didClose", params));
        for (const char* method : {"textDocument/completion", "textDocument/hover", "textDocument/rename",
                                   "workspace/symbol", "textDocument/references", "textDocument/formatting"})
            bytes += framed(request(2, method, params));
    }
    for (const Json& number : {Json(-1), Json(1e300), Json(9223372036854775807), Json(18446744073709551615U)})
        bytes += framed(request(3, "textDocument/completion",
                                {{"textDocument", {{"uri", "file:///a.story"}}},
                                 {"position", {{"line", number}, {"character", number}}}}));
    const Spoken spoken = serveAll(bytes + framed(request(4, "foo")) + goodbye);
    EXPECT_EQ(spoken.errorOf(2), code::invalidParams);
    EXPECT_EQ(spoken.errorOf(4), code::unknownMethod);
    EXPECT_EQ(spoken.status, 0);
}

TEST(Messages, CancelledWhileTheyWait) {
    Inbox inbox;
    inbox.put({request(1, "a"), ""});
    inbox.put({request(2, "b"), ""});
    inbox.put({notice("$/cancelRequest", {{"id", 2}}), ""});
    inbox.put({notice("$/cancelRequest", {{"id", 7}}), ""});  // of nothing that waits: nothing is kept of it
    inbox.put({notice("$/cancelRequest"), ""});
    inbox.put({request(7, "c"), ""});
    inbox.close();
    EXPECT_FALSE(inbox.take()->cancelled);
    const auto second = inbox.take();
    EXPECT_TRUE(second->cancelled);
    EXPECT_FALSE(inbox.take()->cancelled);
    EXPECT_EQ(inbox.take(), std::nullopt);

    Client client;
    client.take(second->incoming.message, true);
    EXPECT_EQ(client.sent.back()["error"]["code"], code::cancelled);
    EXPECT_EQ(client.sent.back()["id"], 2);
}

// What an editor has said to the server, as it was recorded; @DEMO@ stands for where the demo lies.
TEST(Messages, ARecordedSession) {
    std::ifstream file(SESSIONS "/neovim.jsonl");
    std::string bytes;
    std::vector<Json> asked;
    for (std::string line; std::getline(file, line);) {
        for (std::size_t at = line.find("@DEMO@"); at != std::string::npos; at = line.find("@DEMO@", at))
            line.replace(at, 6, DEMO);
        const Json message = Json::parse(line);
        if (message.contains("id") && message.contains("method")) asked.push_back(message);
        bytes += framed(message);
    }
    ASSERT_GT(asked.size(), 8U);
    std::string whole;
    for (const std::size_t length : {std::size_t{1}, std::size_t{7}, std::size_t{1000}, bytes.size()}) {
        Pieces pieces(bytes, length);
        std::istream in(&pieces);
        const Spoken spoken = serveAll(in);
        EXPECT_EQ(spoken.status, 0);
        std::string answers;
        for (const Json& question : asked) {
            const Json* const answer = spoken.answer(question["id"]);
            ASSERT_NE(answer, nullptr) << question;
            EXPECT_TRUE(answer->contains("result")) << *answer;
            const std::string method = question["method"];
            EXPECT_TRUE(method == "shutdown" || !answer->at("result").empty()) << question;
            answers += answer->dump() + "\n";
        }
        EXPECT_TRUE(whole.empty() || whole == answers);
        whole = answers;
    }
}

// Whatever comes, an answer or silence, and an end.
TEST(Messages, Noise) {
    std::mt19937 random(18);
    const std::string good =
        hello + framed(request(2, "textDocument/hover")) + framed(notice("textDocument/didOpen"));
    for (int i = 0; i < 300; ++i) {
        std::string bytes = good;
        for (unsigned k = 0; k < 1 + random() % 8; ++k) {
            const std::size_t at = random() % bytes.size();
            if (random() % 3 == 0)
                bytes.erase(at, random() % 20);
            else
                bytes[at] = static_cast<char>(random());
        }
        std::istringstream in(bytes);
        std::ostringstream out;
        EXPECT_EQ(serve(in, out, {}), 1);
    }
}

}  // namespace zentrox::lsp::test
