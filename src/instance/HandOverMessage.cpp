#include "HandOverMessage.h"

#include <QByteArrayView>
#include <QtEndian>

#include <string>

namespace {

constexpr QByteArrayView kMagic("DTH1");
constexpr qsizetype kHeaderBytes = 8;  // magic and body length
constexpr qsizetype kLengthBytes = 4;

bool sendable(const std::string& bytes) {
    return !bytes.empty() && bytes.front() == '/' && bytes.size() <= HandOverMessage::kMaxPathBytes &&
           bytes.find('\0') == std::string::npos;
}

void appendLength(QByteArray& out, uint32_t value) {
    char bytes[kLengthBytes];
    qToBigEndian(value, bytes);
    out.append(bytes, kLengthBytes);
}

uint32_t lengthAt(const QByteArray& bytes, qsizetype offset) {
    return qFromBigEndian<uint32_t>(bytes.constData() + offset);
}

HandOverMessage::Decoded invalid() { return {HandOverMessage::Status::Invalid, {}}; }

}  // namespace

QByteArray HandOverMessage::encode(const std::vector<std::filesystem::path>& paths) {
    QByteArray body;
    uint32_t count = 0;
    for (const auto& path : paths) {
        const std::string& bytes = path.native();
        if (!sendable(bytes)) continue;
        if (static_cast<uint64_t>(body.size()) + kLengthBytes * 2 + bytes.size() > kMaxBodyBytes) break;
        appendLength(body, static_cast<uint32_t>(bytes.size()));
        body.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
        ++count;
    }
    QByteArray message(kMagic.data(), kMagic.size());
    appendLength(message, static_cast<uint32_t>(body.size() + kLengthBytes));
    appendLength(message, count);
    message.append(body);
    return message;
}

HandOverMessage::Decoded HandOverMessage::decode(const QByteArray& bytes) {
    const qsizetype magicSeen = std::min(bytes.size(), kMagic.size());
    if (QByteArrayView(bytes).first(magicSeen) != kMagic.first(magicSeen)) return invalid();
    if (bytes.size() < kHeaderBytes) return {};
    const uint32_t bodyLength = lengthAt(bytes, kMagic.size());
    if (bodyLength < kLengthBytes || bodyLength > kMaxBodyBytes) return invalid();
    const qsizetype end = kHeaderBytes + static_cast<qsizetype>(bodyLength);
    if (bytes.size() < end) return {};
    if (bytes.size() > end) return invalid();

    qsizetype at = kHeaderBytes;
    const uint32_t count = lengthAt(bytes, at);
    at += kLengthBytes;
    // Each path takes its length and at least one byte: a larger count cannot be true.
    if (count > static_cast<uint64_t>(end - at) / (kLengthBytes + 1)) return invalid();
    Decoded decoded{Status::Complete, {}};
    decoded.paths.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
        if (end - at < kLengthBytes) return invalid();
        const uint32_t length = lengthAt(bytes, at);
        at += kLengthBytes;
        if (length == 0 || length > kMaxPathBytes || length > static_cast<uint64_t>(end - at)) return invalid();
        std::string path(bytes.constData() + at, length);
        at += length;
        if (path.find('\0') != std::string::npos || path.front() != '/') return invalid();
        decoded.paths.emplace_back(std::move(path));
    }
    if (at != end) return invalid();
    return decoded;
}
