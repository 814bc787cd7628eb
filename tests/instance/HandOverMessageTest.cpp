#include "HandOverMessage.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Status = HandOverMessage::Status;
using Paths = std::vector<std::filesystem::path>;

std::string u32(uint32_t value) {
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16), static_cast<char>(value >> 8),
            static_cast<char>(value)};
}

// A message with a body as given: magic, the body's length, the body.
std::string framed(const std::string& body) { return "DTH1" + u32(static_cast<uint32_t>(body.size())) + body; }

std::string entry(const std::string& path) { return u32(static_cast<uint32_t>(path.size())) + path; }

TEST(HandOverMessage, RoundTripKeepsEveryByteOfEveryPath) {
    const Paths paths{"/home/me/clips/2026_1115_080000_0001.MOV", "/media/card/DCIM/a b/c\xff\xfe.mov", "/"};
    const auto decoded = HandOverMessage::decode(HandOverMessage::encode(paths));
    EXPECT_EQ(decoded.status, Status::Complete);
    EXPECT_EQ(decoded.paths, paths);
}

TEST(HandOverMessage, NoPathsIsAMessageToo) {
    const auto decoded = HandOverMessage::decode(HandOverMessage::encode({}));
    EXPECT_EQ(decoded.status, Status::Complete);
    EXPECT_TRUE(decoded.paths.empty());
}

TEST(HandOverMessage, EncodeLeavesOutWhatCouldNotBeReceived) {
    const Paths paths{"relative.MOV", "", "/ok.MOV", std::string("/nul\0inside", 11),
                      "/" + std::string(HandOverMessage::kMaxPathBytes, 'x')};
    EXPECT_EQ(HandOverMessage::decode(HandOverMessage::encode(paths)).paths, Paths{"/ok.MOV"});
}

TEST(HandOverMessage, EveryPrefixIsIncomplete) {
    const std::string whole = HandOverMessage::encode({"/a.MOV", "/b/c.MOV"});
    for (size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(HandOverMessage::decode(std::string_view(whole).substr(0, size)).status, Status::Incomplete) << size << " bytes";
}

TEST(HandOverMessage, BadInputIsRefused) {
    const struct {
        const char* what;
        std::string bytes;
    } cases[] = {
        {"another magic", "XTH1" + u32(4) + u32(0)},
        {"another magic, early", "DX"},
        {"a body too short for its count", framed(std::string(2, '\0'))},
        {"a body length beyond the limit", "DTH1" + u32(0xFFFFFFFFu)},
        {"bytes after the body", framed(u32(0)) + "junk"},
        {"a count larger than the body could hold", framed(u32(0x7FFFFFFFu) + entry("/a"))},
        {"a count larger than the entries", framed(u32(2) + entry("/a") + u32(0))},
        {"a count smaller than the entries", framed(u32(1) + entry("/a") + entry("/b"))},
        {"a path length beyond the body", framed(u32(1) + u32(100) + "/a")},
        {"a path length beyond the limit", framed(u32(1) + u32(0xFFFFFFF0u) + "/a")},
        {"an empty path", framed(u32(1) + entry("") + u32(0))},
        {"a relative path", framed(u32(1) + entry("clip.MOV"))},
        {"a NUL inside a path", framed(u32(1) + entry(std::string("/a\0b", 4)))},
    };
    for (const auto& c : cases) {
        const auto decoded = HandOverMessage::decode(c.bytes);
        EXPECT_EQ(decoded.status, Status::Invalid) << c.what;
        EXPECT_TRUE(decoded.paths.empty()) << c.what;
    }
}

}  // namespace
