#pragma once
// One opened movie: its file and the texts the playlist table shows. Everything is set when the
// entry is made and never changes, so the texts describe the file as it was when it was added.

#include "FileAttributes.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

class PlaylistItem {
public:
    // Reads the file's attributes; an unreadable file still makes an entry, without the two texts.
    explicit PlaylistItem(std::filesystem::path url);
    PlaylistItem(std::filesystem::path url, const std::optional<FileAttributes>& attributes);

    const std::filesystem::path& URL() const { return url_; }
    // The path's bytes as given, not re-encoded.
    const std::string& FilePath() const { return filePath_; }
    // "yyyy-MM-dd hh:mm:ss" on the 12-hour clock; absent without attributes.
    const std::optional<std::string>& CreationTime() const { return creationTime_; }
    // Such as "1.5 KB"; absent without attributes.
    const std::optional<std::string>& FileSize() const { return fileSize_; }

    // "n B", then "x.x KB", "x.x M", "x.x G" with binary divisors; "" when absent or 1 TiB and over.
    static std::string FileSizeStringWithNumber(std::optional<uint64_t> bytes);
    // The local time as "yyyy-MM-dd hh:mm:ss", the hour on the 12-hour clock (01 to 12) with no
    // AM/PM; "" when absent or beyond what the calendar functions can convert.
    static std::string CreationTimetringWithDate(std::optional<std::chrono::system_clock::time_point> date);

private:
    std::filesystem::path url_;
    std::string filePath_;
    std::optional<std::string> creationTime_;
    std::optional<std::string> fileSize_;
};
