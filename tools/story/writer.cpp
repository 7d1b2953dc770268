#include "tools/story/writer.h"

#include "platform/values/error.h"

namespace zentrox::story {

namespace {

constexpr TextView lineEnd = "\r\n";

bool holdsQuote(TextView text) {
    return text.find('"') != TextView::npos;
}

void putText(std::string& out, TextView text) {
    if (!writable(text))
        throw DataError(Text("Ein Text mit Anführungszeichen passt in keine Datei: "_t) + Text(text));
    if (holdsQuote(text)) {
        out.append(text).append(lineEnd);
        return;
    }
    (out += '"').append(text);
    (out += '"').append(lineEnd);
}

void putTruth(std::string& out, bool value) {
    out.append(value ? "#TRUE#" : "#FALSE#").append(lineEnd);
}

void putScript(std::string& out, const Skript& script) {
    out.append(std::to_string(script.Letzter)).append(lineEnd);
    for (std::size_t i = 0; static_cast<std::int64_t>(i) <= script.Letzter; ++i) {
        (out += std::to_string(script.Befehl[i])) += ',';
        putText(out, i < script.Argument.size() ? TextView(script.Argument[i]) : TextView());
    }
}

// One line a column.
void putMask(std::string& out, const Maske& mask) {
    for (int column = 0; column < Maskenspalten; ++column) {
        for (int row = 0; row < Maskenzeilen; ++row) {
            out.append(mask.at(column, row) ? "255" : "0");
            out.append(row + 1 < Maskenzeilen ? "," : lineEnd);
        }
    }
}

void putObject(std::string& out, const RaumObjekt& object) {
    for (std::size_t i = 0; i < object.Aktion.size(); ++i) {
        putTruth(out, object.HatSkript[i]);
        putScript(out, object.Aktion[i]);
    }
    putText(out, object.Zeiger);
    putTruth(out, object.Aktiv);
    putText(out, object.Name);
    putMask(out, object.Maske);
}

}  // namespace

bool writable(TextView text) {
    if (!holdsQuote(text)) return true;
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    return text.front() != '"' && !blank(text.front()) && !blank(text.back()) &&
           text.find_first_of(",\r\n") == TextView::npos;
}

std::string writeRoom(const Raum& room) {
    std::string out;
    putText(out, room.Bild);
    putScript(out, room.Startskript);
    out.append(std::to_string(room.LetztesObjekt)).append(lineEnd);
    for (std::size_t i = 0; static_cast<std::int64_t>(i) <= room.LetztesObjekt; ++i)
        putObject(out, room.Objekte[i]);
    putScript(out, room.CountDownSkript);
    return out;
}

std::string writeScript(const Skript& script) {
    std::string out;
    putScript(out, script);
    return out;
}

}  // namespace zentrox::story
