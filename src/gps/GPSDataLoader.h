#pragma once
// Finds the GPS blocks inside a movie file and reads them into a GPS track.

#include "FileRange.h"
#include "GPSData.h"
#include "SeekableFile.h"

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

// How a movie locates its GPS blocks.
enum class GPSLayout {
    None,        // no layout applies (or the file could not be opened)
    Index,       // a "gps " box lists the block offsets
    SoundChunk,  // one block after each sound chunk, at a fixed distance
    Gpmf,        // a timed metadata track of KLV records (action cameras)
    NmeaText,    // NMEA sentences in a box of the movie
    NmeaTrack,   // NMEA sentences in the samples of a text or metadata track
    NmeaSidecar, // NMEA sentences in a file beside the movie
    GpxSidecar,  // a GPX track beside the movie
};

// A track with what was learnt on the way, for tools that report more than the samples.
struct GPSTrack {
    std::vector<GPSData> samples;
    // Every fix, where the format keeps several a second (samples holds one a second of them);
    // empty for the block layouts, whose samples are all there is.
    std::vector<GPSFix> fixes;
    float maxSpeed = 0;
    GPSLayout layout = GPSLayout::None;
    bool isMP4 = false;
    bool opened = false;
    int openError = 0;                      // errno of a failed open
    std::size_t formCounts[kGPSRecordFormCount] = {};  // samples per GPSRecordForm
};

class GPSDataLoader {
public:
    GPSDataLoader() = delete;

    // A track never holds more samples than this: 72 hours at one a second, far beyond any
    // recording, yet a table whose entries all name one valid block cannot exhaust memory.
    static constexpr std::size_t kMaxTrackSamples = std::size_t(1) << 18;

    // Scans sibling boxes from offset for a box typed name (case-sensitive). On a match the file
    // stands at the payload. A box smaller than 8 bytes ends the scan, found or not.
    static FileRange loadBox(std::string_view name, SeekableFile& file, uint64_t offset);
    // True when the ftyp payload is exactly 20 bytes. Leaves the file at range.location.
    static bool IsMP4(SeekableFile& file, FileRange range);
    // True when 16 bytes are a GPS block header: "GPS " at 8..11 and byte 15 zero. Null gives false.
    static bool isGPSData(const uint8_t* header);

    // The GPS track of a movie: possibly empty, never fails. maxSpeed (optional) gets the largest
    // stored speed, 0 for an empty track.
    static std::vector<GPSData> LoadGPSDataList(const std::filesystem::path& url, float* maxSpeed);

    static GPSTrack LoadTrack(const std::filesystem::path& url);
    static GPSTrack LoadTrack(SeekableFile& file);
};
