#include "LocalFileInput.h"

extern "C" {
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

namespace {

// libavformat's own buffer size for files.
constexpr int kBufferSize = 32 * 1024;

}  // namespace

std::unique_ptr<LocalFileInput> LocalFileInput::open(const std::filesystem::path& file) {
    // An embedded NUL would make the C library open a shorter, different name.
    if (file.empty() || file.native().find('\0') != std::string::npos) return nullptr;
    // O_NONBLOCK: opening a FIFO must not wait for a writer; it is refused below anyway.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) return nullptr;
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return nullptr;
    }
    auto input = std::make_unique<LocalFileInput>(Key{}, descriptor, status.st_size);
    if (input->io_ == nullptr) return nullptr;
    return input;
}

LocalFileInput::LocalFileInput(Key, int descriptor, int64_t size) : descriptor_(descriptor), size_(size) {
    auto* buffer = static_cast<unsigned char*>(av_malloc(kBufferSize));
    if (buffer == nullptr) return;
    io_ = avio_alloc_context(buffer, kBufferSize, 0, this, &LocalFileInput::readPacket, nullptr, &LocalFileInput::seek);
    if (io_ == nullptr) av_free(buffer);
}

LocalFileInput::~LocalFileInput() {
    if (io_ != nullptr) {
        // libavformat may have swapped the buffer for one of its own; free whichever it holds now.
        av_freep(&io_->buffer);
        avio_context_free(&io_);
    }
    ::close(descriptor_);
}

int LocalFileInput::readPacket(void* opaque, uint8_t* buffer, int size) {
    const auto* input = static_cast<const LocalFileInput*>(opaque);
    for (;;) {
        const ssize_t count = ::read(input->descriptor_, buffer, static_cast<std::size_t>(size));
        if (count > 0) return static_cast<int>(count);
        if (count == 0) return AVERROR_EOF;
        if (errno != EINTR) return AVERROR(errno);
    }
}

int64_t LocalFileInput::seek(void* opaque, int64_t offset, int whence) {
    const auto* input = static_cast<const LocalFileInput*>(opaque);
    whence &= ~AVSEEK_FORCE;
    if (whence == AVSEEK_SIZE) return input->size_;
    const off_t position = ::lseek(input->descriptor_, static_cast<off_t>(offset), whence);
    return position < 0 ? AVERROR(errno) : static_cast<int64_t>(position);
}
