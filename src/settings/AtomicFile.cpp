#include "AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <string>
#include <system_error>
#include <vector>

namespace {

class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const { return fd_; }
    bool valid() const { return fd_ >= 0; }
    // Closing reports late write errors (NFS, full disks), so its result matters.
    bool close() {
        if (fd_ < 0) return true;
        const bool ok = ::close(fd_) == 0;
        fd_ = -1;
        return ok;
    }

private:
    int fd_;
};

// Removes the temporary file unless it has been renamed into place.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string path) : path_(std::move(path)) {}
    ~TemporaryFile() {
        if (!kept_) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& path() const { return path_; }
    void keep() { kept_ = true; }

private:
    std::string path_;
    bool kept_ = false;
};

bool writeAll(int fd, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = ::write(fd, contents.data(), contents.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        contents.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

// The replacement keeps the permissions of the file it replaces; a new file is readable by all.
mode_t modeFor(const std::filesystem::path& file) {
    struct stat existing {};
    if (::stat(file.c_str(), &existing) == 0) return existing.st_mode & 07777;
    return 0644;
}

void syncDirectory(const std::filesystem::path& directory) {
    FileDescriptor fd(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.valid()) ::fsync(fd.get());
}

}  // namespace

bool writeFileAtomically(const std::filesystem::path& file, std::string_view contents) {
    if (file.filename().empty()) return false;
    const auto directory = file.parent_path().empty() ? std::filesystem::path(".") : file.parent_path();
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error) return false;

    std::string pattern = (directory / ("." + file.filename().string() + ".XXXXXX")).string();
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    FileDescriptor fd(::mkostemp(name.data(), O_CLOEXEC));
    if (!fd.valid()) return false;
    TemporaryFile temporary(name.data());

    if (!writeAll(fd.get(), contents) || ::fchmod(fd.get(), modeFor(file)) != 0 || ::fsync(fd.get()) != 0 ||
        !fd.close())
        return false;
    if (::rename(temporary.path().c_str(), file.c_str()) != 0) return false;
    temporary.keep();
    syncDirectory(directory);
    return true;
}
