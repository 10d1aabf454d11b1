#include "shell/data_file.h"

// Standard library
#include <clocale>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <locale>
#include <random>
#include <string>

// POSIX
#include <sys/stat.h>
#include <unistd.h>

// GoogleTest
#include <gtest/gtest.h>

// Marivale
#include "shell/data_file_save.h"

namespace marivale {
namespace {

namespace fs = std::filesystem;

// A fresh folder per test, removed afterwards.
class DataFileFolder : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::temp_directory_path() / (std::string("marivale-datafile-") + info->name() +
                                               "-" + std::to_string(std::random_device{}()));
        fs::create_directories(folder_);
    }
    void TearDown() override {
        std::error_code ignored;
        fs::permissions(folder_, fs::perms::owner_all, fs::perm_options::add, ignored);
        fs::remove_all(folder_, ignored);
    }
    void writeFile(const std::string& content) const {
        std::ofstream(folder_ / "mpdata.dat", std::ios::binary) << content;
    }
    std::string fileContent() const {
        std::ifstream in(folder_ / "mpdata.dat", std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    // Every entry of the folder other than the data file: leftovers of a save.
    std::vector<std::string> strayEntries() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) {
            if (entry.path().filename() != "mpdata.dat") {
                names.push_back(entry.path().filename().string());
            }
        }
        return names;
    }
    // The total the file holds; nothing unless it starts with a number.
    std::optional<float> loadTotal() const {
        const ReadOutcome read = readDataFile(folder_);
        return read.status == ReadStatus::Read ? std::optional<float>(read.total) : std::nullopt;
    }
    fs::path folder_;
};

struct ReadCase {
    const char* text;
    float total;
};

// Texts whose first field is a number, with the total each holds.
const ReadCase kAccepted[] = {
    {"-12.5", -12.5f},      {"-12.5\r\n", -12.5f},   {"250,junk", 250.0f},
    {"  \r\n  42", 42.0f},  {"\t\t7 rest", 7.0f},    {"\n\n-3.75\r\n", -3.75f},
    {".75", 0.75f},         {"-.5", -0.5f},          {"5.", 5.0f},
    {"1.5E+07", 1.5e7f},    {"1.5e+07", 1.5e7f},     {"2.5E-1", 0.25f},
    {"1E3", 1000.0f},       {"-0.25", -0.25f},       {"+3", 3.0f},
    {"1,5", 1.0f},          {"1 234", 1.0f},         {"100\n200", 100.0f},
    {"007", 7.0f},          {"0\r\n", 0.0f},         {"-0", 0.0f},
    {"1E-99", 0.0f},        {"99999.75", 99999.75f}, {"123456800", 123456800.0f},
    {"1234.25,", 1234.25f}, {"12.5 dollars", 12.5f},
};

TEST(ParseTotal, ReadsEveryAcceptedForm) {
    for (const ReadCase& c : kAccepted) {
        const auto total = parseTotal(c.text);
        ASSERT_TRUE(total.has_value()) << '"' << c.text << '"';
        EXPECT_EQ(*total, c.total) << '"' << c.text << '"';
        EXPECT_FALSE(std::signbit(*total) && *total == 0.0f) << "negative zero from " << c.text;
    }
}

TEST(ParseTotal, RefusesFieldsThatAreNotNumbers) {
    const char* const rejected[] = {
        "",    " \r\n\t ", "abc", "$5",  "12x",  ".",     "-",      "+",   "1e", "1E+", "1.2.3",
        "--1", ",5",       "inf", "nan", "0x10", "1e+99", "-4E+38", "1D5", "£3", "3-",  "1.5E+0x"};
    for (const char* text : rejected) {
        EXPECT_FALSE(parseTotal(text).has_value()) << '"' << text << '"';
    }
}

struct WriteCase {
    float total;
    const char* text;
};

// Totals with the text the file holds for each.
const WriteCase kWritten[] = {
    {0.0f, "0"},
    {-0.0f, "0"},
    {-20.0f, "-20"},
    {1500.0f, "1500"},
    {12.5f, "12.5"},
    {-3.75f, "-3.75"},
    {1234.25f, "1234.25"},
    {0.75f, "0.75"},
    {-0.25f, "-0.25"},
    {0.1f, "0.1"},
    {1.0f / 3.0f, "0.3333333"},
    {99999.75f, "99999.75"},
    {-12345.67f, "-12345.67"},
    {123456789.0f, "123456800"},
    {15000000.0f, "15000000"},
    {1.0e-5f, "0.00001"},
    {1.5e-6f, "1.5E-06"},
    {2.5e20f, "2.5E+20"},
    {-1.0e15f, "-1E+15"},
    {INFINITY, "3.402823E+38"},
    {NAN, "0"},
};

TEST(FormatTotal, WritesTheFileNotation) {
    for (const WriteCase& c : kWritten) {
        EXPECT_EQ(formatTotal(c.total), c.text) << c.total;
    }
    EXPECT_EQ(totalRecord(-12.5f), "-12.5\r\n");
    EXPECT_EQ(totalRecord(0.0f), "0\r\n");
}

