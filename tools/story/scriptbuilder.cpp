#include "tools/story/scriptbuilder.h"

#include <algorithm>
#include <charconv>

#include "engine/language/limits.h"
#include "tools/story/writer.h"

namespace zentrox::story {

namespace {

constexpr char optionMark = '|';

std::optional<std::int32_t> wholeNumber(TextView text) {
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::vector<Place> placesOf(std::span<const Token> words) {
    std::vector<Place> places;
    for (const Token& word : words) places.push_back(word.place);
    return places;
}

}  // namespace

void ScriptBuilder::add(std::int32_t number, Text argument, Place command, std::vector<Place> argumentPlaces,
                        bool raw) {
    script_.Befehl.push_back(number);
    script_.Argument.push_back(std::move(argument));
    places_.commands.push_back({command, std::move(argumentPlaces), raw});
}

void ScriptBuilder::take(const PlainCommand& plain) {
    const std::size_t before = places_.commands.size();
    const Token& first = plain.words.front();
    const Opcode* const opcode = commandNamed(first.value);
    if (opcode)
        command(*opcode, plain.words);
    else if (normalised(first.value) == "roh")
        raw(plain.words);
    else if (normalised(first.value) == "option")
        option(plain.words);
    for (std::size_t i = before; i < places_.commands.size(); ++i) {
        places_.commands[i].made = plain.made;
        places_.commands[i].speaker = plain.speaker;
    }
}

void ScriptBuilder::command(const Opcode& opcode, const Statement& statement) {
    const Place place = statement.front().place;
    const auto words = std::span(statement).subspan(1);
    if (opcode.arg == Arg::choice) return openChoice(statement);
    if (opcode.arg == Arg::option) {
        if (const auto number = addOption(statement)) add(opcode.number, std::to_string(*number), place, {});
        return;
    }
    const auto argument = compileArgument(opcode, place, words, findings_);
    add(opcode.number, argument.value_or(""), place, opcode.arg == Arg::text ? linePlaces(words) : placesOf(words));
    places_.commands.back().broken = !argument;
    if (opcode.role == Role::opens) blocks_.emplace_back();
    if (opcode.role == Role::closes) closeBlock(opcode.block == zentrox::Block::choice);
}

void ScriptBuilder::openChoice(const Statement& statement) {
    const auto words = std::span(statement).subspan(1);
    const Place place = statement.front().place;
    Choice choice;
    choice.index = script_.Befehl.size();
    choice.question = compileText("Auswahl", place, words, findings_).value_or("");
    choice.questionPlaces = linePlaces(words);
    if (choice.question.find(optionMark) != Text::npos)
        findings_.broken(place, "zeichen", "eine Frage kann kein | enthalten, das trennt die Möglichkeiten");
    add("Auswahl"_op, {}, place, {});
    blocks_.push_back({std::move(choice)});
    ++openChoices_;
}

// The number of an option stands in front of its text only where options are not in the order of their cases.
// Without one it gets the lowest that is free.
std::optional<std::int32_t> ScriptBuilder::addOption(const Statement& statement) {
    const Place place = statement.front().place;
    if (blocks_.empty() || !blocks_.back().choice) {
        findings_.broken(place, "block",
                         shown(statement.front().value) + " steht nicht in einer Auswahl" +
                             (blocks_.empty() ? "" : "; davor fehlt vielleicht ein EndeWenn"));
        return std::nullopt;
    }
    Choice& choice = *blocks_.back().choice;
    auto words = std::span(statement).subspan(1);
    std::int32_t number = 1;
    while (choice.options.contains(number)) ++number;
    if (!words.empty() && !words[0].quoted) {
        const auto given = wholeNumber(words[0].value);
        if (given && (*given < 1 || *given > MeisteOptionen))
            findings_.broken(words[0].place, "fall",
                             "die Nummer einer Möglichkeit liegt zwischen 1 und " + std::to_string(MeisteOptionen));
        if (given) {
            number = std::clamp(*given, 1, MeisteOptionen);
            words = words.subspan(1);
        }
    }
    const Text text = compileText(statement.front().value, place, words, findings_).value_or("");
    if (text.find(optionMark) != Text::npos)
        findings_.broken(place, "zeichen", "eine Möglichkeit kann kein | enthalten, das trennt die Möglichkeiten");
    if (choice.options.emplace(number, Choice::Option{text, linePlaces(words)}).second) return number;
    findings_.broken(
        place, "fall",
        "die Möglichkeit " + std::to_string(number) + " gibt es schon; jede Nummer kommt nur einmal vor");
    return std::nullopt;
}

void ScriptBuilder::option(const Statement& statement) {
    addOption(statement);
}

void ScriptBuilder::raw(const Statement& statement) {
    const Place place = statement.front().place;
    if (statement.size() < 2 || statement.size() > 3 || statement[1].quoted) {
        findings_.broken(place, "argument",
                         "\"Roh\" braucht einen Befehl oder dessen Nummer, und vielleicht ein Argument in "
                         "Anführungszeichen");
        return;
    }
    const Opcode* const opcode = commandNamed(statement[1].value);
    const auto number = opcode ? opcode->number : wholeNumber(statement[1].value);
    if (!number) {
        findings_.broken(statement[1].place, "befehl",
                         "einen Befehl " + shown(statement[1].value) +
                             " gibt es nicht; hier steht der Name eines Befehls oder eine Nummer");
        return;
    }
    const Text argument = statement.size() > 2 ? statement[2].value : Text();
    if (!writable(argument))
        findings_.broken(place, "zeichen", "ein Anführungszeichen kann an dieser Stelle nicht gespeichert werden");
    add(*number, argument, place, placesOf(std::span(statement).subspan(2)), true);
}

// Closes the innermost block of this kind and what stands open within it.
void ScriptBuilder::closeBlock(bool choice) {
    const auto isKind = [&](const Block& block) { return block.choice.has_value() == choice; };
    if (choice && openChoices_ == 0) return;
    if (!choice && static_cast<std::size_t>(openChoices_) == blocks_.size()) return;
    for (bool found = false; !found;) {
        found = isKind(blocks_.back());
        if (blocks_.back().choice) {
            writeChoice(*blocks_.back().choice);
            --openChoices_;
        }
        blocks_.pop_back();
    }
}

void ScriptBuilder::writeChoice(const Choice& choice) {
    Text argument = std::to_string(choice.options.size()) + optionMark + choice.question;
    CommandPlace& place = places_.commands[choice.index];
    place.argument = choice.questionPlaces;
    std::int32_t expected = 1;
    for (const auto& [number, option] : choice.options) {
        (argument += optionMark) += option.text;
        place.argument.insert(place.argument.end(), option.places.begin(), option.places.end());
        if (number == expected++) continue;
        findings_.broken(place.command, "fall",
                         "die Möglichkeiten einer Auswahl haben die Nummern von 1 an ohne Lücke; " +
                             std::to_string(number) + " steht hier als Nummer " + std::to_string(expected - 1));
        break;
    }
    if (!writable(argument))
        findings_.broken(place.command, "zeichen", "ein Anführungszeichen kann hier nicht gespeichert werden");
    script_.Argument[choice.index] = argument;
}

void ScriptBuilder::finish(Skript& script, ScriptPlaces& places) {
    for (const Block& block : blocks_)
        if (block.choice) writeChoice(*block.choice);
    blocks_.clear();
    openChoices_ = 0;
    script_.Letzter = static_cast<std::int32_t>(script_.Befehl.size()) - 1;
    script = std::move(script_);
    const Place head = places.head;
    places = std::move(places_);
    places.head = head;
    script_ = {};
    places_ = {};
}

}  // namespace zentrox::story
