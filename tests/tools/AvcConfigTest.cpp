#include "AvcConfig.h"

#include <gtest/gtest.h>

#include <vector>

using Bytes = std::vector<uint8_t>;

TEST(AnnexB, SplitsOnThreeAndFourByteStartCodes) {
    const Bytes stream = {0, 0, 0, 1, 0x67, 0xAA, 0, 0, 1, 0x68, 0xBB, 0xCC, 0, 0, 0, 1, 0x65, 0x01};
    const auto units = splitAnnexB(stream);
    ASSERT_EQ(units.size(), 3u);
    EXPECT_EQ(Bytes(units[0].begin(), units[0].end()), (Bytes{0x67, 0xAA}));
    EXPECT_EQ(Bytes(units[1].begin(), units[1].end()), (Bytes{0x68, 0xBB, 0xCC}));  // not the 4-byte code's zero
    EXPECT_EQ(Bytes(units[2].begin(), units[2].end()), (Bytes{0x65, 0x01}));

    EXPECT_EQ(toLengthPrefixed(stream),
              (Bytes{0, 0, 0, 2, 0x67, 0xAA, 0, 0, 0, 3, 0x68, 0xBB, 0xCC, 0, 0, 0, 2, 0x65, 0x01}));
}

TEST(AnnexB, ConfigurationRecordCarriesProfileAndBothParameterSets) {
    const Bytes headers = {0, 0, 0, 1, 0x67, 0x42, 0xC0, 0x1F, 0xDA, 0, 0, 0, 1, 0x68, 0xCE, 0x3C, 0x80};
    EXPECT_EQ(makeAvcConfig(headers), (Bytes{1,    0x42, 0xC0, 0x1F, 0xFF, 0xE1, 0,    5,    0x67, 0x42,
                                             0xC0, 0x1F, 0xDA, 1,    0,    4,    0x68, 0xCE, 0x3C, 0x80}));
    const Bytes spsOnly = {0, 0, 1, 0x67, 0x42, 0xC0, 0x1F, 0xDA};
    EXPECT_TRUE(makeAvcConfig(spsOnly).empty());
}
