#include "shell/data_file.h"

// Standard library
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <locale>
#include <random>
#include <regex>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

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

TEST(DataFileNotation, LargerTotalsComeBackRoundedToSevenDigits) {
    const float total = 123456789.0f;
    const auto back = parseTotal(formatTotal(total));
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(*back, 123456800.0f);
    EXPECT_NE(*back, total);
    // The rounded value is written the same way again.
    EXPECT_EQ(formatTotal(*back), formatTotal(total));
    EXPECT_EQ(parseTotal(formatTotal(-2.5e20f)), -2.5e20f);
}

// The first field of a text, and whether it has the shape of a number: the reader's rules
// restated as a regular expression, used as an independent check.
std::pair<std::string, bool> referenceField(const std::string& text) {
    const auto start = text.find_first_not_of(" \t\r\n");
    if (start == std::string::npos) {
        return {"", false};
    }
    const auto end = text.find_first_of(", \t\r\n", start);
    const std::string field = text.substr(start, end == std::string::npos ? end : end - start);
    static const std::regex number(R"([+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?)");
    return {field, std::regex_match(field, number)};
}

TEST(ParseTotal, AgreesWithTheReferenceOnRandomTexts) {
    std::mt19937 random(20261123);
    const std::string alphabet = "0123456789.+-eE ,\t\r\nx$";
    for (int round = 0; round < 40000; ++round) {
        std::string text(random() % 24, '\0');
        for (char& c : text) {
            c = (round % 4 == 0) ? static_cast<char>(random() % 256)
                                 : alphabet[random() % alphabet.size()];
        }
        const auto total = parseTotal(text);
        const auto [field, isNumber] = referenceField(text);
        if (!isNumber) {
            ASSERT_FALSE(total.has_value()) << '"' << text << '"';
            continue;
        }
        errno = 0;
        const float expected = std::strtof(field.c_str(), nullptr);
        if (errno == ERANGE && std::isinf(expected)) {
            ASSERT_FALSE(total.has_value()) << '"' << text << '"';
        } else if (errno == ERANGE) {
            ASSERT_TRUE(total.has_value()) << '"' << text << '"';
            ASSERT_LE(std::abs(*total), 1.2e-38f) << '"' << text << '"';
        } else {
            ASSERT_TRUE(total.has_value()) << '"' << text << '"';
            ASSERT_EQ(*total, expected == 0.0f ? 0.0f : expected) << '"' << text << '"';
        }
    }
}

TEST_F(DataFileFolder, MissingFileHasNoTotal) {
    EXPECT_FALSE(loadTotal(folder_).has_value());
}

TEST_F(DataFileFolder, EmptyFileHasNoTotalAndRecoveryWritesZero) {
    writeFile("");
    EXPECT_FALSE(loadTotal(folder_).has_value());
    const SaveOutcome outcome = writeRecoveryRecord(folder_);
    EXPECT_TRUE(outcome.saved) << outcome.reason;
    EXPECT_EQ(fileContent(), "0\r\n");
    EXPECT_EQ(loadTotal(folder_), 0.0f);
}

TEST_F(DataFileFolder, SaveWritesTheRecordAndLeavesNothingElse) {
    writeFile("250,junk");
    EXPECT_EQ(loadTotal(folder_), 250.0f);
    const SaveOutcome outcome = saveTotal(folder_, -12.5f);
    EXPECT_TRUE(outcome.saved) << outcome.reason;
    EXPECT_EQ(outcome.file, folder_ / "mpdata.dat");
    EXPECT_EQ(fileContent(), "-12.5\r\n");
    EXPECT_EQ(loadTotal(folder_), -12.5f);
    EXPECT_TRUE(strayEntries().empty());
}

TEST_F(DataFileFolder, SaveKeepsTheFilesPermissions) {
    writeFile("1\r\n");
    fs::permissions(folder_ / "mpdata.dat", fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(saveTotal(folder_, 2.0f).saved);
    EXPECT_EQ(fs::status(folder_ / "mpdata.dat").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(DataFileFolder, InterruptedSaveLeavesThePreviousFile) {
    writeFile("250\r\n");
    const SaveOutcome outcome = saveTotal(folder_, 99.5f, [](const fs::path& temporary) {
        // Tear the new file as a crash in mid-write would, then stop before the replace.
        std::ofstream(temporary, std::ios::binary | std::ios::trunc) << "9";
        return false;
    });
    EXPECT_FALSE(outcome.saved);
    EXPECT_FALSE(outcome.reason.empty());
    EXPECT_EQ(fileContent(), "250\r\n");
    EXPECT_EQ(loadTotal(folder_), 250.0f);
    EXPECT_TRUE(strayEntries().empty());
}

TEST_F(DataFileFolder, FailedReplaceIsReportedWithThePath) {
    // A folder where the file should be: the replace cannot happen, even for root.
    fs::create_directory(folder_ / "mpdata.dat");
    EXPECT_FALSE(loadTotal(folder_).has_value());
    const SaveOutcome outcome = saveTotal(folder_, 5.0f);
    EXPECT_FALSE(outcome.saved);
    EXPECT_EQ(outcome.file, folder_ / "mpdata.dat");
    EXPECT_NE(outcome.reason.find("cannot replace"), std::string::npos) << outcome.reason;
    EXPECT_TRUE(fs::is_directory(folder_ / "mpdata.dat"));
    EXPECT_TRUE(strayEntries().empty());
}

TEST_F(DataFileFolder, MissingFolderIsReported) {
    const SaveOutcome outcome = saveTotal(folder_ / "gone", 5.0f);
    EXPECT_FALSE(outcome.saved);
    EXPECT_EQ(outcome.file, folder_ / "gone" / "mpdata.dat");
    EXPECT_FALSE(outcome.reason.empty());
}

TEST_F(DataFileFolder, AnEmptyFolderNameMeansTheCurrentFolder) {
    const fs::path previous = fs::current_path();
    fs::current_path(folder_);
    const SaveOutcome outcome = saveTotal({}, 7.25f);
    fs::current_path(previous);
    EXPECT_TRUE(outcome.saved) << outcome.reason;
    EXPECT_EQ(outcome.file, folder_ / "mpdata.dat");
    EXPECT_EQ(fileContent(), "7.25\r\n");
}

} // namespace
} // namespace marivale
