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

    TemporaryDirectory directory;
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

TEST_F(SettingsWrites, DestructionWritesWhatIsPending) {
    writeFile(user, plistDictionary("<key>UnitType</key><integer>0</integer>"));
    CountingWrites writes(/*holdFirst=*/true);
    {
        GPSUtils utils(location(), nullptr, writes.function());
        utils.setUnitType(1);
        utils.setVolume(0.25f);
        writes.release();
    }
    const GPSUtils next(location());
    EXPECT_EQ(next.unitType(), 1u);
    EXPECT_EQ(next.volume(), 0.25f);
}

TEST_F(SettingsWrites, StoredValuesReachTheFileUnderTheirKeysAndTypes) {
    writeFile(user, plistDictionary("<key>UnitType</key><integer>0</integer>"));
    GPSUtils utils(location());
    utils.setVolume(0.35f);
    utils.setUnitType(1);
    utils.setMapSource("mbtiles:/maps/île-de-france.mbtiles");
    ASSERT_TRUE(utils.flush());
    // Read back by a new store, as the next run reads it.
    EXPECT_EQ(GPSUtils(location()).mapSource(), "mbtiles:/maps/île-de-france.mbtiles");
    const PlistNode root = readPlist(user);
    plist_t volume = plist_dict_get_item(root.get(), "Volume");
    plist_t unit = plist_dict_get_item(root.get(), "UnitType");
    ASSERT_EQ(plist_get_node_type(volume), PLIST_REAL);
    ASSERT_EQ(plist_get_node_type(unit), PLIST_UINT);
    double storedVolume = 0;
    uint64_t storedUnit = 0;
    plist_get_real_val(volume, &storedVolume);
    plist_get_uint_val(unit, &storedUnit);
    EXPECT_EQ(float(storedVolume), 0.35f);
    EXPECT_EQ(storedUnit, 1u);
}

TEST_F(SettingsWrites, UnchangedValuesWriteNothing) {
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
    utils.setVolume(0.4f);
    utils.flush();
    EXPECT_EQ(writes.count(), 1);
}

TEST_F(SettingsWrites, FileIsReplacedWholeByRename) {
    writeFile(user, plistDictionary("<key>UnitType</key><integer>0</integer><key>Player</key>"
                                    "<dict><key>Skin</key><string>night</string></dict>"));
    struct stat before {};
    ASSERT_EQ(::stat(user.c_str(), &before), 0);
    // A reader holding the old file keeps seeing it whole: the new one is a different inode.
    const std::string old = readFile(user);
    GPSUtils utils(location());
    utils.setUnitType(1);
    ASSERT_TRUE(utils.flush());
    struct stat after {};
    ASSERT_EQ(::stat(user.c_str(), &after), 0);
    EXPECT_NE(before.st_ino, after.st_ino);
    const std::string contents = readFile(user);
    EXPECT_NE(contents.find("<string>night</string>"), std::string::npos);
    EXPECT_NE(contents.find("<key>UnitType</key>"), std::string::npos);
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
