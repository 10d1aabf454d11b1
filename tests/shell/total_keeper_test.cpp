// Keeping the total between runs: what the player is told, once, when the data file cannot be
// read or written, and that such a file is never replaced behind the player's back.

// Standard library
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>

// POSIX
#include <sys/stat.h>
#include <unistd.h>

// GoogleTest
#include <gtest/gtest.h>

// Marivale
#include "shell/total_keeper.h"
#include "tests/support/unprivileged.h"

namespace marivale {
namespace {

namespace fs = std::filesystem;

class TotalKeeperTest : public ::testing::Test {
protected:
    void SetUp() override {
        start_ = fs::current_path();
        folder_ = fs::temp_directory_path() /
                  ("marivale-keeper-" + std::to_string(std::random_device{}()));
        fs::create_directories(folder_);
        fs::current_path(folder_);
        ::umask(022); // new files get rw-r--r--
    }
    void TearDown() override {
        fs::current_path(start_);
        std::error_code ignored;
        fs::permissions(folder_, fs::perms::owner_all, fs::perm_options::add, ignored);
        fs::remove_all(folder_, ignored);
    }
    fs::path start_;
    fs::path folder_;
};

// One case: how the folder is prepared, what the load gives, and what the file holds after a
// checkpoint of 41 and a save of 42 at the close.
struct KeeperCase {
    const char* name;
    std::function<void(const fs::path&)> prepare;
    float total;
    const char* warning;          // a part of the one message, or "" for none
    const char* after;            // the file's content after the close
    mode_t modeAfter;             // 0: not checked
    const char* atLoad = nullptr; // the file's content just after the load, when checked
};

void writeData(const fs::path& folder, const char* text, mode_t mode) {
    std::ofstream(folder / "mpdata.dat", std::ios::binary) << text;
    ::chmod((folder / "mpdata.dat").c_str(), mode);
}

// What the data file of the current folder holds.
std::string dataText() {
    std::ifstream in("mpdata.dat", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Runs each case as an ordinary user: load, checkpoint, close, and whether anyone was told a
// second time.
TEST_F(TotalKeeperTest, EachDataFileIsKeptOrLeftAloneWithOneMessage) {
    const KeeperCase cases[] = {
        {"missing file", [](const fs::path&) {}, 0.0f, "", "42\r\n", 0644, "0\r\n"},
        {"a total", [](const fs::path& f) { writeData(f, "-12.5\r\n", 0644); }, -12.5f, "",
         "42\r\n", 0644},
        {"text", [](const fs::path& f) { writeData(f, "abc", 0600); }, 0.0f, "", "42\r\n", 0600,
         "0\r\n"},
        {"unreadable", [](const fs::path& f) { writeData(f, "250\r\n", 0); }, 0.0f,
         "cannot be read or written (Permission denied), so it is left as it is", nullptr, 0},
        {"write-only", [](const fs::path& f) { writeData(f, "250\r\n", 0200); }, 0.0f,
         "can be written but not read (Permission denied), so it is left as it is.\n\nYou can "
         "play on; the total starts at $0.00",
         nullptr, 0200},
        {"read-only", [](const fs::path& f) { writeData(f, "250\r\n", 0400); }, 250.0f,
         "can be read but not written, so it is left as it is.\n\nYou can play on from $250.00",
         "250\r\n", 0400},
        {"a folder", [](const fs::path& f) { fs::create_directory(f / "mpdata.dat"); }, 0.0f,
         "(it is a folder), so it is left as it is", nullptr, 0},
        {"read-only folder, no file", [](const fs::path& f) { ::chmod(f.c_str(), 0500); }, 0.0f,
         "Your total cannot be kept in this folder", nullptr, 0},
        {"read-only folder, writable file",
         [](const fs::path& f) {
             writeData(f, "7\r\n", 0600);
             ::chmod(f.c_str(), 0500);
         },
         7.0f, "", "42\r\n", 0600},
    };
    for (const KeeperCase& c : cases) {
        SCOPED_TRACE(c.name);
        const fs::path folder = folder_ / c.name;
        fs::create_directory(folder);
        runUnprivileged(folder, [&] {
            fs::current_path(folder);
            c.prepare(folder);
            struct stat before {};
            const bool existed = ::lstat("mpdata.dat", &before) == 0;
            TotalKeeper keeper;
            const TotalKeeper::Loaded loaded = keeper.load();
            EXPECT_EQ(loaded.total, c.total);
            if (*c.warning == '\0') {
                EXPECT_EQ(loaded.warning, "");
            } else {
                EXPECT_NE(loaded.warning.find(c.warning), std::string::npos) << loaded.warning;
            }
            if (c.atLoad != nullptr) {
                EXPECT_EQ(dataText(), c.atLoad);
            }
            EXPECT_EQ(keeper.saveCheckpoint(41.0f), "") << "told twice";
            EXPECT_EQ(keeper.save(42.0f), "") << "told twice";
            struct stat after {};
            const bool exists = ::lstat("mpdata.dat", &after) == 0;
            if (c.after == nullptr) {
                // Left exactly as it was found, or not made at all.
                EXPECT_EQ(exists, existed);
                if (existed) {
                    EXPECT_EQ(after.st_ino, before.st_ino);
                    EXPECT_EQ(after.st_mode, before.st_mode);
                    EXPECT_EQ(after.st_size, before.st_size);
                    EXPECT_EQ(after.st_mtime, before.st_mtime);
                }
            } else {
                EXPECT_EQ(dataText(), c.after);
            }
            if (c.modeAfter != 0) {
                EXPECT_EQ(after.st_mode & 07777, c.modeAfter);
            }
            ::chmod(folder.c_str(), 0700);
            fs::current_path(folder.parent_path());
        });
        fs::current_path(folder_);
    }
}

// A save that fails at the close, with nothing said at the load, is told once; one that fails
// at a checkpoint is reported each time and still told at the close.
TEST_F(TotalKeeperTest, AFailedCloseIsToldWithTheTotalAndThePath) {
    TotalKeeper keeper;
    EXPECT_EQ(keeper.load().warning, "");
    fs::remove(folder_ / "mpdata.dat");
    fs::create_directory(folder_ / "mpdata.dat");
    const std::string reported = keeper.saveCheckpoint(-20.0f);
    EXPECT_EQ(keeper.saveCheckpoint(-20.0f), reported);
    const std::string told = keeper.save(-20.0f);
    EXPECT_EQ(told, reported);
    EXPECT_NE(told.find("Your total of -$20.00 could not be saved."), std::string::npos) << told;
    EXPECT_NE(told.find((folder_ / "mpdata.dat").string()), std::string::npos) << told;
    EXPECT_EQ(keeper.save(-20.0f), "");
    EXPECT_EQ(keeper.saveCheckpoint(-20.0f), "");
}

// Started from a folder that has since been deleted: one message, play from 0, a quiet close.
TEST_F(TotalKeeperTest, AFolderDeletedBeforeTheStartIsToldOnce) {
    const fs::path gone = folder_ / "gone";
    fs::create_directory(gone);
    fs::current_path(gone);
    fs::remove(gone);
    TotalKeeper keeper;
    const TotalKeeper::Loaded loaded = keeper.load();
    EXPECT_EQ(loaded.total, 0.0f);
    EXPECT_EQ(loaded.warning, "Your total cannot be kept: the folder this game was started from "
                              "no longer exists.\n\nYou can play on; the total starts at $0.00 "
                              "and will not be kept.");
    EXPECT_EQ(keeper.save(12.5f), "");
    EXPECT_FALSE(fs::exists(gone));
}

} // namespace
} // namespace marivale
