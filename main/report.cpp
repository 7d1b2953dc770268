#include "main/report.h"

#include <algorithm>
#include <system_error>

#include "comfort/pictures.h"
#include "comfort/question.h"
#include "engine/state/felder.h"
#include "platform/codec/pictures.h"
#include "platform/machine/replace_file.h"
#include "platform/values/base64.h"
#include "platform/values/error.h"
#include "platform/window/messagebox.h"
#include "saves/saves.h"
#include "saves/spielstand.h"

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t lineLength = 100;
constexpr std::size_t mostOfARoom = 2000;  // lines of a walk that are kept of one room, while it rests now and then
constexpr TextView programFault =
    "Das Programm ist an einem Fehler gescheitert. Soll darüber ein Problembericht geschrieben werden?\n\n"_t;

// For the player, who may want to know before it is mailed.
constexpr const char* contents =
    "#\n"
    "# Diese Datei kann so, wie sie ist, an eine Mail gehängt werden. Bitte dazuschreiben, was nicht stimmt.\n"
    "# Sie enthält: Geschichte und Version, die Einstellungen, wo das Programm gerade steht, was seit dem Betreten "
    "des\n"
    "# Raums gespielt wurde, den Spielstand und das Bild. Im Spielstand stehen auch die Verzeichnisse, in denen "
    "die\n"
    "# Geschichte auf diesem Rechner liegt; sonst nichts von diesem Rechner und nichts über seinen Besitzer.\n"
    "# Nachspielen: zentrox-probe --dir GESCHICHTE --as-recorded DATEI\n"
    "#\n";

std::string remark(const std::string& title, const std::string& text) {
    return text.empty() ? "" : "# " + title + ": " + text + '\n';
}

// Bytes as remarks of a walk, some lines after a title.
std::string inRemarks(const std::string& title, std::string_view bytes) {
    std::string out = "# " + title + " (base64):\n";
    const std::string all = base64(bytes);
    for (std::size_t i = 0; i < all.size(); i += lineLength) out += "#   " + all.substr(i, lineLength) + '\n';
    return out;
}

Text baseName(TextView path) {
    Text name = Dateiname(path);
    return name.substr(0, name.rfind('.'));
}

// The topmost window that is no box.
Window* windowOf(const Queue& queue) {
    const auto& all = queue.windows();
    const auto found = std::find_if(all.rbegin(), all.rend(), [](Window* one) { return one->name() != "MsgBox"; });
    return found == all.rend() ? nullptr : *found;
}

std::string boxText(const Queue& queue) {
    std::string text;
    Window* const top = queue.active();
    if (top == nullptr || top->name() != "MsgBox") return text;
    for (const Control* const one : top->root().children())
        if (one->kind() == "label") text += toUtf8(one->shownText());
    for (char& c : text)
        if (c == '\r' || c == '\n') c = ' ';
    return text;
}

}  // namespace

Report::Report(Comforts& comforts, fs::path directory, const std::string& call)
    : comforts_(comforts),
      directory_(std::move(directory)) {
    beginWalk(call);
    comforts_.observers().Dazu(*this);
    comforts_.observers().Dazu(*writer_);
    comforts_.addLook([this](const Input& input) {
        writer_->sees(input);
        return false;
    });
    comforts_.addHint([this] {
        const Window* const top = comforts_.platform().queue.active();
        return Text(top != nullptr && tellsOfFailure(*top) ? "Strg+P schreibt einen Problembericht." : "");
    });
    comforts_.keys().add({.code = 'P',
                          .control = true,
                          .label = "Strg+P",
                          .does = "einen Problembericht schreiben",
                          .down = [this] { comforts_.notice(write()); },
                          .nests = true});
}

void Report::beginWalk(const std::string& call) {
    call_ = call + '\n';
    walk_.clear();
    writer_.reset();
    writer_.emplace(walk_).watch(&comforts_.platform(), &comforts_.zustand());
}

void Report::Betritt(TextView room) {
    room_ = room;
    shortened_ = false;
    beginHere();
}

void Report::Ruht() {
    if (walk_.lines() < mostOfARoom) return;
    shortened_ = true;
    beginHere();
}

void Report::beginHere() {
    const Zustand& z = comforts_.zustand();
    Beginning beginning;
    for (const Text& flag : z.Merker)
        if (!flag.empty()) beginning.flags.push_back(toUtf8(flag));
    for (std::int32_t i = 0; i <= z.InventarLetzter; ++i)
        beginning.items.push_back(toUtf8(baseName(z.Inventar[static_cast<std::size_t>(i)])));
    beginning.evil = z.BösePunkte;
    beginning.random = comforts_.platform().random.state();
    beginWalk(walkCall(toUtf8(room_), beginning));
}

std::string Report::head() const {
    std::string out = "# Zentrox " ZENTROX_VERSION ", Problembericht\n";
    out += remark("Geschichte", toUtf8(comforts_.zustand().Titel.Name)) + contents;
    const std::string settings = writeSettings(comforts_.settings(), "");
    for (const TextView line : linesOf(settings))
        if (!line.empty()) out += remark("Einstellung", std::string(line));
    out += remark("Wartet in", toUtf8(comforts_.platform().queue.reasons()));
    out += remark("Meldung", boxText(comforts_.platform().queue));
    out += remark("Am Ende stand ein Fehler", fault_);
    if (shortened_)
        out +=
            "# Der Raum wurde sehr lange gespielt. Der Bericht beginnt dort, wo zuletzt nichts lief; was im Raum\n"
            "# verändert war, ist beim Nachspielen wie beim Betreten.\n";
    if (walk_.cut()) out += "# Der Anfang fehlt; der Rest lässt sich so nicht nachspielen.\n";
    return out + "#\n";
}

std::string Report::tail() const {
    Window* const window = windowOf(comforts_.platform().queue);
    return inRemarks("Spielstand", SpielstandSchreiben(comforts_.zustand())) +
           inRemarks("Bild, PNG", window != nullptr ? pngFile(window->compose()) : "");
}

Text Report::write() {
    std::error_code error;
    fs::create_directories(directory_, error);
    const fs::path file = datedFile(directory_, "Zentrox-Bericht", ".txt");
    try {
        replaceFile(file, call_ + head() + walk_.text() + tail());
        return Text("Problembericht geschrieben:\n") + fromUtf8(file.string());
    } catch (const std::system_error& failure) {
        return Text("Der Bericht kann nicht geschrieben werden:\n") + SchreibfehlerText(failure.code().value());
    }
}

void Report::offerAfter(const std::string& fault) {
    fault_ = fault;
    Platform& platform = comforts_.platform();
    try {
        if (ask(platform, Text(programFault) + fromUtf8(fault), "Bericht schreiben", "Beenden"))
            showMessageBox(platform, {"Zentrox", write(), MessageBox::Icon::information});
    } catch (const ProgramEnd&) {
        // The question was cut off with the process.
    }
}

}  // namespace zentrox
