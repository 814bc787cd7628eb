#include "HandOverMessage.h"

#include <algorithm>

namespace {

constexpr std::string_view kMagic("DTH1");
constexpr size_t kHeaderBytes = 8;  // magic and body length
constexpr size_t kLengthBytes = 4;

bool sendable(const std::string& bytes) {
    return !bytes.empty() && bytes.front() == '/' && bytes.size() <= HandOverMessage::kMaxPathBytes &&
           bytes.find('\0') == std::string::npos;
}

void appendLength(std::string& out, uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<char>((value >> shift) & 0xFF));
}

uint32_t lengthAt(std::string_view bytes, size_t offset) {
    uint32_t value = 0;
    for (size_t i = 0; i < kLengthBytes; ++i) value = (value << 8) | static_cast<unsigned char>(bytes[offset + i]);
    return value;
}

HandOverMessage::Decoded invalid() { return {HandOverMessage::Status::Invalid, {}}; }

}  // namespace

std::string HandOverMessage::encode(const std::vector<std::filesystem::path>& paths) {
    std::string body;
    uint32_t count = 0;
    for (const auto& path : paths) {
        const std::string& bytes = path.native();
        if (!sendable(bytes)) continue;
        if (body.size() + kLengthBytes * 2 + bytes.size() > kMaxBodyBytes) break;
        appendLength(body, static_cast<uint32_t>(bytes.size()));
        body += bytes;
        ++count;
    }
    std::string message(kMagic);
    appendLength(message, static_cast<uint32_t>(body.size() + kLengthBytes));
    appendLength(message, count);
    message += body;
    return message;
}

HandOverMessage::Decoded HandOverMessage::decode(std::string_view bytes) {
    const size_t magicSeen = std::min(bytes.size(), kMagic.size());
    if (bytes.substr(0, magicSeen) != kMagic.substr(0, magicSeen)) return invalid();
    if (bytes.size() < kHeaderBytes) return {};
    const uint32_t bodyLength = lengthAt(bytes, kMagic.size());
    if (bodyLength < kLengthBytes || bodyLength > kMaxBodyBytes) return invalid();
    const size_t end = kHeaderBytes + bodyLength;
    if (bytes.size() < end) return {};
    if (bytes.size() > end) return invalid();

    size_t at = kHeaderBytes;
    const uint32_t count = lengthAt(bytes, at);
    at += kLengthBytes;
    // Each path takes its length and at least one byte: a larger count cannot be true.
    if (count > (end - at) / (kLengthBytes + 1)) return invalid();
    Decoded decoded{Status::Complete, {}};
    decoded.paths.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
        if (end - at < kLengthBytes) return invalid();
        const uint32_t length = lengthAt(bytes, at);
        at += kLengthBytes;
        if (length == 0 || length > kMaxPathBytes || length > end - at) return invalid();
        const std::string_view path = bytes.substr(at, length);
        at += length;
        if (path.find('\0') != std::string_view::npos || path.front() != '/') return invalid();
        decoded.paths.emplace_back(std::string(path));
    }
    if (at != end) return invalid();
    return decoded;
}
