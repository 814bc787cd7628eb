#include "JsonText.h"
#include "NumberText.h"
#include "SampleTime.h"
#include "XmlText.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace {

struct EscapeCase {
    const char* what;
    std::string input;
    std::string expected;
};

TEST(JsonText, EscapesWhatJsonForbidsAndRepairsBrokenUtf8) {
    const EscapeCase cases[] = {
        {"quote and backslash", "say \"hi\"\\", "\"say \\\"hi\\\"\\\\\""},
        {"short escapes", "\b\f\n\r\t", "\"\\b\\f\\n\\r\\t\""},
        {"other control characters", std::string("\x01\x1f\0", 3), "\"\\u0001\\u001f\\u0000\""},
        {"DEL and slash need no escape", "\x7f/", "\"\x7f/\""},
        {"valid multi-byte kept", "K\xC3\xB6ln \xE2\x82\xAC \xF0\x9F\x9A\x97",
         "\"K\xC3\xB6ln \xE2\x82\xAC \xF0\x9F\x9A\x97\""},
        {"Latin-1 byte", "caf\xE9.mov", "\"caf\xEF\xBF\xBD.mov\""},
        {"stray continuation byte", "a\x80z", "\"a\xEF\xBF\xBDz\""},
        {"truncated sequence keeps next char",
         "\xE2\x82"
         "a",
         "\"\xEF\xBF\xBD"
         "a\""},
        {"overlong slash", "\xC0\xAF", "\"\xEF\xBF\xBD\xEF\xBF\xBD\""},
        {"UTF-16 surrogate", "\xED\xA0\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
        {"beyond U+10FFFF", "\xF4\x90\x80\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    };
    for (const EscapeCase& c : cases) EXPECT_EQ(jsonString(c.input), c.expected) << c.what;
}

TEST(XmlText, EscapesMarkupAndReplacesWhatXmlCannotCarry) {
    const EscapeCase cases[] = {
        {"markup", "<a & \"b\"> it's", "&lt;a &amp; &quot;b&quot;&gt; it's"},
        {"whitespace survives attributes", "a\tb\nc\rd", "a&#9;b&#10;c&#13;d"},
        {"control characters", std::string("\x01\x1b\0", 3), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"non-characters U+FFFE and U+FFFF", "\xEF\xBF\xBE\xEF\xBF\xBF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"invalid UTF-8", "caf\xE9", "caf\xEF\xBF\xBD"},
    };
    for (const EscapeCase& c : cases) EXPECT_EQ(xmlEscaped(c.input), c.expected) << c.what;
}

TEST(NumberText, EveryFiniteFloatReadsBackBitForBit) {
    // A stride through all finite floats, both signs, from denormals to the largest.
    for (uint64_t bits = 0; bits < 0x100000000ull; bits += 0x9E37F) {
        const float value = std::bit_cast<float>(uint32_t(bits));
        if (!std::isfinite(value)) continue;
        for (const std::string& text : {shortestNumber(value), shortestDecimal(value), jsonNumber(value)}) {
            float back = std::numeric_limits<float>::quiet_NaN();
            const auto result = std::from_chars(text.data(), text.data() + text.size(), back);
            ASSERT_EQ(result.ptr, text.data() + text.size()) << text;
            ASSERT_EQ(std::bit_cast<uint32_t>(back), uint32_t(bits)) << text;
        }
        // XML decimals (GPX coordinates) have no exponent form.
        ASSERT_EQ(shortestDecimal(value).find_first_of("eE"), std::string::npos);
    }
    for (const float notANumber : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()})
        EXPECT_EQ(jsonNumber(notANumber), "null");
}

TEST(SampleTime, WritesCalendarTimesAndRefusesTheRest) {
    const struct {
        uint32_t year, month, day, hour, minute, second;
        std::optional<std::string> expected;
    } cases[] = {
        {16, 12, 31, 20, 5, 9, "2016-12-31T20:05:09"},
        {0, 1, 1, 0, 0, 0, "2000-01-01T00:00:00"},
        {16, 2, 29, 12, 0, 0, "2016-02-29T12:00:00"},
        {17, 2, 29, 12, 0, 0, std::nullopt},
        {0, 0, 0, 0, 0, 0, std::nullopt},  // the empty record
        {16, 13, 1, 0, 0, 0, std::nullopt},
        {16, 4, 31, 0, 0, 0, std::nullopt},
        {16, 1, 1, 24, 0, 0, std::nullopt},
        {16, 1, 1, 0, 0, 60, std::nullopt},
        {0xFFFFFFFF, 0xFFFFFFFF, 1, 0, 0, 0, std::nullopt},
    };
    for (const auto& c : cases) {
        RMCINFO fix;
        fix.Year = c.year, fix.Month = c.month, fix.Day = c.day;
        fix.Hour = c.hour, fix.Minute = c.minute, fix.Second = c.second;
        EXPECT_EQ(isoDateTime(fix), c.expected) << c.year << "-" << c.month << "-" << c.day;
    }
}

}  // namespace
