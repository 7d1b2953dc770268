// What a story says of itself, and what the machine says of its discs, from anywhere.
#include <set>

#include "engine/files/titeldatei.h"
#include "fuzz/file_fuzz.h"
#include "platform/machine/roots.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    static const fuzz::File file("mounts");
    std::vector<Titelmangel> faults;
    const Titel title = TitelLesen({reinterpret_cast<const char*>(data), size}, &faults);
    for (const Titelmangel& fault : faults)
        if (fault.zeile < 1 || fault.text.empty()) std::abort();
    if (!title.Kennung.empty() && !istKennung(fromUtf8(title.Kennung))) std::abort();
    file.hold(data, size);
    const auto roots = searchRoots("/dev/shm", file.path());
    if (roots.empty() || std::set(roots.begin(), roots.end()).size() != roots.size()) std::abort();
    return 0;
}
