// A platform for tests with nothing behind it: a machine, fonts and a sound device of the tests' own, and a
// directory.
#pragma once

#include "platform/machine/sound.h"
#include "platform/platform.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {

struct Stage {
    TempDirectory directory;
    FakeBackend backend;
    FakeFonts fonts;
    FakeSound sound{backend};
    Platform platform{backend, fonts, sound, directory.path()};
};

}  // namespace zentrox::test
