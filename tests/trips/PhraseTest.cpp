#include "Phrase.h"
#include "TripText.h"

#include <gtest/gtest.h>

namespace {

TEST(Phrase, FillsNumberedPlacesOnceAndKeepsEverythingElse) {
    const struct {
        const char* pattern;
        const char* text;
    } rows[] = {
        {"Trip %1 of %2", "Trip a of b"},
        {"%2 の %1", "b の a"},             // a language that orders the places otherwise
        {"%1%1", "aa"},
        {"%3 stays", "%3 stays"},          // a place without a value
        {"100% sure, %", "100% sure, %"},  // a lone percent, at the end too
        {"%0 and %%1", "%0 and %a"},
        {"", ""},
    };
    for (const auto& row : rows) EXPECT_EQ(fillPhrase(row.pattern, {"a", "b"}), row.text) << row.pattern;
    // A value that looks like a place is not filled again.
    EXPECT_EQ(fillPhrase("%1 %2", {"%2", "x"}), "%2 x");
}

TEST(Phrase, TripSentenceTakesAnotherLanguagesWordsAndOrder) {
    const TripPhrases japanese{.tripFrom = "トリップ %1/%2：%4 から %3、%5、%6", .oneClip = "%1 クリップ"};
    const TripInfo trip{.span = {0, 1}, .known = true, .startSampleSeconds = 1709251140, .startCreationSeconds = {},
                        .durationSeconds = 760, .distanceMetres = 8449};
    EXPECT_EQ(tripSummaryText(trip, 2, 5, japanese), "トリップ 2/5：2024-02-29 23:59 から 1 クリップ、12:40、8.4 km");
    EXPECT_EQ(tripSummaryText(trip, 2, 5), "Trip 2 of 5: 1 clip, from 2024-02-29 23:59, 12:40, 8.4 km");
}

}  // namespace