// A numpunct facet that uses a comma as the decimal point and groups by thousands with dots.
class CommaDecimals : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(DataFileNotation, IgnoresTheUsersLocale) {
    const std::locale previous = std::locale::global(std::locale(std::locale(), new CommaDecimals));
    // A real comma-decimal C locale as well, where the system has one.
    const std::string previousC = std::setlocale(LC_ALL, nullptr);
    const bool german = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    EXPECT_EQ(formatTotal(1234.25f), "1234.25");
    EXPECT_EQ(formatTotal(-3.75f), "-3.75");
    EXPECT_EQ(parseTotal("12.5"), 12.5f);
    EXPECT_EQ(parseTotal("12,5"), 12.0f);
    std::setlocale(LC_ALL, previousC.c_str());
    std::locale::global(previous);
    if (!german) {
        std::cout << "note: de_DE.UTF-8 is not installed; checked with a comma facet only\n";
    }
}

TEST(DataFileNotation, QuarterDollarsRoundTripExactly) {
    for (int quarters = -399999; quarters <= 399999; ++quarters) {
        const float total = static_cast<float>(quarters) * 0.25f;
        const std::string text = formatTotal(total);
        const auto back = parseTotal(text);
        ASSERT_TRUE(back.has_value()) << text;
        ASSERT_EQ(*back, total) << text;
        ASSERT_EQ(text.find_first_of("Ee"), std::string::npos) << text;
    }
}

// An empty folder name is the current folder: the record replaces what was there and nothing
// else is left beside it.
TEST_F(DataFileFolder, SaveWritesTheRecordAndLeavesNothingElse) {
    writeFile("250,junk");
    EXPECT_EQ(loadTotal(), 250.0f);
    const fs::path previous = fs::current_path();
    fs::current_path(folder_);
    const SaveOutcome outcome = saveTotal({}, -12.5f);
    fs::current_path(previous);
    EXPECT_TRUE(outcome.saved) << outcome.reason;
    EXPECT_EQ(outcome.file, folder_ / "mpdata.dat");
    EXPECT_EQ(fileContent(), "-12.5\r\n");
    EXPECT_EQ(loadTotal(), -12.5f);
    EXPECT_TRUE(strayEntries().empty());
}

// The mode a save leaves, by the mode the file had: kept, with the owner's read and write added.
// Root may read a file of mode 000, and what it writes back is still readable by its owner.
TEST_F(DataFileFolder, SaveKeepsTheModeAndTheOwnersReadAndWrite) {
    struct ModeCase {
        mode_t before;
        mode_t after;
    };
    const ModeCase cases[] = {{0600, 0600}, {0640, 0640}, {0664, 0664}, {0, 0600}};
    for (const ModeCase& c : cases) {
        if (c.before == 0 && ::geteuid() != 0) {
            continue; // only root reads it; other users meet the unreadable case
        }
        writeFile("1\r\n");
        ASSERT_EQ(::chmod((folder_ / "mpdata.dat").c_str(), c.before), 0);
        EXPECT_EQ(loadTotal(), 1.0f);
        ASSERT_TRUE(saveTotal(folder_, 2.0f).saved);
        struct stat info {};
        ASSERT_EQ(::stat((folder_ / "mpdata.dat").c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 07777, c.after) << std::oct << c.before;
        EXPECT_EQ(fileContent(), "2\r\n");
    }
}

TEST_F(DataFileFolder, InterruptedSaveLeavesThePreviousFile) {
    writeFile("250\r\n");
    const SaveOutcome outcome = saveTotal(folder_, 99.5f, [this] {
        // The new content is written and synced, yet the data file still holds the old one;
        // stopping here is what a crash at this moment would do.
        EXPECT_EQ(fileContent(), "250\r\n");
        return false;
    });
    EXPECT_FALSE(outcome.saved);
    EXPECT_FALSE(outcome.reason.empty());
    EXPECT_EQ(fileContent(), "250\r\n");
    EXPECT_EQ(loadTotal(), 250.0f);
    EXPECT_TRUE(strayEntries().empty());
}

// A link stays a link and the file it points to, in another folder, receives the total; a link
// to nothing gets its file made. Links through links are followed to the end.
TEST_F(DataFileFolder, ALinkStaysALinkAndItsTargetReceivesTheTotal) {
    const fs::path elsewhere = folder_ / "elsewhere";
    fs::create_directory(elsewhere);
    std::ofstream(elsewhere / "real.dat", std::ios::binary) << "-12.5\r\n";
    fs::create_symlink(elsewhere / "real.dat", folder_ / "middle.dat");
    fs::create_symlink("middle.dat", folder_ / "mpdata.dat");
    EXPECT_EQ(loadTotal(), -12.5f);
    ASSERT_TRUE(saveTotal(folder_, 7.25f).saved);
    EXPECT_TRUE(fs::is_symlink(folder_ / "mpdata.dat"));
    EXPECT_EQ(fs::read_symlink(folder_ / "mpdata.dat"), "middle.dat");
    EXPECT_TRUE(fs::is_symlink(folder_ / "middle.dat"));
    EXPECT_EQ(fileContent(), "7.25\r\n");
    EXPECT_EQ(fs::directory_iterator(elsewhere)->path().filename(), "real.dat");

    fs::remove(elsewhere / "real.dat");
    EXPECT_EQ(readDataFile(folder_).status, ReadStatus::Missing);
    ASSERT_TRUE(writeRecoveryRecord(folder_).saved);
    EXPECT_TRUE(fs::is_symlink(folder_ / "mpdata.dat"));
    EXPECT_EQ(fileContent(), "0\r\n");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(elsewhere / "real.dat")));
}

} // namespace
} // namespace marivale
