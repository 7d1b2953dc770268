#include "tools/lsp/server.h"

#include <istream>
#include <ostream>
#include <thread>

#include "tools/story/format.h"

namespace zentrox::lsp {

namespace {

constexpr int pause = 30;       // milliseconds without a message, after which findings are told
constexpr int incremental = 2;  // of the protocol: changes come as ranges

Json capabilities(Encoding encoding) {
    return {{"positionEncoding", encoding == Encoding::utf8 ? "utf-8" : "utf-16"},
            {"textDocumentSync", {{"openClose", true}, {"change", incremental}, {"save", true}}},
            {"completionProvider", {{"triggerCharacters", {"\"", " "}}}},
            {"hoverProvider", true},
            {"definitionProvider", true},
            {"referencesProvider", true},
            {"documentHighlightProvider", true},
            {"renameProvider", {{"prepareProvider", true}}},
            {"documentSymbolProvider", true},
            {"workspaceSymbolProvider", true},
            {"documentFormattingProvider", true}};
}

Encoding offered(const Json& params) {
    const Json::json_pointer where("/capabilities/general/positionEncodings");
    if (!params.is_object() || !params.contains(where)) return Encoding::utf16;
    const Json& all = params.at(where);
    return std::find(all.begin(), all.end(), "utf-8") == all.end() ? Encoding::utf16 : Encoding::utf8;
}

int versionIn(const Json& document) {
    const Json version = document.value("version", Json());
    return version.is_number_integer() ? static_cast<int>(version.get<std::int64_t>()) : 0;
}

}  // namespace

Server::Server(fs::path data, Send send) : send_(std::move(send)), workspace_(std::move(data)) {}

// --- messages

void Server::take(const Inbox::Taken& taken) {
    const Json& message = taken.incoming.message;
    if (!taken.incoming.problem.empty()) return fail(nullptr, code::parseError, taken.incoming.problem);
    const Json id = message.is_object() ? message.value("id", Json()) : Json();
    const Json method = message.is_object() ? message.value("method", Json()) : Json();
    if (!method.is_string()) {
        // An answer to something that nobody asked is let pass.
        const bool answer = message.is_object() && (message.contains("result") || message.contains("error"));
        return answer ? void() : fail(nullptr, code::invalidRequest, "the message is no request");
    }
    const Json params = message.value("params", Json());
    if (!message.contains("id")) return notice(method, params);
    if (!id.is_string() && !id.is_number_integer())
        return fail(nullptr, code::invalidRequest, "a request without an id");
    if (taken.cancelled) return fail(id, code::cancelled, "the request was cancelled");
    request(id, method, params);
}

void Server::fail(const Json& id, int number, const std::string& message) {
    send_({{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", number}, {"message", message}}}});
}

void Server::request(const Json& id, const std::string& method, const Json& params) {
    try {
        Json result = answer(method, params);
        send_({{"jsonrpc", "2.0"}, {"id", id}, {"result", std::move(result)}});
    } catch (const Refusal& refusal) {
        fail(id, refusal.code, refusal.message);
    } catch (const Json::exception& error) {
        fail(id, code::invalidParams, error.what());
    } catch (const std::exception& error) {
        fail(id, code::internalError, error.what());
    }
}

Json Server::answer(const std::string& method, const Json& params) {
    static const std::map<std::string, Answer, std::less<>> answers{
        {"initialize", &Server::initialize},
        {"shutdown", &Server::shutDown},
        {"textDocument/completion", &Server::complete},
        {"textDocument/hover", &Server::hovered},
        {"textDocument/definition", &Server::defined},
        {"textDocument/references", &Server::referred},
        {"textDocument/documentHighlight", &Server::highlighted},
        {"textDocument/prepareRename", &Server::renameRangeAt},
        {"textDocument/rename", &Server::rename},
        {"textDocument/documentSymbol", &Server::symbols},
        {"workspace/symbol", &Server::allSymbols},
        {"textDocument/formatting", &Server::format},
    };
    if (shutDown_) throw Refusal{code::invalidRequest, "the server has been shut down"};
    if (initialized_ == (method == "initialize"))
        throw Refusal{initialized_ ? code::invalidRequest : code::notInitialized,
                      initialized_ ? "initialize comes once" : "initialize comes first"};
    const auto known = answers.find(method);
    if (known == answers.end()) throw Refusal{code::unknownMethod, "unknown method " + method};
    return (this->*known->second)(params);
}

void Server::notice(const std::string& method, const Json& params) {
    static const std::map<std::string, Notice, std::less<>> notices{
        {"textDocument/didOpen", &Server::opened},
        {"textDocument/didChange", &Server::changed},
        {"textDocument/didClose", &Server::closed},
        {"textDocument/didSave", &Server::diskChanged},
        {"workspace/didChangeWatchedFiles", &Server::diskChanged},
    };
    if (method == "exit") ended_ = true;
    const auto known = notices.find(method);
    if (known == notices.end() || !initialized_ || shutDown_) return;
    try {
        (this->*known->second)(params);
        news_ = true;
    } catch (const Refusal&) {
        // Of a document that is no file there is nothing to tell,
    } catch (const Json::exception&) {
        // and what makes no sense changes nothing.
    }
}

// --- the client comes and goes

Json Server::initialize(const Json& params) {
    encoding_ = offered(params);
    initialized_ = true;
    return {{"capabilities", capabilities(encoding_)},
            {"serverInfo", {{"name", "zentrox-story"}, {"version", ZENTROX_VERSION}}}};
}

Json Server::shutDown(const Json& /*params*/) {
    shutDown_ = true;
    news_ = false;
    return nullptr;
}

// --- documents

fs::path Server::documentIn(const Json& params) const {
    const auto path = pathOf(params.at("textDocument").at("uri").get<std::string>());
    if (!path) throw Refusal{code::requestFailed, "das ist keine Datei"};
    return *path;
}

void Server::opened(const Json& params) {
    const Json& document = params.at("textDocument");
    workspace_.open(documentIn(params), document.at("text").get<std::string>(), versionIn(document));
}

void Server::changed(const Json& params) {
    const fs::path path = documentIn(params);
    const Buffers::Buffer* const buffer = workspace_.buffer(path);
    if (!buffer) return;
    std::string text = buffer->text;
    for (const Json& change : params.at("contentChanges")) {
        const std::string& changed = change.at("text").get_ref<const std::string&>();
        if (!change.contains("range")) {
            text = changed;
            continue;
        }
        const Lines lines(text);
        const std::size_t from = lines.offset(positionIn(change.at("range").at("start")), encoding_);
        const std::size_t to = lines.offset(positionIn(change.at("range").at("end")), encoding_);
        text.replace(from, std::max(from, to) - from, changed);
    }
    workspace_.change(path, std::move(text), versionIn(params.at("textDocument")));
}

void Server::closed(const Json& params) {
    workspace_.close(documentIn(params));
}

void Server::diskChanged(const Json& /*params*/) {
    workspace_.forget();
}

Here Server::startOf(const Json& params) {
    const fs::path path = documentIn(params);
    if (!workspace_.buffer(path)) throw Refusal{code::requestFailed, path.string() + " ist nicht offen"};
    const Analysis& story = workspace_.storyOf(path);
    return {workspace_, story, path, story.fileNumber(path), 1, 1, encoding_};
}

Here Server::here(const Json& params) {
    Here here = startOf(params);
    const Position position = positionIn(params.at("position"));
    here.line = position.line + 1;
    here.column = here.lines().column(position, encoding_);
    return here;
}

// --- answers

Json Server::complete(const Json& params) {
    return completions(here(params));
}

Json Server::hovered(const Json& params) {
    return hover(here(params));
}

Json Server::defined(const Json& params) {
    return definitions(here(params));
}

Json Server::referred(const Json& params) {
    const Json context = params.value("context", Json::object());
    return references(here(params), !context.is_object() || context.value("includeDeclaration", true));
}

Json Server::highlighted(const Json& params) {
    return highlights(here(params));
}

Json Server::renameRangeAt(const Json& params) {
    return renameRange(here(params));
}

Json Server::rename(const Json& params) {
    return renamed(here(params), params.at("newName").get<std::string>());
}

Json Server::symbols(const Json& params) {
    return outline(startOf(params));
}

Json Server::allSymbols(const Json& params) {
    return symbolsLike(workspace_, params.value("query", ""), encoding_);
}

Json Server::format(const Json& params) {
    const Here here = startOf(params);
    const std::string& text = workspace_.text(here.path);
    const auto well = story::formatted(text);
    if (!well) throw Refusal{code::requestFailed, "diese Datei ist kein UTF-8"};
    if (*well == text) return Json::array();
    const Range all{{0, 0}, here.lines().end(encoding_)};
    return Json::array({{{"range", asJson(all)}, {"newText", *well}}});
}

// --- findings

void Server::tellFindings() {
    news_ = false;
    std::set<fs::path> now;
    for (const fs::path& directory : workspace_.openStories()) {
        const Analysis& story = workspace_.checkedStory(directory);
        for (std::size_t i = 0; i < story.parsed.story.files.size(); ++i) {
            const fs::path path = story.file(static_cast<int>(i));
            const Here here{workspace_, story, path, static_cast<int>(i), 1, 1, encoding_};
            Json list = diagnosticsOf(here);
            const Buffers::Buffer* const buffer = workspace_.buffer(path);
            if (list.empty() && !buffer && !told_.contains(path)) continue;
            if (!list.empty() || buffer) now.insert(path);
            Json params{{"uri", uriOf(path)}, {"diagnostics", std::move(list)}};
            if (buffer) params["version"] = buffer->version;
            send_(
                {{"jsonrpc", "2.0"}, {"method", "textDocument/publishDiagnostics"}, {"params", std::move(params)}});
            told_.erase(path);
        }
    }
    for (const fs::path& path : told_)
        send_({{"jsonrpc", "2.0"},
               {"method", "textDocument/publishDiagnostics"},
               {"params", {{"uri", uriOf(path)}, {"diagnostics", Json::array()}}}});
    told_ = std::move(now);
}

// --- the whole of it

int serve(std::istream& in, std::ostream& out, const fs::path& data) {
    Inbox inbox;
    // Reads ahead, so that a request that is cancelled while it waits is not answered.
    std::thread reader([&] {
        MessageReader messages(in);
        bool exits = false;
        while (auto incoming = exits ? std::nullopt : messages.next()) {
            exits = incoming->message.is_object() && incoming->message.value("method", Json()) == "exit";
            inbox.put(std::move(*incoming));
        }
        inbox.close();
    });
    Server server(data, [&](const Json& message) { writeMessage(out, message); });
    while (!server.ended()) {
        if (server.hasNews() && !inbox.wait(pause)) {
            server.tellFindings();
            continue;
        }
        const auto taken = inbox.take();
        if (!taken) break;
        server.take(*taken);
    }
    reader.join();
    return server.status();
}

}  // namespace zentrox::lsp
