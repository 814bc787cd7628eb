// Writes a hostile movie: a few hundred real bytes in a sparse 2 GiB file whose GPS index (or
// whose sound track's chunk table) claims about 2 GiB of entries and a count of 0xFFFFFFFF.
// Usage: dashtrack-hostile-movie index|stco FILE [--head-only]
// --head-only writes just the real bytes, without the hole: a small seed for the fuzzer.
#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

void appendU32(Bytes& out, uint32_t v) {
    for (int shift : {24, 16, 8, 0}) out.push_back(uint8_t(v >> shift));
}

void appendText(Bytes& out, std::string_view text) { out.insert(out.end(), text.begin(), text.end()); }

// A box header that claims `size` bytes in all, whatever follows it.
void appendHeader(Bytes& out, std::string_view type, uint32_t size) {
    appendU32(out, size);
    appendText(out, type);
}

void appendBox(Bytes& out, std::string_view type, const Bytes& payload) {
    appendHeader(out, type, uint32_t(payload.size() + 8));
    out.insert(out.end(), payload.begin(), payload.end());
}

constexpr uint64_t kFileSize = uint64_t(2) << 30;
constexpr uint32_t kClaimedBox = 0x7FFFFFF0;  // just under 2 GiB
constexpr uint32_t kClaimedCount = 0xFFFFFFFF;

// MP4-form ftyp, an empty moov, then the "gps " index.
Bytes indexVariant() {
    Bytes out;
    appendBox(out, "ftyp", Bytes(20, 0));
    appendHeader(out, "moov", 8);
    appendHeader(out, "gps ", kClaimedBox);
    appendU32(out, 0);
    appendU32(out, kClaimedCount);
    return out;
}

// Non-MP4 ftyp, a movie with one sound track whose stco is the hostile table.
Bytes stcoVariant() {
    Bytes tkhd(76, 0);
    appendU32(tkhd, 0);  // width 0
    appendU32(tkhd, 0);  // height 0
    Bytes stsd;
    appendU32(stsd, 0);
    appendU32(stsd, 1);
    appendU32(stsd, 36);
    appendText(stsd, "sowt");
    stsd.resize(stsd.size() + 16, 0);
    stsd.insert(stsd.end(), {0, 1, 0, 16, 0, 0, 0, 0, 0x1F, 0x40, 0, 0});  // mono, 16 bits, 8000 Hz

    Bytes out;
    appendBox(out, "ftyp", Bytes(12, 0));
    appendHeader(out, "moov", 8);
    appendHeader(out, "trak", uint32_t(8 + 8 + tkhd.size()));  // the track holds its header
    appendBox(out, "tkhd", tkhd);
    appendHeader(out, "mdia", 8);
    appendHeader(out, "minf", 8);
    appendHeader(out, "stbl", 8);
    appendBox(out, "stsd", stsd);
    appendHeader(out, "stco", kClaimedBox);
    appendU32(out, 0);
    appendU32(out, kClaimedCount);
    return out;
}

}  // namespace

int main(int argc, char** argv) {
    const bool headOnly = argc == 4 && std::string(argv[3]) == "--head-only";
    if ((argc != 3 && !headOnly) || (std::string(argv[1]) != "index" && std::string(argv[1]) != "stco")) {
        std::fprintf(stderr, "usage: %s index|stco FILE [--head-only]\n",
                     argc > 0 ? argv[0] : "dashtrack-hostile-movie");
        return 2;
    }
    const Bytes head = std::string(argv[1]) == "index" ? indexVariant() : stcoVariant();
    const int fd = ::open(argv[2], O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
        std::perror(argv[2]);
        return 1;
    }
    const bool ok = ::write(fd, head.data(), head.size()) == ssize_t(head.size()) &&
                    (headOnly || ::ftruncate(fd, off_t(kFileSize)) == 0);
    if (!ok) std::perror(argv[2]);
    ::close(fd);
    return ok ? 0 : 1;
}
