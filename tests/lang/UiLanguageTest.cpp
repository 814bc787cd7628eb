#include "UiLanguage.h"

#include <gtest/gtest.h>

namespace {

TEST(UiLanguage, StartsInTheStoredLanguageElseTheFirstSystemLanguageWeSpeakElseEnglish) {
    const struct {
        std::optional<std::string> stored;
        QStringList system;
        const char* language;
    } rows[] = {
        {"vi", {"ja-JP"}, "vi"},
        {std::nullopt, {"ja-JP", "en-US"}, "ja"},
        {std::nullopt, {"de-DE", "zh-Hans-CN", "ja"}, "zh_CN"},
        {std::nullopt, {"zh-CN"}, "zh_CN"},
        {std::nullopt, {"zh_SG"}, "zh_CN"},
        {std::nullopt, {"zh-Hant-TW", "vi-VN"}, "vi"},  // no Traditional Chinese
        {std::nullopt, {"zh-HK"}, "en"},
        {std::nullopt, {"en-GB", "ja"}, "en"},
        {std::nullopt, {"fr-FR"}, "en"},
        {std::nullopt, {}, "en"},
        {"klingon", {"ja"}, "ja"},  // a stored value we do not know is no choice
        {"", {}, "en"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(startupLanguage(row.stored, row.system), row.language)
            << row.stored.value_or("(none)") << " " << row.system.join(QLatin1Char(',')).toStdString();
}

}  // namespace
