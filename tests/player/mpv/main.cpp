// The mpv tests run without a screen and without sound: Qt's offscreen platform and mpv's null
// audio output, unless the environment already says otherwise.

#include <QApplication>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("DASHTRACK_AUDIO_OUTPUT", "null", 0);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
