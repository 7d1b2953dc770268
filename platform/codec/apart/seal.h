// What makes a process harmless, whatever code it comes to run.
#pragma once

namespace zentrox::apart {

// The files that a sealed process has besides its messages for the developer: one to talk through, one to read.
constexpr int channelPlace = 3;
constexpr int filePlace = 4;

// Takes from this process all rights but to reckon, to read the file and to talk through the channel: it opens
// nothing, starts nothing, signals nobody, makes no code, and has bounds of memory and processor time. It must have
// one thread. With `takesFiles` it may be handed further files through the channel, and closes them. False where
// the kernel has no filter for system calls: the bounds stand, and who takes no files opens none.
bool seal(bool takesFiles = false);

}  // namespace zentrox::apart
