// Registering the LED font: the built file gives the face the read-outs ask for; every kind of bad
// file gives one line on stderr and the fallback name, which then stays.

#include "LEDFontManager.h"
#include "LEDFontRegistration.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QRawFont>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

const QString ledName = QStringLiteral("DigifaceWide Regular");

std::filesystem::path builtFont() { return LEDFontManager::fontFile(); }

std::filesystem::path tempPath(const QTemporaryDir& dir, const char* name) {
    return std::filesystem::path(dir.path().toStdString()) / name;
}

int lineCount(const std::string& text) { return static_cast<int>(std::count(text.begin(), text.end(), '\n')); }

TEST(LEDFontRegistrationTest, TheBuiltFontResolvesAsTheReadOutsAskForIt) {
    ASSERT_TRUE(std::filesystem::exists(builtFont())) << builtFont();
    LEDFontRegistration registration(builtFont(), ledName);
    testing::internal::CaptureStderr();
    registration.Register();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    ASSERT_TRUE(registration.isRegistered());
    EXPECT_EQ(registration.fontName(), ledName);

    const QFontInfo info(LEDFontRegistration::fontNamed(registration.fontName(), 20));
    EXPECT_EQ(info.family(), QStringLiteral("DigifaceWide"));
    EXPECT_EQ(info.styleName(), QStringLiteral("Regular"));

    // Every character of the read-outs, the unit and the captions has a glyph in the file itself,
    // not in some fallback face.
    const QRawFont raw(QString::fromStdString(builtFont().string()), 20);
    ASSERT_TRUE(raw.isValid());
    EXPECT_EQ(raw.familyName(), QStringLiteral("DigifaceWide"));
    for (const QChar c : QStringLiteral("0123456789.:/- KM/HMPHLATLONDATETIME"))
        EXPECT_TRUE(raw.supportsCharacter(c)) << "no glyph for '" << QString(c).toStdString() << "'";

    testing::internal::CaptureStderr();
    registration.Unregister();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(QFontDatabase::families().contains(QStringLiteral("DigifaceWide")));
}

TEST(LEDFontRegistrationTest, FilesThatGiveNoLEDFaceFallBackToArialWithOneLine) {
    QTemporaryDir dir;
    const auto notAFont = tempPath(dir, "notafont.ttf");
    std::ofstream(notAFont) << "this is text, not a font\n";
    const auto folder = tempPath(dir, "folder.ttf");
    std::filesystem::create_directory(folder);
    const std::filesystem::path otherFace = "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf";

    const struct {
        const char* what;
        std::filesystem::path file;
        const char* reason;
    } cases[] = {
        {"missing", tempPath(dir, "DigifaceWide.ttf"), "does not exist"},
        {"empty path", {}, "does not exist"},
        {"a folder", folder, "not a regular file"},
        {"not a font", notAFont, "not a font"},
        {"another face", otherFace, "Liberation Sans"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        LEDFontRegistration registration(c.file, ledName);
        testing::internal::CaptureStderr();
        registration.Register();
        const std::string error = testing::internal::GetCapturedStderr();
        EXPECT_EQ(lineCount(error), 1) << error;
        EXPECT_NE(error.find(c.reason), std::string::npos) << error;
        EXPECT_FALSE(registration.isRegistered());
        EXPECT_EQ(registration.fontName(), QStringLiteral("Arial"));
    }
    // fonts-liberation stands in for the fallback name.
    EXPECT_EQ(QFontInfo(LEDFontRegistration::fontNamed(QStringLiteral("Arial"), 22)).family(),
              QStringLiteral("Liberation Sans"));
}

TEST(LEDFontRegistrationTest, TheFallbackIsNeverSetBack) {
    QTemporaryDir dir;
    const auto file = tempPath(dir, "DigifaceWide.ttf");
    LEDFontRegistration registration(file, ledName);
    testing::internal::CaptureStderr();
    registration.Register();
    testing::internal::GetCapturedStderr();
    ASSERT_EQ(registration.fontName(), QStringLiteral("Arial"));

    std::filesystem::copy_file(builtFont(), file);
    registration.Register();
    EXPECT_TRUE(registration.isRegistered());
    EXPECT_EQ(registration.fontName(), QStringLiteral("Arial"));
    registration.Unregister();
}

TEST(LEDFontRegistrationTest, RegisteringTwiceNeedsOneUnregisterAndASecondOneComplains) {
    LEDFontRegistration registration(builtFont(), ledName);
    registration.Register();
    registration.Register();
    testing::internal::CaptureStderr();
    registration.Unregister();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(QFontDatabase::families().contains(QStringLiteral("DigifaceWide")))
        << "the second Register must not have added the file again";

    testing::internal::CaptureStderr();
    registration.Unregister();
    EXPECT_EQ(lineCount(testing::internal::GetCapturedStderr()), 1);
    EXPECT_EQ(registration.fontName(), ledName) << "a failed unregistration changes no name";
}

// The one test of the process-wide registration: ctest runs each test in its own process.
TEST(LEDFontManagerTest, RegistersTheShippedFontForTheReadOuts) {
    EXPECT_EQ(LEDFontName(), ledName);
    LEDFontManager::Register();
    EXPECT_EQ(LEDFontName(), ledName);
    EXPECT_EQ(QFontInfo(LEDFont(50)).family(), QStringLiteral("DigifaceWide"));
    EXPECT_EQ(LEDFont(50).pointSizeF(), 50);
    LEDFontManager::Unregister();
    EXPECT_EQ(LEDFontName(), ledName);
}

}  // namespace
