#include "tools/lsp/messages.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <istream>
#include <ostream>

namespace zentrox::lsp {

namespace {

constexpr std::string_view lengthField = "content-length:";
constexpr std::size_t longestLine = 1000;          // of a header; what is longer is none
constexpr std::size_t longestMessage = 1U << 25U;  // bytes
constexpr int deepestMessage = 100;
constexpr std::size_t mostWaiting = 200;

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

// Wherever in the line it stands: a damaged message may end right before it.
std::optional<std::size_t> lengthIn(const std::string& line) {
    const std::size_t at = lowered(line).rfind(lengthField);
    if (at == std::string::npos) return std::nullopt;
    std::string_view digits = std::string_view(line).substr(at + lengthField.size());
    digits.remove_prefix(std::min(digits.find_first_not_of(' '), digits.size()));
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    if (error != std::errc() || end == digits.data()) return std::nullopt;
    return length;
}

// Brackets outside of texts, so that nobody builds towers of them in memory.
bool tooDeep(std::string_view json) {
    int depth = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (quoted && c == '\\')
            ++i;
        else if (c == '"')
            quoted = !quoted;
        else if (!quoted && (c == '[' || c == '{') && ++depth > deepestMessage)
            return true;
        else if (!quoted && (c == ']' || c == '}'))
            --depth;
    }
    return false;
}

Incoming parsed(const std::string& body) {
    if (tooDeep(body)) return {nullptr, "the message is nested too deeply"};
    Json message = Json::parse(body, nullptr, false);
    if (message.is_discarded()) return {nullptr, "the message is no JSON"};
    return {std::move(message), ""};
}

}  // namespace

std::optional<std::string> MessageReader::line() {
    std::string text;
    for (int c = in_.get(); c != std::istream::traits_type::eof(); c = in_.get()) {
        if (c == '\n') {
            if (!text.empty() && text.back() == '\r') text.pop_back();
            return text;
        }
        // Of a line without an end only what may still be the field is kept.
        if (text.size() >= 2 * longestLine) text.erase(0, longestLine);
        text += static_cast<char>(c);
    }
    return std::nullopt;
}

std::optional<std::size_t> MessageReader::header(bool& damaged) {
    std::optional<std::size_t> length;
    while (const auto text = line()) {
        if (const auto found = lengthIn(*text)) {
            length = found;
        } else if (text->empty()) {
            if (length) return length;
            damaged = true;
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<Incoming> MessageReader::next() {
    bool damaged = false;
    const auto length = header(damaged);
    if (damaged) return Incoming{nullptr, "a header without Content-Length"};
    if (!length) return std::nullopt;
    if (*length > longestMessage) return Incoming{nullptr, "the message is too long"};
    std::string body(*length, '\0');
    in_.read(body.data(), static_cast<std::streamsize>(body.size()));
    if (static_cast<std::size_t>(in_.gcount()) < body.size()) return std::nullopt;
    return parsed(body);
}

void writeMessage(std::ostream& out, const Json& message) {
    // Names of the system may be no UTF-8.
    const std::string body = message.dump(-1, ' ', false, Json::error_handler_t::replace);
    out << "Content-Length: " << body.size() << "\r\n\r\n" << body << std::flush;
}

void Inbox::put(Incoming incoming) {
    std::unique_lock lock(mutex_);
    const Json& message = incoming.message;
    if (message.is_object() && message.value("method", Json()) == "$/cancelRequest") {
        const Json params = message.value("params", Json());
        const Json id = params.is_object() ? params.value("id", Json()) : Json();
        const bool waits = std::any_of(waiting_.begin(), waiting_.end(), [&](const Incoming& other) {
            return other.message.is_object() && other.message.contains("method") &&
                   other.message.value("id", Json()) == id;
        });
        if (waits && !id.is_null()) cancelled_.insert(id);
        return;
    }
    gone_.wait(lock, [&] { return waiting_.size() < mostWaiting; });
    waiting_.push_back(std::move(incoming));
    come_.notify_one();
}

void Inbox::close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    come_.notify_one();
}

std::optional<Inbox::Taken> Inbox::take() {
    std::unique_lock lock(mutex_);
    come_.wait(lock, [&] { return closed_ || !waiting_.empty(); });
    if (waiting_.empty()) return std::nullopt;
    Taken taken{std::move(waiting_.front()), false};
    waiting_.pop_front();
    gone_.notify_one();
    if (taken.incoming.message.is_object()) {
        const Json id = taken.incoming.message.value("id", Json());
        taken.cancelled = !id.is_null() && cancelled_.erase(id) > 0;
    }
    return taken;
}

bool Inbox::wait(int milliseconds) {
    std::unique_lock lock(mutex_);
    return come_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                          [&] { return closed_ || !waiting_.empty(); });
}

}  // namespace zentrox::lsp
