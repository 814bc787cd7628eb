// The place as text and as a link: six decimals, signs kept, no locale in between.

#include "PositionText.h"

#include <gtest/gtest.h>

namespace {

TEST(PositionText, SixDecimalsInTheTextAndTheLink) {
    const struct {
        double latitude, longitude;
        const char* text;
        const char* link;
    } rows[] = {
        {48.8583701, 2.2944813, "48.858370, 2.294481",
         "https://www.openstreetmap.org/?mlat=48.858370&mlon=2.294481#map=17/48.858370/2.294481"},
        {-33.8567844, -151.2152967, "-33.856784, -151.215297",
         "https://www.openstreetmap.org/?mlat=-33.856784&mlon=-151.215297#map=17/-33.856784/-151.215297"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(positionText(row.latitude, row.longitude), row.text);
        EXPECT_EQ(openStreetMapLink(row.latitude, row.longitude), row.link);
    }
}

}  // namespace
