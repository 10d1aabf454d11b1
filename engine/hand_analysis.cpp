#include "engine/hand_analysis.h"

// Standard library
#include <array>
#include <utility>

// Marivale
#include "engine/card.h"

namespace marivale {

namespace {

using Jacks = JacksHand;
using Joker = JokerHand;
using Deuces = DeucesHand;

// A rank or suit that equals no natural one: the joker's place in the sorted hand.
constexpr int kJokerSlot = 52;
// Deuces Wild gives its Twos this rank, so they sort to the front.
constexpr int kDeuceRank = -1;

// The ranks the patterns name, as the rank indexes the hand holds.
constexpr int kAce = rankIndex(Rank::Ace);
constexpr int kTwo = rankIndex(Rank::Two);
constexpr int kThree = rankIndex(Rank::Three);
constexpr int kTen = rankIndex(Rank::Ten);
constexpr int kJack = rankIndex(Rank::Jack);
constexpr int kQueen = rankIndex(Rank::Queen);
constexpr int kKing = rankIndex(Rank::King);

struct Cards {
    std::array<int, kHandSize> ranks{};
    std::array<int, kHandSize> suits{};
    bool hasJoker{false};
    int deuceCount{0};
    int threesCount{0};
};

struct Patterns {
    bool flush{false};
    bool royal{false};
    bool straight{false};
    bool fourKind{false};
    bool fullHouse{false};
    bool threeKind{false};
    bool twoPair{false};
    bool pair{false};
};

// Orders five values ascending with a nine-exchange sorting network.
template <typename T> void sortFive(std::array<T, kHandSize>& v) {
    const auto exchange = [&v](int a, int b) {
        if (v[b] < v[a]) {
            std::swap(v[a], v[b]);
        }
    };
    exchange(0, 1), exchange(3, 4), exchange(2, 4), exchange(2, 3), exchange(1, 4);
    exchange(0, 3), exchange(0, 2), exchange(1, 3), exchange(1, 2);
}

// The five codes of the hand in ascending order (the cards of a hand are distinct).
std::array<int, kHandSize> sortedCodes(const GameState& state) {
    std::array<int, kHandSize> sorted{};
    for (int p = 0; p < kHandSize; ++p) {
        sorted[p] = static_cast<int>(state.Hand[p]);
    }
    sortFive(sorted);
    return sorted;
}

// Splits the sorted codes into suits and ranks, setting the joker, deuce and Three counts.
Cards splitCards(const std::array<int, kHandSize>& sorted, WildCard wild) {
    Cards cards;
    for (int i = 0; i < kHandSize; ++i) {
        const int code = sorted[i];
        if (wild == WildCard::Joker && i == kHandSize - 1 && code == kJoker) {
            cards.hasJoker = true;
            cards.ranks[i] = kJokerSlot;
            cards.suits[i] = kJokerSlot;
            continue;
        }
        cards.suits[i] = suitIndex(code);
        cards.ranks[i] = rankIndex(code);
        if (wild == WildCard::Deuces && cards.ranks[i] == kTwo) {
            ++cards.deuceCount;
            cards.ranks[i] = kDeuceRank;
        }
        if (cards.ranks[i] == kThree) {
            ++cards.threesCount;
        }
    }
    if (cards.hasJoker) {
        ++cards.threesCount;
    }
    return cards;
}

// Sorts the ranks ascending; on Deuces Wild each suit moves with its rank. The order among equal
// ranks never matters: the flush tests compare every natural suit with every other.
void sortRanks(Cards& cards, bool suitsFollow) {
    if (!suitsFollow) {
        sortFive(cards.ranks);
        return;
    }
    std::array<int, kHandSize> keys{};
    for (int i = 0; i < kHandSize; ++i) {
        keys[i] = (cards.ranks[i] + 1) * 8 + cards.suits[i];
    }
    sortFive(keys);
    for (int i = 0; i < kHandSize; ++i) {
        cards.ranks[i] = keys[i] / 8 - 1;
        cards.suits[i] = keys[i] % 8;
    }
}

// The pattern tests on natural cards; with the joker only the four natural cards match.
Patterns naturalPatterns(const Cards& c, bool jokerGame) {
    const auto& r = c.ranks;
    const auto& s = c.suits;
    const bool joker = jokerGame && c.hasJoker;
    Patterns f;
    if (jokerGame) {
        f.flush = s[0] == s[1] && s[1] == s[2] && s[2] == s[3] && (s[4] == s[0] || joker);
    } else {
        f.flush = s[0] == s[1] && s[1] == s[2] && s[2] == s[3] && s[3] == s[4];
    }
    f.royal =
        r[0] == kAce && r[1] == kTen && r[2] == kJack && r[3] == kQueen && (r[4] == kKing || joker);
    if (joker && r[3] == kKing) {
        if (r[0] == kAce && r[1] == kTen && (r[2] == kJack || r[2] == kQueen)) {
            f.royal = true;
        }
        if (r[1] == kJack && r[2] == kQueen && (r[0] == kTen || r[0] == kAce)) {
            f.royal = true;
        }
    }
    if (!joker) {
        f.straight = r[1] == r[0] + 1 && r[2] == r[1] + 1 && r[3] == r[2] + 1 && r[4] == r[3] + 1;
    } else {
        // The four natural cards are consecutive or miss one rank inside, which the joker fills.
        const bool gap01 = r[0] == r[1] - 2 || r[0] == r[1] - 1;
        const bool gap12 = r[1] == r[2] - 2 || r[1] == r[2] - 1;
        const bool gap23 = r[2] == r[3] - 2 || r[2] == r[3] - 1;
        const bool step01 = r[0] == r[1] - 1;
        const bool step12 = r[1] == r[2] - 1;
        const bool step23 = r[2] == r[3] - 1;
        f.straight = (gap01 && step12 && step23) || (gap12 && step01 && step23) ||
                     (gap23 && step01 && step12);
    }
    f.fourKind = (r[0] == r[1] && r[1] == r[2] && r[2] == r[3]) ||
                 (r[1] == r[2] && r[2] == r[3] && r[3] == r[4]);
    f.fullHouse = !f.fourKind && ((r[0] == r[1] && r[1] == r[2] && r[3] == r[4]) ||
                                  (r[0] == r[1] && r[2] == r[3] && r[3] == r[4]));
    f.threeKind = !f.fourKind && !f.fullHouse &&
                  ((r[0] == r[1] && r[1] == r[2]) || (r[1] == r[2] && r[2] == r[3]) ||
                   (r[2] == r[3] && r[3] == r[4]));
    f.twoPair =
        !f.fourKind && !f.fullHouse && !f.threeKind &&
        ((r[0] == r[1] && (r[3] == r[4] || r[2] == r[3])) || (r[1] == r[2] && r[3] == r[4]));
    // Only the first comparison is guarded, so a pair is also seen inside bigger hands.
    f.pair = (r[0] == r[1] && !f.twoPair && !f.threeKind && !f.fullHouse && !f.fourKind) ||
             r[1] == r[2] || r[2] == r[3] || r[3] == r[4];
    return f;
}

// Jacks or Better: the first line that applies, then the pair rule.
HandAnalysis classifyJacks(GameState& state, const Cards& c, const Patterns& f) {
    if (f.flush && f.royal)
        return {handCode(Jacks::RoyalFlush)};
    if (f.flush && f.straight)
        return {handCode(Jacks::StraightFlush)};
    if (f.fourKind)
        return {handCode(Jacks::FourKind)};
    if (f.fullHouse)
        return {handCode(Jacks::FullHouse)};
    if (f.flush)
        return {handCode(Jacks::Flush)};
    if (f.straight || f.royal)
        return {handCode(Jacks::Straight)};
    if (f.threeKind)
        return {handCode(Jacks::ThreeKind)};
    if (f.twoPair)
        return {handCode(Jacks::TwoPair)};
    if (!f.pair)
        return {handCode(Jacks::Nothing)};
    int k = kHandSize;
    for (int i = 0; i + 1 < kHandSize; ++i) {
        if (c.ranks[i] == c.ranks[i + 1]) {
            k = i;
        }
    }
    if (k == kHandSize)
        return {handCode(Jacks::Nothing)};
    const int pairRank = c.ranks[k];
    if (pairRank != kAce && pairRank < kJack)
        return {handCode(Jacks::Nothing)};
    state.Hand[0] = static_cast<float>(pairRank);
    return {handCode(Jacks::JacksOrBetter)};
}

// Treasure Trips and Joker Wild: the joker completes the hand where it helps.
HandAnalysis classifyJoker(GameState& state, PairPays pairPays, const Cards& c, const Patterns& f) {
    const bool joker = c.hasJoker;
    bool marked = false;
    if (pairPays == PairPays::Aces) {
        const bool naturalAces = f.pair && c.ranks[0] == kAce && c.ranks[1] == kAce;
        const bool aceWithJoker = joker && c.ranks[0] == kAce;
        if (naturalAces || aceWithJoker) {
            state.Hand[0] = kAcePairMark;
            marked = true;
        }
    }
    JokerHand hand = JokerHand::Nothing;
    if (f.fourKind && joker)
        hand = Joker::FiveKind;
    else if (f.flush && f.royal)
        hand = Joker::RoyalFlush;
    else if (f.flush && f.straight)
        hand = Joker::StraightFlush;
    else if ((joker && f.threeKind) || f.fourKind)
        hand = Joker::FourKind;
    else if ((joker && f.twoPair) || f.fullHouse)
        hand = Joker::FullHouse;
    else if (f.flush)
        hand = Joker::Flush;
    else if (f.straight || f.royal)
        hand = Joker::Straight;
    else if ((joker && f.pair) || f.threeKind)
        hand = Joker::ThreeKind;
    else if (f.twoPair || marked)
        hand = Joker::TwoPair;
    return {handCode(hand), marked};
}

// Deuces Wild: the pattern tests written separately for each number of deuces.
Patterns deucePatterns(const Cards& c) {
    const auto& r = c.ranks;
    const auto& s = c.suits;
    const auto high = [](int rank) {
        return rank >= kTen;
    };
    const auto royalLow = [](int rank) {
        return rank == kAce || rank >= kTen;
    };
    Patterns f;
    switch (c.deuceCount) {
    case 3:
        f.flush = s[3] == s[4];
        f.royal = royalLow(r[3]) && high(r[4]) && r[3] != r[4];
        f.straight = r[4] <= r[3] + 4;
        f.pair = r[3] == r[4];
        break;
    case 2:
        f.flush = s[2] == s[3] && s[3] == s[4];
        f.royal = royalLow(r[2]) && high(r[3]) && high(r[4]) && r[2] != r[3] && r[3] != r[4] &&
                  r[2] != r[4];
        f.straight = r[3] <= r[2] + 4 && r[4] <= r[2] + 4 && r[2] != r[3] && r[3] != r[4];
        f.threeKind = r[2] == r[3] && r[3] == r[4];
        f.pair = r[2] == r[3] || r[3] == r[4];
        break;
    case 1:
        f.flush = s[1] == s[2] && s[2] == s[3] && s[3] == s[4];
        f.royal = royalLow(r[1]) && high(r[2]) && high(r[3]) && high(r[4]) && r[1] != r[2] &&
                  r[2] != r[3] && r[3] != r[4];
        f.straight = r[2] <= r[1] + 4 && r[3] <= r[1] + 4 && r[4] <= r[1] + 4 && r[1] != r[2] &&
                     r[2] != r[3] && r[3] != r[4];
        f.fourKind = r[1] == r[2] && r[2] == r[3] && r[3] == r[4];
        f.threeKind = (r[1] == r[2] && r[2] == r[3]) || (r[2] == r[3] && r[3] == r[4]);
        f.twoPair = r[1] == r[2] && r[3] == r[4];
        f.pair = r[1] == r[2] || r[2] == r[3] || r[3] == r[4];
        break;
    default:
        f.flush = s[0] == s[1] && s[1] == s[2] && s[2] == s[3] && s[3] == s[4];
        f.royal = r[0] == kAce && r[1] == kTen && r[2] == kJack && r[3] == kQueen && r[4] == kKing;
        f.straight = r[1] == r[0] + 1 && r[2] == r[1] + 1 && r[3] == r[2] + 1 && r[4] == r[3] + 1;
        f.fourKind = (r[0] == r[1] && r[1] == r[2] && r[2] == r[3]) ||
                     (r[1] == r[2] && r[2] == r[3] && r[3] == r[4]);
        f.fullHouse = (r[0] == r[1] && r[1] == r[2] && r[3] == r[4]) ||
                      (r[0] == r[1] && r[2] == r[3] && r[3] == r[4]);
        f.threeKind = (r[0] == r[1] && r[1] == r[2]) || (r[1] == r[2] && r[2] == r[3]) ||
                      (r[2] == r[3] && r[3] == r[4]);
        f.twoPair = (r[0] == r[1] && r[2] == r[3]) || (r[0] == r[1] && r[3] == r[4]) ||
                    (r[1] == r[2] && r[3] == r[4]);
        f.pair = r[0] == r[1] || r[1] == r[2] || r[2] == r[3] || r[3] == r[4];
        break;
    }
    return f;
}

HandAnalysis classifyDeuces(const Cards& c) {
    const int n = c.deuceCount;
    if (n == 4)
        return {handCode(Deuces::FourDeuces)};
    const Patterns f = deucePatterns(c);
    if (n == 0 && f.royal && f.flush)
        return {handCode(Deuces::NaturalRoyal)};
    if (n > 0 && f.royal && f.flush)
        return {handCode(Deuces::WildRoyal)};
    if ((n == 3 && f.pair) || (n == 2 && f.threeKind) || (n == 1 && f.fourKind))
        return {handCode(Deuces::FiveKind)};
    if (f.flush && f.straight)
        return {handCode(Deuces::StraightFlush)};
    if (n == 3 || (n == 2 && f.pair) || (n == 1 && f.threeKind) || f.fourKind)
        return {handCode(Deuces::FourKind)};
    if ((n == 1 && f.twoPair) || f.fullHouse)
        return {handCode(Deuces::FullHouse)};
    if (f.flush)
        return {handCode(Deuces::Flush)};
    if (f.straight || f.royal)
        return {handCode(Deuces::Straight)};
    if (f.threeKind || n == 2 || (n == 1 && f.pair))
        return {handCode(Deuces::ThreeKind)};
    return {handCode(Deuces::Nothing)};
}

} // namespace

HandAnalysis AnalyzeHand(GameState& state, GameId game) {
    const GameFacts& rules = facts(game);
    const bool treasureHunt = rules.bonus == Bonus::TreasureHunt;
    if (treasureHunt) {
        state.BonusDue = kFalse;
    }
    Cards cards = splitCards(sortedCodes(state), rules.wild);
    if (treasureHunt && cards.threesCount > 2) {
        state.BonusDue = kTrue;
    }
    sortRanks(cards, rules.wild == WildCard::Deuces);
    switch (rules.wild) {
    case WildCard::Deuces:
        return classifyDeuces(cards);
    case WildCard::None:
        return classifyJacks(state, cards, naturalPatterns(cards, false));
    case WildCard::Joker:
        break;
    }
    return classifyJoker(state, rules.pairPays, cards, naturalPatterns(cards, true));
}

} // namespace marivale
