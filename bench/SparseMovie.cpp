#include "SparseMovie.h"

#include "GPSRecord.h"

#include <fcntl.h>
#include <unistd.h>
#include <bit>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

void putU32(Bytes& out, uint32_t v) {
    for (int shift : {24, 16, 8, 0}) out.push_back(uint8_t(v >> shift));
}

void putType(Bytes& out, std::string_view type) { out.insert(out.end(), type.begin(), type.end()); }

Bytes box(std::string_view type, const Bytes& payload) {
    Bytes out;
    putU32(out, uint32_t(payload.size() + 8));
    putType(out, type);
    out.insert(out.end(), payload.begin(), payload.end());
    return out;
}

Bytes join(std::initializer_list<Bytes> parts) {
    Bytes out;
    for (const Bytes& p : parts) out.insert(out.end(), p.begin(), p.end());
    return out;
}

Bytes block(uint32_t second) {
    GPSDATA r;
    r.rmcinfo.Year = 2016;
    r.rmcinfo.Month = 5;
    r.rmcinfo.Day = 17;
    r.rmcinfo.Hour = second / 3600;
    r.rmcinfo.Minute = second / 60 % 60;
    r.rmcinfo.Second = second % 60;
    r.rmcinfo.Latitude = std::bit_cast<float>(int32_t(225000000 + second * 100));
    r.rmcinfo.Longitude = std::bit_cast<float>(int32_t(1142500000 + second * 100));
    r.rmcinfo.Speed = std::bit_cast<float>(uint32_t(second % 3000));
    Bytes out;
    putU32(out, uint32_t(kGPSBlockSize));
    putType(out, "free");
    putType(out, "GPS ");
    putU32(out, 0);
    const auto record = encodeGPSRecord(r);
    out.insert(out.end(), record.begin(), record.end());
    return out;
}

class SparseWriter {
public:
    explicit SparseWriter(const std::filesystem::path& path)
        : fd_(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {
        if (fd_ < 0) throw std::runtime_error("cannot create " + path.string());
    }
    ~SparseWriter() { ::close(fd_); }
    void write(uint64_t offset, const Bytes& bytes) {
        if (::pwrite(fd_, bytes.data(), bytes.size(), off_t(offset)) != ssize_t(bytes.size()))
            throw std::runtime_error("short write");
    }

private:
    int fd_;
};

constexpr uint64_t kSoundGPSOffset = 32768;  // 1 channel, 16 bits, 8000 Hz

Bytes track(uint16_t width, uint16_t height, const Bytes& stsd, const Bytes& stco) {
    Bytes tkhd(76, 0);
    putU32(tkhd, uint32_t(width) << 16);
    putU32(tkhd, uint32_t(height) << 16);
    return box("trak", join({box("tkhd", tkhd),
                             box("mdia", box("minf", box("stbl", join({box("stsd", stsd), box("stco", stco)}))))}));
}

Bytes soundStsd() {
    Bytes payload;
    putU32(payload, 0);
    putU32(payload, 1);
    putU32(payload, 36);
    putType(payload, "sowt");
    payload.resize(payload.size() + 16, 0);
    payload.insert(payload.end(), {0, 1, 0, 16});  // 1 channel, 16 bits
    putU32(payload, 0);
    putU32(payload, 8000u << 16);
    return payload;
}

}  // namespace

void writeSparseMovie(const std::filesystem::path& path, SparseLayout layout, uint32_t seconds, uint64_t totalBytes) {
    SparseWriter out(path);
    Bytes ftyp;
    putType(ftyp, "qt  ");
    putU32(ftyp, 0);
    putType(ftyp, "qt  ");
    const Bytes ftypBox = box("ftyp", ftyp);
    const uint64_t mediaStart = ftypBox.size() + 8;
    const uint64_t stride = (totalBytes - mediaStart) / seconds;

    std::vector<uint32_t> offsets;
    for (uint32_t s = 0; s < seconds; ++s) {
        const uint64_t chunk = mediaStart + s * stride;
        const uint64_t at = layout == SparseLayout::Index ? chunk + stride / 2 : chunk + kSoundGPSOffset;
        out.write(at, block(s));
        offsets.push_back(uint32_t(layout == SparseLayout::Index ? at : chunk));
    }
    const uint64_t mediaEnd = mediaStart + seconds * stride;

    Bytes mdatHeader;
    putU32(mdatHeader, uint32_t(mediaEnd - ftypBox.size()));
    putType(mdatHeader, "mdat");
    out.write(0, join({ftypBox, mdatHeader}));

    Bytes table;
    putU32(table, 0);
    putU32(table, seconds);
    for (uint32_t o : offsets) {
        putU32(table, o);
        if (layout == SparseLayout::Index) putU32(table, uint32_t(kGPSBlockSize));
    }
    Bytes moov;
    if (layout == SparseLayout::Index) {
        moov = box("moov", join({box("mvhd", Bytes(100, 0)), box("gps ", table)}));
    } else {
        Bytes noChunks;
        putU32(noChunks, 0);
        putU32(noChunks, 0);
        moov = box("moov", join({box("mvhd", Bytes(100, 0)), track(1920, 1080, Bytes(48, 0), noChunks),
                                 track(0, 0, soundStsd(), table)}));
    }
    out.write(mediaEnd, moov);
}
