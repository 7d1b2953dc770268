#include "tools/web/store.h"

#include <zlib.h>

#include <array>
#include <fstream>
#include <iterator>

#include "tools/story/build.h"

namespace zentrox::web {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t tooSmall = 256;  // bytes, to be packed
constexpr int gzipFormat = 15 + 16;
constexpr int mostMemory = 9;

}  // namespace

// FNV-1a: it has to tell versions apart, not to withstand anybody.
std::string nameFor(std::string_view content) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : content) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    std::string name;
    for (int shift = 60; shift >= 0; shift -= 4) name += "0123456789abcdef"[hash >> shift & 15U];
    return name;
}

std::string readAll(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw fs::filesystem_error("read", file, std::make_error_code(std::errc::io_error));
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string packed(const std::string& bytes) {
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, gzipFormat, mostMemory, Z_DEFAULT_STRATEGY);
    std::string out(deflateBound(&stream, static_cast<uLong>(bytes.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

Stored Store::keep(const std::string& folder, const std::string& bytes) const {
    Stored stored{folder + "/" + nameFor(bytes) + ".bin", bytes.size()};
    std::string smaller = bytes.size() < tooSmall ? bytes : packed(bytes);
    stored.packed = smaller.size() < bytes.size() / 10 * 9;
    if (stored.packed) stored.bytes = smaller.size();
    story::writeIfChanged(into_ / stored.url, stored.packed ? smaller : bytes);
    return stored;
}

}  // namespace zentrox::web
