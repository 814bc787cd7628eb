// The generator's tests, with the encoder's statistics kept off the test log.
#include <gtest/gtest.h>

extern "C" {
#include <libavutil/log.h>
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    av_log_set_level(AV_LOG_ERROR);
    return RUN_ALL_TESTS();
}
