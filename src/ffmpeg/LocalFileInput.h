#pragma once
// A local regular file as libavformat's input: the file is opened here, not by a protocol, so no
// name can reach the network, a pipe or a device, and nothing blocks on a FIFO.

extern "C" {
#include <libavformat/avio.h>
}

#include <filesystem>
#include <memory>

class LocalFileInput {
    struct Key {
        explicit Key() = default;
    };

public:
    // Nothing for a missing file, a folder, a FIFO, a device or a socket.
    static std::unique_ptr<LocalFileInput> open(const std::filesystem::path& file);

    LocalFileInput(Key, int descriptor, int64_t size);
    ~LocalFileInput();
    LocalFileInput(const LocalFileInput&) = delete;
    LocalFileInput& operator=(const LocalFileInput&) = delete;

    // Reads the file; stays owned by this object, which must outlive every user of it.
    AVIOContext* io() const { return io_; }

private:
    static int readPacket(void* opaque, uint8_t* buffer, int size);
    static int64_t seek(void* opaque, int64_t offset, int whence);

    int descriptor_;
    int64_t size_;
    AVIOContext* io_ = nullptr;
};
