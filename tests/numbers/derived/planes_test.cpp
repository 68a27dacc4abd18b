#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/reading_facts.h"
#include "tests/support/store_slots.h"

#include <algorithm>
#include <array>
#include <vector>

namespace modReadings {
namespace {

using Four = std::array<int, 4>; ///< mental, physical, emotional, intuitive
using Words = std::array<std::u16string, 4>;

class Planes : public FreshStore {
protected:
    static void Calc(std::u16string first, std::u16string middle, std::u16string last) {
        Named(std::move(first), std::move(middle), std::move(last));
        CalcPlanes();
    }

    /// Runs the calculator on a name of a hundred characters, so that each count is a share.
    static void CalcShares(int mental, int physical, int emotional, int intuitive) {
        std::u16string name;
        name.append(static_cast<std::size_t>(mental), u'H');
        name.append(static_cast<std::size_t>(physical), u'W');
        name.append(static_cast<std::size_t>(emotional), u'R');
        name.append(static_cast<std::size_t>(intuitive), u'F');
        name.resize(100, u'-');
        Calc(name.substr(0, 30), name.substr(30, 30), name.substr(60));
    }

    static Four Shares() {
        return {store.MentalPercent, store.PhysicalPercent, store.EmotionalPercent,
                store.IntuitivePercent};
    }

