// The main menu's rules without a window: the bet unit, the Double Up switch, the total and its
// caption on every path, the load and close around the kept total, and board visits.

// Standard library
#include <cstring>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

// Marivale
#include "play/game_variant.h"
#include "play/menu_controller.h"
#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using Log = std::vector<std::string>;

// A menu window and its kept total on fakes: records what the window is told and, in order,
// what the window and the kept total are asked.
struct Menu final : MenuView, TotalStore {
    Menu() { applyStartupDefaults(state); }

    // Runs the menu's load with this kept total.
    void open(float kept, std::string warning = {}) {
        loaded = {kept, std::move(warning)};
        controller.load();
    }
    std::string text(MenuText target) const {
        const auto found = texts.find(target);
        return found == texts.end() ? "<never set>" : found->second;
    }

    void setText(MenuText target, std::string_view text) override {
        texts[target] = std::string(text);
    }
    void hideMenu() override { log.push_back("hide"); }
    void showMenu() override { log.push_back("show"); }
    void openBoard(GameId game) override {
        log.push_back("board " + std::string(variantFor(game).boardName));
        duringVisit();
    }
    void showHelp() override { log.push_back("help"); }
    void warn(std::string_view message) override { log.push_back("warn " + std::string(message)); }
    void closeOtherWindows() override { log.push_back("close others"); }
    Loaded load() override { return loaded; }
    std::string save(float total) override {
        std::ostringstream record;
        record << "save " << total;
        log.push_back(record.str());
        return problem;
    }
    std::string saveCheckpoint(float total) override {
        checkpoints.push_back(total);
        return problem;
    }

    Log log{};
    std::vector<float> checkpoints{};
    std::map<MenuText, std::string> texts{};
    std::function<void()> duringVisit{[] {
    }};
    Loaded loaded{};
    std::string problem{};
    GameState state{};
    MenuController controller{state, *this, *this};
};

constexpr GameId DW = GameId::DeucesWild;
constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId WJ = GameId::JokerWild;
constexpr GameId TT = GameId::TreasureTrips;

TEST(MenuController, PlaySettingsSetTheBetUnit) {
    const struct {
        int index;
        float unit;
    } cases[] = {{1, 0.25f}, {2, 1.0f}, {3, 5.0f}, {4, 10.0f}, {0, 0.5f}, {5, 0.5f}, {-1, 0.5f}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.index);
        Menu menu;
        menu.state.PlayUnit = 0.5f; // no option's unit: an unknown index leaves it so
        menu.controller.playSettingClicked(c.index);
        EXPECT_EQ(menu.state.PlayUnit, c.unit);
        EXPECT_TRUE(menu.texts.empty());
        EXPECT_TRUE(menu.log.empty());
    }
}

TEST(MenuController, LoadTurnsDoubleUpOffAndEachStatusBarClickTogglesIt) {
    const struct {
        int clicks;
        std::int16_t flag;
        const char* status;
    } cases[] = {{0, kFalse, "Status: DoubleUp Not Enabled"},
                 {1, kTrue, "Status: DoubleUp Enabled"},
                 {2, kFalse, "Status: DoubleUp Not Enabled"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.clicks);
        Menu menu;
        menu.state.DoubleUpEnabled = kTrue;
        menu.open(0.0f);
        for (int click = 0; click < c.clicks; ++click) {
            menu.controller.statusBarClicked();
        }
        EXPECT_EQ(menu.state.DoubleUpEnabled, c.flag);
        EXPECT_EQ(menu.text(MenuText::DoubleUpStatus), c.status);
    }
}

enum class Path : std::uint8_t { Load, Clear, Visit };

