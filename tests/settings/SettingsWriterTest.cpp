#include "AtomicFile.h"
#include "GPSUtils.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <future>
#include <mutex>
#include <tuple>

namespace {

// Counts the writes of the settings file and can hold the first one back, so that a burst of
// changes arrives while the writer is busy, whatever the timing.
class CountingWrites {
public:
    explicit CountingWrites(bool holdFirst = false) {
        if (!holdFirst) release();
    }
    ~CountingWrites() { release(); }

    SettingsWriter::WriteFile function() {
        return [this](const std::filesystem::path& file, std::string_view contents) {
            if (++count_ == 1) released_.wait();
            return writeFileAtomically(file, contents);
        };
    }
    void release() {
        std::call_once(once_, [this] { gate_.set_value(); });
    }
    int count() const { return count_; }

private:
    std::atomic<int> count_ = 0;
    std::promise<void> gate_;
    std::shared_future<void> released_ = gate_.get_future().share();
    std::once_flag once_;
};

PlistNode readPlist(const std::filesystem::path& file) {
    const std::string bytes = readFile(file);
    plist_t parsed = nullptr;
    plist_from_memory(bytes.data(), uint32_t(bytes.size()), &parsed);
    return PlistNode(parsed);
}

class SettingsWrites : public testing::Test {
protected:
    SettingsLocation location() const { return {.userFile = user, .shippedFile = {}}; }

    TempDir directory;
    std::filesystem::path user = directory / "Env.plist";
};

TEST_F(SettingsWrites, BurstOfChangesEndsWithTheLastValueInFewWrites) {
    writeFile(user, plistDictionary("<key>Volume</key><real>0</real>"));
    CountingWrites writes(/*holdFirst=*/true);
    GPSUtils utils(location(), nullptr, writes.function());
    constexpr int steps = 200;
    for (int step = 1; step <= steps; ++step) {
        utils.setVolume(float(step) / steps);
        EXPECT_EQ(utils.volume(), float(step) / steps);  // seen at once, before any write
    }
    writes.release();
    EXPECT_TRUE(utils.flush());
    EXPECT_LE(writes.count(), 2);
    EXPECT_EQ(GPSUtils(location()).volume(), 1.0f);
}

TEST_F(SettingsWrites, StoredValuesReachTheFileUnderTheirKeysAndTypes) {
    writeFile(user, plistDictionary("<key>UnitType</key><integer>0</integer>"));
    GPSUtils utils(location());
    utils.setVolume(0.35f);
    utils.setUnitType(1);
    utils.setMapSource("mbtiles:/maps/île-de-france.mbtiles");
    ASSERT_TRUE(utils.flush());
    const GPSUtils next(location());
    EXPECT_EQ(std::tuple(next.mapSource(), next.volume(), next.unitType()),
              std::tuple("mbtiles:/maps/île-de-france.mbtiles", 0.35f, 1u));
    // The types other readers of the file expect.
    const PlistNode root = readPlist(user);
    EXPECT_EQ(plist_get_node_type(plist_dict_get_item(root.get(), "Volume")), PLIST_REAL);
    EXPECT_EQ(plist_get_node_type(plist_dict_get_item(root.get(), "UnitType")), PLIST_UINT);
}

TEST_F(SettingsWrites, UnchangedValuesWriteNothingAndAChangeReplacesTheFileByRename) {
    {
        writeFile(user, plistDictionary("<key>UnitType</key><integer>1</integer>"));
        GPSUtils first(location());
        first.setVolume(0.35f);  // as a float, the way the player stores it
    }
    CountingWrites writes;
    GPSUtils utils(location(), nullptr, writes.function());
    utils.setVolume(0.35f);
    utils.setUnitType(1);
    EXPECT_TRUE(utils.flush());
    EXPECT_EQ(writes.count(), 0);
    // A reader holding the old file keeps seeing it whole: the new one is a different inode.
    struct stat before {};
    ASSERT_EQ(::stat(user.c_str(), &before), 0);
    utils.setVolume(0.4f);
    utils.flush();
    EXPECT_EQ(writes.count(), 1);
    struct stat after {};
    ASSERT_EQ(::stat(user.c_str(), &after), 0);
    EXPECT_NE(before.st_ino, after.st_ino);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.path()), {}), 1);
}

TEST_F(SettingsWrites, SharedInstanceWritesItsLastChangeWhenTheProgramExits) {
    const auto config = directory / "config";
    writeFile(config / "dashtrack" / "Env.plist", plistDictionary("<key>Volume</key><real>0</real>"));
    // A child process of its own, so the shared instance is fresh and its exit is real.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::setenv("XDG_CONFIG_HOME", config.c_str(), 1);
        GPSUtils::sharedUtils().setVolume(0.75f);
        std::exit(0);  // no flush: exit must write it
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(GPSUtils({.userFile = config / "dashtrack" / "Env.plist", .shippedFile = {}}).volume(), 0.75f);
}

}  // namespace
