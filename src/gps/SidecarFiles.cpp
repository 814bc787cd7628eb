#include "SidecarFiles.h"

#include "GpxReader.h"
#include "NmeaReader.h"
#include "SeekableFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <system_error>

namespace {

struct Candidate {
    std::string_view extension;
    SidecarFormat format;
    bool sniff;  // taken only when it holds an RMC sentence
};

constexpr std::array<Candidate, 8> kCandidates{{
    {".nmea", SidecarFormat::Nmea, false},
    {".NMEA", SidecarFormat::Nmea, false},
    {".log", SidecarFormat::Nmea, false},
    {".LOG", SidecarFormat::Nmea, false},
    {".txt", SidecarFormat::Nmea, true},
    {".TXT", SidecarFormat::Nmea, true},
    {".gpx", SidecarFormat::Gpx, false},
    {".GPX", SidecarFormat::Gpx, false},
}};

constexpr std::size_t kReadStepBytes = std::size_t(1) << 20;

bool holdsRmcSentence(const std::filesystem::path& path) {
    const auto head = readSidecarText(path, kSidecarSniffBytes);
    if (!head) return false;
    return head->find("GPRMC") != std::string::npos || head->find("GNRMC") != std::string::npos;
}

bool alreadyListed(const std::vector<SidecarFile>& found, const std::filesystem::path& path) {
    return std::any_of(found.begin(), found.end(), [&](const SidecarFile& listed) {
        std::error_code error;
        return std::filesystem::equivalent(listed.path, path, error) && !error;
    });
}

}  // namespace

std::vector<SidecarFile> findSidecarFiles(const std::filesystem::path& movie) {
    std::vector<SidecarFile> found;
    if (movie.empty() || !movie.has_filename()) return found;
    for (const Candidate& candidate : kCandidates) {
        std::filesystem::path path = movie;
        path.replace_extension(candidate.extension);
        if (path == movie) continue;
        std::error_code error;
        if (!std::filesystem::is_regular_file(path, error) || error) continue;
        if (candidate.sniff && !holdsRmcSentence(path)) continue;
        if (alreadyListed(found, path)) continue;
        found.push_back({std::move(path), candidate.format});
    }
    return found;
}

std::optional<std::string> readSidecarText(const std::filesystem::path& path, std::size_t maxBytes) {
    const std::unique_ptr<PosixFile> file = PosixFile::open(path);
    if (!file) return std::nullopt;
    std::string text;
    while (text.size() < maxBytes) {
        const std::size_t had = text.size();
        const std::size_t step = std::min(kReadStepBytes, maxBytes - had);
        text.resize(had + step);
        const std::size_t got = file->read(std::span(reinterpret_cast<uint8_t*>(text.data()) + had, step));
        text.resize(had + got);
        if (got < step) break;
    }
    return text;
}

std::vector<GPSFix> readSidecarFixes(const SidecarFile& sidecar) {
    const auto text = readSidecarText(sidecar.path);
    if (!text) return {};
    if (sidecar.format == SidecarFormat::Gpx) return readGpxFixes(*text);
    return readNmeaFixes(*text, NmeaReadOptions::forSidecar());
}