// The total as the kept total, Clear or a board's visit leaves it, and the frame's caption,
// whose text at 0 depends on the path.
TEST(MenuController, TotalAndCaptionOnEveryPath) {
    const struct {
        const char* name;
        Path path;
        GameId game;
        float total; // kept, or left by the visit; Clear starts from it
        const char* shown;
        const char* caption;
    } cases[] = {
        {"kept win", Path::Load, JB, 1234.5f, "$1,234.50", "Winnings"},
        {"kept quarter lost", Path::Load, JB, -0.25f, "-$0.25", "Losses"},
        {"kept a fraction of a cent lost", Path::Load, JB, -0.004f, "-$0.00", "Losses"},
        {"kept nothing", Path::Load, JB, 0.0f, "$0.00", ""},
        {"cleared loss", Path::Clear, JB, -0.25f, "$0.00", "Stats"},
        {"Deuces Wild at 0", Path::Visit, DW, 0.0f, "$0.00", "Stat"},
        {"Treasure Trips at 0", Path::Visit, TT, 0.0f, "$0.00", "Stat"},
        {"Jacks or Better at 0", Path::Visit, JB, 0.0f, "$0.00", "Stats"},
        {"Joker Wild at 0", Path::Visit, WJ, 0.0f, "$0.00", "Stats"},
        {"Deuces Wild won", Path::Visit, DW, 35.5f, "$35.50", "Winnings"},
        {"Jacks or Better lost", Path::Visit, JB, -40.0f, "-$40.00", "Losses"},
        {"Joker Wild big win", Path::Visit, WJ, 1234567.0f, "$1,234,567.00", "Winnings"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Menu menu;
        menu.state.NetWinLoss = 55.0f;
        switch (c.path) {
        case Path::Load:
            menu.open(c.total);
            break;
        case Path::Clear:
            menu.open(c.total);
            menu.controller.clearClicked();
            break;
        case Path::Visit:
            menu.open(12.0f);
            menu.duringVisit = [&menu, &c] {
                menu.state.NetWinLoss = c.total;
            };
            menu.controller.gameClicked(c.game);
            break;
        }
        EXPECT_EQ(menu.state.NetWinLoss, c.path == Path::Clear ? 0.0f : c.total);
        EXPECT_EQ(menu.text(MenuText::WinLoss), c.shown);
        EXPECT_EQ(menu.text(MenuText::StatFrame), c.caption);
        for (const std::string& entry : menu.log) {
            EXPECT_EQ(entry.rfind("save", 0), std::string::npos) << "kept before the close";
        }
    }
}

// A problem with the kept total is told as the load or the close finds it; the close keeps the
// total first, then closes the other windows, and a second close does nothing.
TEST(MenuController, TheKeptTotalAtTheLoadAndTheClose) {
    const struct {
        const char* atLoad;
        const char* atClose;
        Log log;
    } cases[] = {
        {"", "", {"save -3.75", "close others"}},
        {"cannot be kept", "", {"warn cannot be kept", "save -3.75", "close others"}},
        {"", "not saved", {"save -3.75", "warn not saved", "close others"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.atLoad) + c.atClose);
        Menu menu;
        menu.open(-3.75f, c.atLoad);
        menu.problem = c.atClose;
        EXPECT_FALSE(menu.controller.closing());
        EXPECT_TRUE(menu.controller.close());
        EXPECT_TRUE(menu.controller.closing());
        EXPECT_FALSE(menu.controller.close());
        EXPECT_EQ(menu.log, c.log);
    }
}

// The menu hides for a visit and shows the visit's total, then comes back unless the program
// is closing unattended.
TEST(MenuController, AVisitHidesTheMenuUntilTheBoardCloses) {
    enum class When : std::uint8_t { Never, Before, DuringVisit };
    const struct {
        const char* name;
        When unattended;
        Log log;
    } cases[] = {
        {"visit", When::Never, {"hide", "board JBBoard", "show"}},
        {"closing unattended", When::Before, {"hide", "board JBBoard"}},
        {"closing during the visit", When::DuringVisit, {"hide", "board JBBoard"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Menu menu;
        menu.open(0.0f);
        menu.duringVisit = [&menu, &c] {
            menu.state.NetWinLoss = -5.0f;
            if (c.unattended == When::DuringVisit) {
                menu.controller.closeUnattended();
            }
        };
        if (c.unattended == When::Before) {
            menu.controller.closeUnattended();
        }
        menu.controller.gameClicked(JB);
        EXPECT_EQ(menu.log, c.log);
        EXPECT_EQ(menu.text(MenuText::WinLoss), "-$5.00");
    }
}

// A checkpoint keeps the total that closing now would leave and changes nothing: at the menu
// the total as it stands, during a visit the total the board's unload will make of it (a
// positive total moved into the credits when the board opened). Its problem is handed back,
// never shown in a window.
TEST(MenuController, ACheckpointKeepsWhatClosingNowWouldLeave) {
    const struct {
        const char* name;
        bool visit;
        float kept;
        int purchase;     // the option bought on the board, or -1
        const char* hand; // dealt and stood on at $0.25, or nullptr
        bool cashOut;     // after the hand
        float checkpoint;
    } cases[] = {
        {"at the menu", false, -3.75f, -1, nullptr, false, -3.75f},
        {"a kept win in the credits", true, 35.5f, -1, nullptr, false, 35.5f},
        {"a lost hand", true, 12.0f, 4, "2c 7d 9h 4s Jd", false, 11.75f},
        {"cashed out after a lost hand", true, -5.0f, 4, "2c 7d 9h 4s Jd", true, -5.25f},
        {"a pair waiting for Double Up", true, 0.0f, 6, "Ac Ad 9h 4s 2d", false, -0.25f},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Menu menu;
        menu.open(c.kept);
        menu.problem = "not kept";
        std::array<unsigned char, sizeof(GameState)> before{};
        const auto checkpoint = [&menu, &before] {
            std::memcpy(before.data(), &menu.state, sizeof(GameState));
            EXPECT_EQ(menu.controller.checkpoint(), "not kept");
            EXPECT_EQ(std::memcmp(before.data(), &menu.state, sizeof(GameState)), 0);
        };
        if (c.visit) {
            // The board's state becomes the menu's; its unload is what closing it would do.
            menu.duringVisit = [&menu, &c, &checkpoint] {
                testing::Table t(JB, menu.state.NetWinLoss);
                t.state.DoubleUpEnabled = kTrue;
                if (c.purchase >= 0) {
                    t.buy(c.purchase);
                }
                if (c.hand != nullptr) {
                    t.hand(c.hand, 0x1f);
                }
                if (c.cashOut) {
                    t.controller.standClicked();
                }
                menu.state = t.state;
                checkpoint();
                t.controller.unload();
                menu.state = t.state;
            };
            menu.controller.gameClicked(JB);
        } else {
            checkpoint();
        }
        EXPECT_EQ(menu.checkpoints, std::vector<float>{c.checkpoint});
        EXPECT_EQ(menu.state.NetWinLoss, c.checkpoint) << "the close would keep another total";
        for (const std::string& entry : menu.log) {
            EXPECT_EQ(entry.rfind("warn", 0), std::string::npos) << entry;
        }
        EXPECT_TRUE(menu.controller.close());
        EXPECT_EQ(menu.controller.checkpoint(), "") << "kept after the close";
        EXPECT_EQ(menu.checkpoints.size(), 1U);
    }
}

} // namespace
} // namespace marivale