    static Words Ratings() {
        return {store.MentalRating, store.PhysicalRating, store.EmotionalRating,
                store.IntuitiveRating};
    }
};

TEST_F(Planes, OfNamesWorkedByHand) {
    const struct {
        std::u16string first, last;
        Four shares;
        std::u16string plane; ///< in a fresh store
        Words ratings;
    } names[] = {
        {u"ANN", u"LEE", {66, 33, 0, 0}, u"Mental", {u"Strong", u"Strong", u"Weak", u"Weak"}},
        // 2, 1, 3 and 2 of 8, each truncated by itself
        {u"CORA",
         u"KENT",
         {25, 12, 37, 25},
         u"Emotional",
         {u"Weak", u"Weak", u"Strong", u"Strong"}},
        {u"A", u"E", {50, 50, 0, 0}, u"", {u"Strong", u"Strong", u"Weak", u"Weak"}}, // a tie
        // No physical rating
        {u"ROSS", u"E", {0, 20, 80, 0}, u"Emotional", {u"Weak", u"", u"Strong", u"Weak"}},
        {u"VIC", u"", {0, 0, 33, 66}, u"Intuitive", {u"Weak", u"Weak", u"Average", u"Strong"}},
        // What is no letter belongs to no plane: one and one of ten
        {u"a b-1\u00C9\u00D6'", u"HW", {10, 10, 0, 0}, u"", {u"Weak", u"Weak", u"Weak", u"Weak"}},
    };
    for (const auto &name : names) {
        store = {};
        Calc(name.first.substr(0, 1), name.first.substr(1), name.last); // the three names are one
        EXPECT_EQ(Shares(), name.shares) << ::testing::PrintToString(name.first);
        EXPECT_EQ(store.PlanesNumber, name.plane);
        EXPECT_EQ(Ratings(), name.ratings);
    }
    Calc(u"CORA", u"", u"KENT");
    EXPECT_EQ(store.PlanesText, u"Mental Ability 25 - Weak \r\n"
                                u"Physical Ability 12 - Weak \r\n"
                                u"Emotional Ability 37 - Strong \r\n"
                                u"Intuitive Ability 25 - Strong");
    EXPECT_EQ(store.MentalLabel, u"Mental Ability ");
    EXPECT_EQ(store.IntuitiveLabel, u"Intuitive Ability ");
}

TEST_F(Planes, BlankInsideANameCountsInTheLength) {
    Calc(u"MARY ANN", u"", u"LEE"); // 5, 3, 1 and 1 of 11
    EXPECT_EQ(Shares(), (Four{45, 27, 9, 9}));
}

TEST_F(Planes, EachLetterBelongsToOnePlane) {
    struct Plane {
        std::u16string_view letters;
        Four shares;
        std::u16string_view word;
    };
    constexpr Plane planes[] = {
        {u"HAJNPGL", {100, 0, 0, 0}, u"Mental"},
        {u"WEDM", {0, 100, 0, 0}, u"Physical"},
        {u"ROIZBSTX", {0, 0, 100, 0}, u"Emotional"},
        {u"FKQUYCV", {0, 0, 0, 100}, u"Intuitive"},
    };
    std::set<char16_t> letters;
    for (const Plane &plane : planes) {
        for (const char16_t letter : plane.letters) {
            Calc(std::u16string(1, letter), u"", u"");
            EXPECT_EQ(Shares(), plane.shares) << static_cast<char>(letter);
            EXPECT_EQ(store.PlanesNumber, plane.word) << static_cast<char>(letter);
            letters.insert(letter);
        }
    }
    EXPECT_EQ(letters.size(), 26u);
}

TEST_F(Planes, HaveALadderEach) {
    // The highest shares that are weak and average. The physical ladder is climbed beside a
    // mental share of 18.
    const struct {
        Four one; ///< which plane
        int weakUpTo, averageUpTo;
        std::u16string ReadingStore::*rating;
    } ladders[] = {{{1, 0, 0, 0}, 25, 32, &ReadingStore::MentalRating},
                   {{0, 1, 0, 0}, 17, 23, &ReadingStore::PhysicalRating},
                   {{0, 0, 1, 0}, 20, 34, &ReadingStore::EmotionalRating},
                   {{0, 0, 0, 1}, 11, 17, &ReadingStore::IntuitiveRating}};
    for (const auto &[one, weakUpTo, averageUpTo, rating] : ladders) {
        for (int share = 0; share <= 82; ++share) {
            CalcShares(one[1] != 0 ? 18 : share * one[0], share * one[1], share * one[2],
                       share * one[3]);
            EXPECT_EQ(store.*rating, share <= weakUpTo      ? u"Weak"
                                     : share <= averageUpTo ? u"Average"
                                                            : u"Strong")
                << share << " of the plane with " << weakUpTo;
        }
    }
}

TEST_F(Planes, PhysicalAverageAsksForTheMentalShare) {
    for (int mental = 0; mental <= 60; ++mental) {
        for (int physical = 0; physical <= 40; ++physical) {
            store.PhysicalRating = u"left alone";
            CalcShares(mental, physical, 0, 0);
            // From 18 to 23 it is average beside 18 or more, and nothing beside less.
            EXPECT_EQ(store.PhysicalRating, physical <= 17   ? u"Weak"
                                            : physical >= 24 ? u"Strong"
                                            : mental >= 18   ? u"Average"
                                                             : u"left alone")
                << mental << " and " << physical;
        }
    }
}

TEST_F(Planes, PhysicalRatingOfThePersonBeforeStandsInTheBlock) {
    const auto shows = [](std::u16string_view line) {
        return store.PlanesText.find(line) != std::u16string::npos;
    };
    Calc(u"ROSS", u"", u"E"); // nobody was there before
    EXPECT_TRUE(shows(u"\r\nPhysical Ability 20 -  \r\n"));
    Calc(u"ANN", u"", u"LEE"); // strong
    Calc(u"ROSS", u"", u"E");
    EXPECT_TRUE(shows(u"\r\nPhysical Ability 20 - Strong \r\n"));
    Calc(u"CORA", u"", u"KENT"); // weak
    Calc(u"ROSS", u"", u"E");
    EXPECT_TRUE(shows(u"\r\nPhysical Ability 20 - Weak \r\n"));
}

TEST_F(Planes, TieKeepsThePlaneOfThePersonBefore) {
    Calc(u"ANN", u"", u"LEE");
    ASSERT_EQ(store.PlanesNumber, u"Mental");
    Calc(u"ROSS", u"", u"WEDM"); // emotional and physical, half and half
    EXPECT_EQ(store.PlanesNumber, u"Mental");
    Calc(u"CORA", u"", u"KENT");
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
    Calc(u"A", u"", u"E");
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
    Calc(u"--", u"", u"7"); // all four at 0
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
}

TEST_F(Planes, DominantPlaneIsAheadOfEachOther) {
    constexpr std::u16string_view words[] = {u"Mental", u"Physical", u"Emotional", u"Intuitive"};
    for (int mental = 0; mental <= 40; mental += 8) {
        for (int physical = 0; physical <= 40; physical += 8) {
            for (int emotional = 0; emotional <= 40; emotional += 8) {
                for (int intuitive = 0; intuitive <= 40; intuitive += 8) {
                    const Four shares{mental, physical, emotional, intuitive};
                    if (mental + physical + emotional + intuitive > 100)
                        continue;
                    const int highest = *std::ranges::max_element(shares);
                    std::u16string expected = u"left alone";
                    if (std::ranges::count(shares, highest) == 1)
                        expected = words[std::ranges::find(shares, highest) - shares.begin()];
                    store.PlanesNumber = u"left alone";
                    CalcShares(mental, physical, emotional, intuitive);
                    ASSERT_EQ(Shares(), shares);
                    ASSERT_EQ(store.PlanesNumber, expected);
                }
            }
        }
    }
    CalcShares(25, 25, 26, 24); // ahead by one
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
}

TEST_F(Planes, SharesAreComparedAndNotCounts) {
    std::u16string name = u"HHHHWWW"; // 4 and 3 of 201, both 1 per cent when truncated
    name.resize(201, u'-');
    Calc(name, u"", u"");
    EXPECT_EQ(Shares(), (Four{1, 1, 0, 0}));
    EXPECT_EQ(store.PlanesNumber, u"");
}

TEST_F(Planes, FailBehindTheLabelsAndTheSharesBefore) {
    SlotNames written =
        SlotsOf({"MentalLabel", "PhysicalLabel", "EmotionalLabel", "IntuitiveLabel"});
    const std::u16string half(16384, u'-');
    // No name divides by zero; a name of 32768 characters is too long.
    EXPECT_EQ(WrittenBeforeFailure([] { Calc(u"", u"", u""); }), written);
    EXPECT_EQ(WrittenBeforeFailure([&] { Calc(half, u"", half); }), written);
    Calc(half, u"", half.substr(1));
    EXPECT_EQ(Shares(), (Four{0, 0, 0, 0}));

    // More than 327 letters of one plane overflow. The shares are worked out one after the
    // other, so those before the plane are new.
    for (const auto &plane : {std::pair{u'H', "MentalPercent"},
                              {u'W', "PhysicalPercent"},
                              {u'R', "EmotionalPercent"},
                              {u'F', "IntuitivePercent"}}) {
        const char16_t letter = plane.first;
        EXPECT_EQ(WrittenBeforeFailure(
                      [&] { Calc(std::u16string(300, letter), half, std::u16string(28, letter)); }),
                  written);
        written.insert(plane.second);
        Calc(std::u16string(300, letter), u"", std::u16string(27, letter)); // 32700
    }
    Calc(std::u16string(327, u'H') + std::u16string(327, u'W'), std::u16string(327, u'R'),
         std::u16string(327, u'F'));
    EXPECT_EQ(Shares(), (Four{25, 25, 25, 25}));
}

TEST_F(Planes, AboutHasItsPartsInOrder) {
    Calc(u"ANN", u"", u"LEE");
    EXPECT_TRUE(IsTextOf(store.PlanesAbout, "PlanesAbout"));
    // The physical plane comes first. Each heading is its own literal, with a closing blank
    // or none.
    const std::vector<std::u16string> paragraphs = Paragraphs(store.PlanesAbout);
    ASSERT_EQ(paragraphs.size(), 16u);
    EXPECT_EQ(paragraphs[2], u"Plane of expression: Physical (body):");
    EXPECT_EQ(paragraphs[6], u"Planes of expression: Mental (mind): ");
    EXPECT_EQ(paragraphs[9], u"Plane of Expression: Emotional (heart): ");
    EXPECT_EQ(paragraphs[12], u"Plane of Expression: Intuitive (spirit):");
    for (const std::size_t empty : {1u, 5u, 8u, 11u, 14u, 15u})
        EXPECT_EQ(paragraphs[empty], u"");
}

} // namespace
} // namespace modReadings
