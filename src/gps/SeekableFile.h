#pragma once
// The little the box reader needs of a file: a position, an absolute seek and a short read.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

class SeekableFile {
public:
    virtual ~SeekableFile() = default;

    uint64_t position() const { return position_; }
    // Seeking past the end is allowed; the next read then returns nothing.
    void seek(uint64_t offset) { position_ = offset; }
    // Reads up to buffer.size() bytes at the position and advances it; returns how many arrived.
    std::size_t read(std::span<uint8_t> buffer);
    virtual uint64_t size() const = 0;
    // How many bytes from offset on are known to be zeros without reading them (a hole of a
    // sparse file); 0 when unknown.
    virtual uint64_t zeroBytesAt(uint64_t) const { return 0; }

protected:
    virtual std::size_t readAt(uint64_t offset, std::span<uint8_t> buffer) = 0;

private:
    uint64_t position_ = 0;
};

// A file on disk, read with pread: no buffering, so only the bytes asked for are read.
class PosixFile final : public SeekableFile {
public:
    // Null when the path cannot be opened or is not a regular file; errno then says why.
    static std::unique_ptr<PosixFile> open(const std::filesystem::path& path);
    ~PosixFile() override;
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;

    uint64_t size() const override { return size_; }
    uint64_t zeroBytesAt(uint64_t offset) const override;

    // Only open() makes one: it owns a descriptor that is known to be an open regular file.
    class Key {
        friend class PosixFile;
        Key() = default;
    };
    PosixFile(Key, int fd, uint64_t size) : fd_(fd), size_(size) {}

protected:
    std::size_t readAt(uint64_t offset, std::span<uint8_t> buffer) override;

private:
    int fd_;
    uint64_t size_;
};

// A file held in memory, for tests and the fuzzer.
class MemoryFile final : public SeekableFile {
public:
    explicit MemoryFile(std::vector<uint8_t> bytes) : bytes_(std::move(bytes)) {}
    uint64_t size() const override { return bytes_.size(); }

protected:
    std::size_t readAt(uint64_t offset, std::span<uint8_t> buffer) override;

private:
    std::vector<uint8_t> bytes_;
};
