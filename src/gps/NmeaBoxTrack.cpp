#include "NmeaBoxTrack.h"

#include "BoxChildren.h"
#include "NmeaReader.h"

#include <algorithm>

std::optional<std::string> NmeaBoxTrack::findText(SeekableFile& file) {
    BoxChildren topLevel(file, BoxChildren::wholeFile(file));
    while (const std::optional<Box> box = topLevel.next()) {
        if (!box->is("free")) continue;
        const std::optional<FileRange> gps = BoxChildren::find(file, box->payload, "gps ");
        if (!gps) continue;
        // The box may claim more than the file holds: read what is there, up to the cap.
        std::string text(std::size_t(std::min(gps->length, kMaxTextBytes)), '\0');
        file.seek(gps->location);
        text.resize(file.read({reinterpret_cast<uint8_t*>(text.data()), text.size()}));
        return text;
    }
    return std::nullopt;
}

std::vector<GPSFix> NmeaBoxTrack::readFixes(SeekableFile& file) {
    const std::optional<std::string> text = findText(file);
    if (!text) return {};
    return readNmeaFixes(*text, NmeaReadOptions::forEmbeddedText());
}
