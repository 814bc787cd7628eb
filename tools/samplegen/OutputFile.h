#pragma once
// A movie file written in one pass to a temporary file beside its destination, which takes the
// destination's name only when everything has been written: a failed run leaves nothing behind.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

class OutputFile {
public:
    explicit OutputFile(const std::filesystem::path& destination);  // throws SampleGenError
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    uint64_t position() const { return position_; }
    // Appends; returns the offset the data starts at.
    uint64_t write(std::span<const uint8_t> data);
    // Appends zero bytes up to an offset.
    void padTo(uint64_t offset);
    void patchU32BE(uint64_t offset, uint32_t value);

    // Closes, sets the modification time (seconds since the Unix epoch) when given, and renames
    // the file to its destination.
    void commit(std::optional<int64_t> modificationTime);

private:
    void writeAt(uint64_t offset, std::span<const uint8_t> data);

    std::filesystem::path destination_;
    std::filesystem::path temporary_;
    int fd_ = -1;
    uint64_t position_ = 0;
};
