// The game on its sources: what is saved is compiled and shown at once, with flags, bag and evil counter as they
// are.
#pragma once

#include <set>

#include "author/compiler.h"
#include "author/walkwriter.h"
#include "comfort/comforts.h"
#include "platform/machine/watch.h"

namespace zentrox::author {

// Under which the keys of an author stand on the page of all keys.
constexpr TextView Werkbank = "Werkbank";

class Workbench : public Beobachter {
public:
    // All must outlive it; `record` may be null. Compiles for the first time.
    Workbench(Comforts& comforts, Compiler& compiler, WalkWriter* record);

    void Öffnet(Raumfenster& room) override { room_ = &room; }
    void Schließt() override { room_ = nullptr; }

    // Gives up what runs and enters a room, by the name of its file. Does not return where there is a room window.
    void enter(const Text& room);
    // What is wrong with the sources as they are now. Errors stand over the picture.
    const std::vector<Compiler::Finding>& findings() const { return findings_; }
    bool faulty() const;
    // Is another number after each compilation.
    int news() const { return news_; }
    Raumfenster* room() const { return room_; }
    const Compiler& compiler() const { return compiler_; }
    Comforts& comforts() { return comforts_; }
    WalkWriter* record() const { return record_; }

private:
    struct Changes {
        bool sources = false;
        std::set<Text> media;  // names of files, without directories
    };

    void look();
    Changes sorted(const std::set<std::filesystem::path>& files) const;
    void take(const Changes& changes);
    // True if the room that stands has changed.
    bool compile();
    bool roomNames(const std::set<Text>& media) const;
    void playSongAnew(const std::set<Text>& media);
    void showBagAnew(const std::set<Text>& media);
    void watchSources();
    void watch(const std::filesystem::path& directory);
    void draw(Bitmap& picture, const Rect& base) const;

    Comforts& comforts_;
    Compiler& compiler_;
    WalkWriter* record_;
    Raumfenster* room_ = nullptr;
    Watch watch_;
    std::set<std::filesystem::path> watched_;
    std::set<std::filesystem::path> changed_;  // while more may come
    std::vector<Compiler::Finding> findings_;
    int news_ = 0;
    Timer timer_;
};

}  // namespace zentrox::author
