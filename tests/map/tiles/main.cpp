// The tile tests run an event loop for the network and the reader threads, and keep the HTTP disk
// cache in a folder of their own, never the user's.

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
    QTemporaryDir cache;
    setenv("XDG_CACHE_HOME", cache.path().toLocal8Bit().constData(), 1);
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
