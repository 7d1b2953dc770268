// What is believed of a file of data, whatever it claims. Every reader takes its bounds from here. No story comes
// near them; what lies beyond is damage, or made to do harm. Memory follows what a file holds and stays below half
// a gigabyte.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zentrox::limits {

constexpr std::uint64_t fileBytes = 128'000'000;  // of what is read as a whole: rooms, scripts, pictures
constexpr std::uint64_t midiBytes = 16'000'000;
constexpr std::uint64_t savedGameBytes = 16'000'000;
constexpr std::uint64_t tableBytes =
    4'000'000;  // of questions, digits, captions, names of speakers, what was heard
constexpr std::uint64_t settingsBytes = 1'000'000;
constexpr std::uint64_t besideSaveBytes = 65'536;       // of the notes beside a saved game
constexpr std::uint64_t smallPictureBytes = 1'000'000;  // of the picture beside it
constexpr std::size_t captionLetters = 200;             // of a caption, and of what is said beside a saved game

// --- rooms and scripts
constexpr std::size_t fieldBytes = 100'000;     // of one text
constexpr std::size_t fileEntries = 1'000'000;  // objects and commands of one file

// --- pictures
constexpr std::uint32_t pictureSide = 16'384;  // pixels
constexpr std::uint64_t picturePixels = 25'000'000;
// How many pixels the formats pack into a byte, but for drawings made to do so.
constexpr std::uint64_t jpegPixelsPerByte = 1000;
constexpr std::uint64_t pngPixelsPerByte = 10'000;
constexpr std::uint64_t packedBitmapPixelsPerByte = 1000;
// A JPEG may go over its picture again and again; this is how many pixels it may touch in all.
constexpr std::uint64_t jpegPixelsInScans = 1'000'000'000;
constexpr std::uint32_t iconSide = 512;  // pixels

// --- sounds
constexpr int soundChunks = 1000;  // before the samples
constexpr int lowestRate = 1000;   // frames a second
constexpr int highestRate = 200'000;
constexpr int channels = 8;
constexpr double soundDelay = 10'000;  // milliseconds by which sound may come behind its video
constexpr int soundFrame = 8'000'000;  // frames that are decoded in one piece, as they are heard

// Sound and pictures are counted to know how long they last, so far into a file; behind that its header is
// believed.
constexpr std::int64_t countedBytes = 512LL << 20U;

// --- films
constexpr std::int64_t filmPixels = 4096LL * 2304;
constexpr double filmPicture =
    60'000;  // milliseconds; a picture that is said to be seen for longer is wrongly dated
constexpr std::int64_t filmGap = 64'000'000;      // bytes that are read without a picture or sound among them
constexpr std::int64_t filmOpening = 24'000'000;  // bytes that are read to find out what a file holds
constexpr std::int64_t filmSearch =
    250;  // ms of the processor for the next piece of a file, or all pictures of a moment
constexpr std::uint64_t filmPiece = 128'000'000;  // bytes that a decoder may ask for at once

// --- processes that decode
constexpr std::uint64_t workerBytes = 400'000'000;
constexpr std::uint64_t workerSeconds = 3600;  // of the processor, for a file

// --- packed stories
constexpr std::uint64_t packedFiles = 20'000;
constexpr std::uint64_t packedFileBytes = 512U << 20U;  // unpacked
constexpr std::uint64_t packedStoryBytes = 4096ULL << 20U;
constexpr std::uint64_t unpackedBytes = 128U << 20U;  // of files that are kept in memory for those who play them
constexpr std::uint64_t packedGrowth = 200;  // of all files together: bytes unpacked for one of the archive
constexpr std::uint64_t packedGrowthFrom = 64U << 20U;  // bytes that may be unpacked whatever the archive's size
constexpr std::uint64_t packedByteGrowth = 1032;        // no byte that is deflated stands for more
constexpr std::size_t packedNameBytes = 1000;

}  // namespace zentrox::limits
