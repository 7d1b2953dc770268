// save_once DIRECTORY: saves a game as "spiel" and prints what the game says then, in UTF-8.
#include <iostream>

#include "saves_fixture.h"

int main(int count, char** arguments) {
    using namespace zentrox;
    using namespace zentrox::test;
    if (count != 2) return 2;
    FakeBackend backend;
    FakeFonts fonts;
    FakeSound sound{backend};
    Platform platform{backend, fonts, sound, Files(arguments[1])};
    Zustand z;
    FakeRaumfenster room;
    playOn(z);
    backend.type("spiel");
    backend.key(key::enter);
    backend.key(key::enter);
    SpielSpeichern(platform, z, room);
    std::cout << toUtf8(backend.boxes.back().text) << std::endl;
    return backend.boxes.back().icon == MessageBox::Icon::critical ? 1 : 0;
}
