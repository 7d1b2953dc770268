// A language server for stories: what an editor asks of its sources, answered by the compiler.
#pragma once

#include <functional>
#include <set>

#include "tools/lsp/protocol.h"

namespace zentrox::lsp {

class Server {
public:
    using Send = std::function<void(const Json&)>;
    // `data` is where all data lies; empty looks for it beside the sources.
    Server(fs::path data, Send send);

    void take(const Inbox::Taken& taken);
    // What is told unasked, once no more questions wait: findings.
    void tellFindings();
    bool hasNews() const { return news_; }

    bool ended() const { return ended_; }
    // 0 if the client has said goodbye properly.
    int status() const { return shutDown_ ? 0 : 1; }

private:
    using Answer = Json (Server::*)(const Json& params);
    using Notice = void (Server::*)(const Json& params);

    void request(const Json& id, const std::string& method, const Json& params);
    void notice(const std::string& method, const Json& params);
    Json answer(const std::string& method, const Json& params);
    void fail(const Json& id, int code, const std::string& message);

    Json initialize(const Json& params);
    Json shutDown(const Json& params);
    Json complete(const Json& params);
    Json hovered(const Json& params);
    Json defined(const Json& params);
    Json referred(const Json& params);
    Json highlighted(const Json& params);
    Json renameRangeAt(const Json& params);
    Json rename(const Json& params);
    Json symbols(const Json& params);
    Json allSymbols(const Json& params);
    Json format(const Json& params);

    void opened(const Json& params);
    void changed(const Json& params);
    void closed(const Json& params);
    void diskChanged(const Json& params);

    // Where a request points to. Throws a `Refusal` for a document that is not open or no file.
    Here here(const Json& params);
    fs::path documentIn(const Json& params) const;
    // Throws a `Refusal` where there is none.
    Here startOf(const Json& params);

    Send send_;
    Workspace workspace_;
    Encoding encoding_ = Encoding::utf16;
    bool initialized_ = false;
    bool shutDown_ = false;
    bool ended_ = false;
    bool news_ = false;
    std::set<fs::path> told_;  // files with findings that the client knows of
};

// Serves one client until it goes. Returns the exit status.
int serve(std::istream& in, std::ostream& out, const fs::path& data);

}  // namespace zentrox::lsp
