#include "engine/odds/chart_line.h"

// Standard library
#include <array>
#include <bit>

// Marivale
#include "engine/card_text.h"

namespace marivale::odds {
namespace {

constexpr int kAceHigh = 14;
constexpr int kTen = 10;

bool isWild(GameId game, CardCode card) {
    switch (facts(game).wild) {
    case WildCard::Joker:
        return card == kJoker;
    case WildCard::Deuces:
        return card != kJoker && rankOf(card) == Rank::Two;
    case WildCard::None:
        break;
    }
    return false;
}

// Whether a pair of the rank pays in the game: its high cards.
bool isHighRank(GameId game, int rank) {
    switch (facts(game).pairPays) {
    case PairPays::JacksOrBetter:
        return rank == rankIndex(Rank::Ace) || rank >= rankIndex(Rank::Jack);
    case PairPays::Aces:
        return rank == rankIndex(Rank::Ace);
    case PairPays::Nothing:
        break;
    }
    return false;
}

// The straights from `lowest` (A-5 is 1) up to 10-A that contain every one of the distinct ranks.
int straightWays(unsigned rankBits, int lowest) {
    int ways = 0;
    for (int low = lowest; low <= kTen; ++low) {
        bool inside = true;
        for (int rank = 0; rank < kRanksPerSuit && inside; ++rank) {
            if ((rankBits >> rank) & 1u) {
                const int value = rank + 1;
                const bool fits = (value >= low && value <= low + 4) ||
                                  (rank == 0 && kAceHigh >= low && kAceHigh <= low + 4);
                inside = fits;
            }
        }
        ways += inside ? 1 : 0;
    }
    return ways;
}

LineKind ofAKind(int count) {
    return count >= 5 ? LineKind::FiveKind : count == 4 ? LineKind::FourKind : LineKind::ThreeKind;
}

// How many cards the kind itself takes; any more held are kickers.
int madeSize(LineKind kind) {
    switch (kind) {
    case LineKind::Pair:
        return 2;
    case LineKind::ThreeKind:
        return 3;
    case LineKind::TwoPair:
    case LineKind::FourKind:
        return 4;
    default:
        return kHandSize;
    }
}

std::string counted(int count, const char* one, const char* many) {
    return count == 0 ? std::string("no ") + many
                      : std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string wildText(GameId game, int wild) {
    if (facts(game).wild == WildCard::Joker) {
        return "Joker";
    }
    return counted(wild, "Deuce", "Deuces");
}

std::string ranksText(unsigned ranks) {
    static constexpr std::array<const char*, 4> kSingle{"Ace", "King", "Queen", "Jack"};
    if (std::popcount(ranks) == 1) {
        const int rank = std::countr_zero(ranks);
        if (rank == 0 || rank >= rankIndex(Rank::Jack)) {
            return kSingle[rank == 0 ? 0 : kRanksPerSuit - rank];
        }
    }
    std::string text;
    if ((ranks & 1u) != 0) {
        text += rankFace(Rank::Ace);
    }
    for (int rank = kRanksPerSuit - 1; rank > 0; --rank) {
        if ((ranks >> rank) & 1u) {
            text += rankFace(static_cast<Rank>(rank));
        }
    }
    return text;
}

std::string drawName(GameId game, const ChartLine& line) {
    static constexpr std::array<const char*, 4> kMade{"Straight", "Flush", "Straight Flush",
                                                      "Royal Flush"};
    const auto at =
        static_cast<std::size_t>(line.kind) - static_cast<std::size_t>(LineKind::Straight);
    if (line.held == kHandSize) {
        return kMade[at];
    }
    std::string text = std::to_string(line.held) + " to a";
    if (line.kind == LineKind::Straight && line.held == 4) {
        text += line.gaps == 0 ? "n Outside Straight" : "n Inside Straight";
        if (line.gaps > 1 && line.gaps != kAnyCount) {
            text += ", " + counted(line.gaps, "gap", "gaps");
        }
    } else {
        text += std::string(" ") + kMade[at];
        // A royal draw's gaps are named only where they cost it straight flushes.
        if (line.kind != LineKind::Flush && line.gaps != kAnyCount &&
            (line.kind != LineKind::RoyalFlush || line.gaps > 0)) {
            text += ", " + counted(line.gaps, "gap", "gaps");
        }
    }
    if (facts(game).pairPays != PairPays::Nothing && line.high != kAnyCount) {
        text += ", " + counted(line.high, "high card", "high cards");
    }
    return text;
}

std::string baseName(GameId game, const ChartLine& line) {
    const int natural = line.held - line.wild;
    switch (line.kind) {
    case LineKind::Discard:
        return "Discard everything";
    case LineKind::Cards:
        if (natural == 0) {
            return "";
        }
        if (line.ranks != 0) {
            return natural == 1 ? ranksText(line.ranks)
                                : (line.suited ? "Suited " : "Unsuited ") + ranksText(line.ranks);
        }
        if (line.high == natural && natural > 0) {
            return natural == 1 ? "1 high card"
                                : std::to_string(natural) +
                                      (line.suited ? " suited" : " unsuited") + " high cards";
        }
        return counted(natural, "card", "cards") + (line.suited ? " suited" : "") +
               (facts(game).pairPays != PairPays::Nothing
                    ? ", " + counted(line.high, "high card", "high cards")
                    : "");
    case LineKind::Pair:
        return facts(game).pairPays == PairPays::Nothing ? "Pair"
               : line.highPair                           ? "High Pair"
                                                         : "Low Pair";
    case LineKind::TwoPair:
        return "Two Pair";
    case LineKind::ThreeKind:
        return line.held == kAnyCount ? "Three of a Kind, Straight, Flush or Full House"
                                      : "Three of a Kind";
    case LineKind::FullHouse:
        return "Full House";
    case LineKind::FourKind:
        return line.held == kAnyCount ? "Four of a Kind or better" : "Four of a Kind";
    case LineKind::FiveKind:
        return "Five of a Kind";
    default:
        return drawName(game, line);
    }
}

} // namespace

std::uint64_t ChartLine::key() const {
    return static_cast<std::uint64_t>(kind) | std::uint64_t{held} << 8 | std::uint64_t{wild} << 16 |
           std::uint64_t{high} << 24 | std::uint64_t{gaps} << 32 | std::uint64_t{suited} << 40 |
           std::uint64_t{highPair} << 41 | std::uint64_t{threes} << 44 | std::uint64_t{ranks} << 48;
}

ChartLine chartLineOf(GameId game, std::span<const CardCode, kHandSize> deal, unsigned held) {
    ChartLine line;
    std::array<int, kRanksPerSuit> ofRank{};
    unsigned rankBits = 0;
    unsigned suits = 0;
    int natural = 0;
    for (int p = 0; p < kHandSize; ++p) {
        if (((held >> p) & 1u) == 0) {
            continue;
        }
        ++line.held;
        const CardCode card = deal[p];
        if (isWild(game, card)) {
            ++line.wild;
            continue;
        }
        ++natural;
        ++ofRank[rankIndex(card)];
        rankBits |= 1u << rankIndex(card);
        suits |= 1u << suitIndex(card);
        if (rankOf(card) == Rank::Three && facts(game).bonus == Bonus::TreasureHunt) {
            ++line.threes;
        }
        if (isHighRank(game, rankIndex(card))) {
            ++line.high;
        }
    }
    if (line.held == 0) {
        return line;
    }
    line.suited = natural >= 2 && std::popcount(suits) == 1;
    int most = 0;
    int pairs = 0;
    int pairRank = 0;
    for (int rank = 0; rank < kRanksPerSuit; ++rank) {
        most = std::max(most, ofRank[rank]);
        if (ofRank[rank] == 2) {
            ++pairs;
            pairRank = rank;
        }
    }
    if (most >= 2) {
        line.suited = false;
        line.high = 0;
        const int count = most + line.wild;
        if ((most == 3 && pairs == 1 && line.wild == 0) || (pairs == 2 && line.wild == 1)) {
            line.kind = LineKind::FullHouse;
        } else if (count >= 3) {
            line.kind = ofAKind(count);
        } else {
            line.kind = pairs == 2 ? LineKind::TwoPair : LineKind::Pair;
            line.highPair = pairs == 1 && isHighRank(game, pairRank);
        }
        return line;
    }
    const int ways = natural >= 2 ? straightWays(rankBits, 1) : 0;
    // Where deuces are wild only a deuce fills a straight's Two place: the draws count the
    // straights without it.
    const int drawWays = facts(game).wild == WildCard::Deuces ? straightWays(rankBits, 3) : ways;
    const auto gaps = static_cast<std::uint8_t>(std::max(0, 6 - natural - drawWays));
    // Three cards of mixed suits read as high cards, never as a straight to draw to.
    const bool straightDraw = ways > 0 && line.held >= 4;
    const bool royal = (rankBits & ~(1u | 0x1e00u)) == 0; // Ace and 10 to King only
    // Two suited cards read by their ranks when they are high or of a royal.
    const bool suitedDraw =
        line.suited && ways > 0 && (line.held >= 3 || !(royal || line.high == natural));
    if (suitedDraw) {
        line.kind = royal ? LineKind::RoyalFlush : LineKind::StraightFlush;
        line.gaps = gaps;
    } else if (line.suited && line.held >= 3) {
        line.kind = LineKind::Flush;
    } else if (straightDraw) {
        line.kind = LineKind::Straight;
        line.gaps = gaps;
    } else if (natural > 0 && line.wild >= 2 && (natural == 1 || line.held == kHandSize)) {
        // Wild cards with any natural one make a kind; more naturals would rather draw.
        line.kind = ofAKind(1 + line.wild);
        line.suited = false;
    } else if (line.held == kHandSize && line.wild > 0) {
        line.kind = LineKind::Pair;
        line.highPair = line.high > 0;
    } else {
        line.kind = LineKind::Cards;
        const bool allHigh = natural > 0 && line.high == natural;
        if (allHigh || (line.suited && natural == 2 && royal)) {
            line.ranks = static_cast<std::uint16_t>(rankBits);
        }
    }
    if (line.kind != LineKind::Cards) {
        line.suited = line.kind != LineKind::Straight && line.suited;
    }
    if (line.held == kHandSize && line.kind >= LineKind::Straight) {
        // A made hand is held for what it pays, whatever its ranks.
        line.high = 0;
        line.gaps = 0;
    }
    return line;
}

namespace {

// The line as a short chart reads it: a made kind without its kickers, a draw without its high
// cards (and a straight's gaps only as outside or inside), other cards without their ranks.
ChartLine simpleLine(GameId game, const ChartLine& full) {
    ChartLine line = full;
    // Wild cards alone, three or more of them, make at least four of a kind.
    const bool wildKind = line.kind == LineKind::Cards && line.held == line.wild && line.wild >= 3;
    const bool made = line.held == kHandSize || line.kind == LineKind::ThreeKind ||
                      line.kind == LineKind::FourKind || line.kind == LineKind::FiveKind ||
                      wildKind;
    if (made && (line.kind >= LineKind::ThreeKind || wildKind)) {
        // Made hands go in two groups: those above every draw, and the rest.
        const bool top = line.kind == LineKind::FourKind || line.kind >= LineKind::StraightFlush ||
                         line.kind == LineKind::FiveKind || wildKind;
        return ChartLine{.kind = top ? LineKind::FourKind : LineKind::ThreeKind,
                         .held = kAnyCount,
                         .wild = facts(game).wild == WildCard::None ? std::uint8_t{0} : kAnyCount,
                         .threes = static_cast<std::uint8_t>(line.threes >= 3 ? 3 : 0)};
    }
    if (line.kind >= LineKind::Pair && line.kind <= LineKind::FiveKind) {
        line.held = static_cast<std::uint8_t>(std::min<int>(line.held, madeSize(line.kind)));
        line.threes = line.threes >= 2 ? line.threes : 0;
    } else if (line.kind >= LineKind::Straight && line.held < kHandSize) {
        line.high = kAnyCount;
        line.threes = 0;
        line.gaps =
            line.kind == LineKind::Straight ? std::min<std::uint8_t>(line.gaps, 1) : kAnyCount;
        line.wild = facts(game).wild == WildCard::None ? std::uint8_t{0} : kAnyCount;
    } else if (line.kind == LineKind::Cards) {
        line.ranks = 0;
    }
    return line;
}

} // namespace

ChartLine chartLineOf(ChartKind kind, GameId game, std::span<const CardCode, kHandSize> deal,
                      unsigned held) {
    const ChartLine line = chartLineOf(game, deal, held);
    return kind == ChartKind::Simple ? simpleLine(game, line) : line;
}

std::string lineName(GameId game, const ChartLine& line) {
    std::string text = baseName(game, line);
    const int kickers = line.held == kAnyCount ? 0 : line.held - madeSize(line.kind);
    if (line.kind >= LineKind::Pair && line.kind <= LineKind::FiveKind && kickers > 0) {
        text += ", " + counted(kickers, "kicker", "kickers");
    }
    if (line.threes > 0) {
        text += (text.empty() ? "" : ", ") + counted(line.threes, "Three", "Threes");
    }
    if (line.wild > 0 && line.wild != kAnyCount) {
        text += (text.empty() ? "" : ", ") + wildText(game, line.wild);
    }
    return text;
}

} // namespace marivale::odds
