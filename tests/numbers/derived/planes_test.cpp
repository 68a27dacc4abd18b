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

    static std::array<std::u16string, 4> Ratings() {
        return {store.MentalRating, store.PhysicalRating, store.EmotionalRating,
                store.IntuitiveRating};
    }
    using Words = std::array<std::u16string, 4>;
};

TEST_F(Planes, AnnLee) {
    Calc(u"ANN", u"", u"LEE");
    EXPECT_EQ(Shares(), (Four{66, 33, 0, 0}));
    EXPECT_EQ(store.PlanesNumber, u"Mental");
    EXPECT_EQ(Ratings(), (Words{u"Strong", u"Strong", u"Weak", u"Weak"}));
    EXPECT_EQ(store.PlanesText, u"Mental Ability 66 - Strong \r\n"
                                u"Physical Ability 33 - Strong \r\n"
                                u"Emotional Ability 0 - Weak \r\n"
                                u"Intuitive Ability 0 - Weak");
}

TEST_F(Planes, TieInAFreshStoreNamesNoPlane) {
    Calc(u"A", u"", u"E");
    EXPECT_EQ(Shares(), (Four{50, 50, 0, 0}));
    EXPECT_EQ(store.PlanesNumber, u"");
    EXPECT_EQ(store.PlanesText, u"Mental Ability 50 - Strong \r\n"
                                u"Physical Ability 50 - Strong \r\n"
                                u"Emotional Ability 0 - Weak \r\n"
                                u"Intuitive Ability 0 - Weak");
}

TEST_F(Planes, CoraKent) {
    Calc(u"CORA", u"", u"KENT"); // 2, 1, 3 and 2 of 8, each truncated by itself
    EXPECT_EQ(Shares(), (Four{25, 12, 37, 25}));
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
    EXPECT_EQ(Ratings(), (Words{u"Weak", u"Weak", u"Strong", u"Strong"}));
    EXPECT_EQ(store.PlanesText, u"Mental Ability 25 - Weak \r\n"
                                u"Physical Ability 12 - Weak \r\n"
                                u"Emotional Ability 37 - Strong \r\n"
                                u"Intuitive Ability 25 - Strong");
}

TEST_F(Planes, RossEHasNoPhysicalRating) {
    Calc(u"ROSS", u"", u"E");
    EXPECT_EQ(Shares(), (Four{0, 20, 80, 0}));
    EXPECT_EQ(store.PlanesNumber, u"Emotional");
    EXPECT_EQ(Ratings(), (Words{u"Weak", u"", u"Strong", u"Weak"}));
    EXPECT_EQ(store.PlanesText, u"Mental Ability 0 - Weak \r\n"
                                u"Physical Ability 20 -  \r\n"
                                u"Emotional Ability 80 - Strong \r\n"
                                u"Intuitive Ability 0 - Weak");
}

TEST_F(Planes, BlankInsideANameCountsInTheLength) {
    Calc(u"MARY ANN", u"", u"LEE"); // 5, 3, 1 and 1 of 11
    EXPECT_EQ(Shares(), (Four{45, 27, 9, 9}));
    EXPECT_EQ(store.PlanesNumber, u"Mental");
    EXPECT_EQ(Ratings(), (Words{u"Strong", u"Strong", u"Weak", u"Weak"}));
}

TEST_F(Planes, OneLetterHasTheWholeShare) {
    Calc(u"VIC", u"", u"");
    EXPECT_EQ(Shares(), (Four{0, 0, 33, 66}));
    Calc(u"Y", u"", u"");
    EXPECT_EQ(store.PlanesText, u"Mental Ability 0 - Weak \r\n"
                                u"Physical Ability 0 - Weak \r\n"
                                u"Emotional Ability 0 - Weak \r\n"
                                u"Intuitive Ability 100 - Strong");
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

TEST_F(Planes, OtherCharactersBelongToNone) {
    Calc(u"a b-1", u"\u00C9\u00D6'", u"HW"); // one and one of ten
    EXPECT_EQ(Shares(), (Four{10, 10, 0, 0}));
}

TEST_F(Planes, AllThreeNamesAreOne) {
    Calc(u"H", u"WW", u"R"); // 1, 2 and 1 of 4
    EXPECT_EQ(Shares(), (Four{25, 50, 25, 0}));
    Calc(u"", u"", u"HWWR");
    EXPECT_EQ(Shares(), (Four{25, 50, 25, 0}));
}

/// A share with the rating that it has in its plane.
struct Rung {
    int share;
    const char16_t *rating;
};

TEST_F(Planes, MentalLadder) {
    for (const auto &[share, rating] : {Rung{0, u"Weak"},
                                        {1, u"Weak"},
                                        {24, u"Weak"},
                                        {25, u"Weak"},
                                        {26, u"Average"},
                                        {27, u"Average"},
                                        {31, u"Average"},
                                        {32, u"Average"},
                                        {33, u"Strong"},
                                        {34, u"Strong"},
                                        {99, u"Strong"},
                                        {100, u"Strong"}}) {
        CalcShares(share, 0, 0, 0);
        EXPECT_EQ(store.MentalPercent, share);
        EXPECT_EQ(store.MentalRating, rating) << share;
    }
}

TEST_F(Planes, PhysicalLadderBesideAMentalShareOf18) {
    for (const auto &[share, rating] : {Rung{0, u"Weak"},
                                        {1, u"Weak"},
                                        {16, u"Weak"},
                                        {17, u"Weak"},
                                        {18, u"Average"},
                                        {19, u"Average"},
                                        {22, u"Average"},
                                        {23, u"Average"},
                                        {24, u"Strong"},
                                        {25, u"Strong"},
                                        {82, u"Strong"}}) {
        CalcShares(18, share, 0, 0);
        EXPECT_EQ(store.PhysicalPercent, share);
        EXPECT_EQ(store.PhysicalRating, rating) << share;
    }
    CalcShares(0, 100, 0, 0);
    EXPECT_EQ(store.PhysicalRating, u"Strong");
}

TEST_F(Planes, EmotionalLadder) {
    for (const auto &[share, rating] : {Rung{0, u"Weak"},
                                        {1, u"Weak"},
                                        {19, u"Weak"},
                                        {20, u"Weak"},
                                        {21, u"Average"},
                                        {22, u"Average"},
                                        {33, u"Average"},
                                        {34, u"Average"},
                                        {35, u"Strong"},
                                        {36, u"Strong"},
                                        {99, u"Strong"},
                                        {100, u"Strong"}}) {
        CalcShares(0, 0, share, 0);
        EXPECT_EQ(store.EmotionalPercent, share);
        EXPECT_EQ(store.EmotionalRating, rating) << share;
    }
}

TEST_F(Planes, IntuitiveLadder) {
    for (const auto &[share, rating] : {Rung{0, u"Weak"},
                                        {1, u"Weak"},
                                        {10, u"Weak"},
                                        {11, u"Weak"},
                                        {12, u"Average"},
                                        {13, u"Average"},
                                        {16, u"Average"},
                                        {17, u"Average"},
                                        {18, u"Strong"},
                                        {19, u"Strong"},
                                        {99, u"Strong"},
                                        {100, u"Strong"}}) {
        CalcShares(0, 0, 0, share);
        EXPECT_EQ(store.IntuitivePercent, share);
        EXPECT_EQ(store.IntuitiveRating, rating) << share;
    }
}

TEST_F(Planes, PhysicalAverageAsksForTheMentalShare) {
    struct Expected {
        int mental, physical;
        const char16_t *rating;
    };
    constexpr const char16_t *left = u"left alone";
    constexpr Expected expected[] = {
        // Up to 17 it is weak whatever the mental share is.
        {0, 17, u"Weak"},
        {17, 17, u"Weak"},
        {18, 17, u"Weak"},
        {80, 17, u"Weak"},
        {0, 0, u"Weak"},
        // From 18 to 23 it is average beside 18 or more, and nothing beside less.
        {0, 18, left},
        {17, 18, left},
        {18, 18, u"Average"},
        {80, 18, u"Average"},
        {0, 20, left},
        {17, 20, left},
        {18, 20, u"Average"},
        {80, 20, u"Average"},
        {0, 23, left},
        {17, 23, left},
        {18, 23, u"Average"},
        {77, 23, u"Average"},
        // From 24 on it is strong whatever the mental share is.
        {0, 24, u"Strong"},
        {17, 24, u"Strong"},
        {18, 24, u"Strong"},
        {76, 24, u"Strong"},
        {0, 100, u"Strong"},
    };
    for (const Expected &row : expected) {
        store.PhysicalRating = left;
        CalcShares(row.mental, row.physical, 0, 0);
        EXPECT_EQ(store.PhysicalRating, row.rating) << row.mental << " and " << row.physical;
    }
}

TEST_F(Planes, PhysicalRatingOfThePersonBeforeStandsInTheBlock) {
    const auto physicalLine = [] {
        const std::size_t begin = store.PlanesText.find(u"Physical");
        return store.PlanesText.substr(begin, store.PlanesText.find(u"Emotional") - begin);
    };
    Calc(u"ANN", u"", u"LEE"); // strong
    Calc(u"ROSS", u"", u"E");
    EXPECT_EQ(store.PhysicalRating, u"Strong");
    EXPECT_EQ(physicalLine(), u"Physical Ability 20 - Strong \r\n");

    Calc(u"CORA", u"", u"KENT"); // weak
    Calc(u"ROSS", u"", u"E");
    EXPECT_EQ(physicalLine(), u"Physical Ability 20 - Weak \r\n");
    Calc(u"ROSS", u"", u"E");
    EXPECT_EQ(physicalLine(), u"Physical Ability 20 - Weak \r\n");

    CalcShares(18, 20, 0, 0);
    EXPECT_EQ(physicalLine(), u"Physical Ability 20 - Average \r\n");
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

TEST_F(Planes, WritesItsOwnSlotsAndNoOthers) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    Calc(u"ANN", u"", u"LEE");
    EXPECT_EQ(ChangedSince(marked),
              (SlotNames{"MentalLabel", "PhysicalLabel", "EmotionalLabel", "IntuitiveLabel",
                         "MentalPercent", "PhysicalPercent", "EmotionalPercent", "IntuitivePercent",
                         "MentalRating", "PhysicalRating", "EmotionalRating", "IntuitiveRating",
                         "PlanesNumber", "PlanesText", "PlanesAbout"}));
    EXPECT_EQ(store.MentalLabel, u"Mental Ability ");
    EXPECT_EQ(store.PhysicalLabel, u"Physical Ability ");
    EXPECT_EQ(store.EmotionalLabel, u"Emotional Ability ");
    EXPECT_EQ(store.IntuitiveLabel, u"Intuitive Ability ");
    const ReadingStore once = store;
    CalcPlanes();
    EXPECT_EQ(ChangedSince(once), SlotNames{});
}

const SlotNames labels{"MentalLabel", "PhysicalLabel", "EmotionalLabel", "IntuitiveLabel"};

TEST_F(Planes, EmptyNameDividesByZeroBehindTheLabels) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_THROW(Calc(u"", u"", u""), RuntimeFailure);
    EXPECT_EQ(ChangedSince(marked), labels);
}

TEST_F(Planes, MoreThan327LettersOfOnePlaneOverflow) {
    const ReadingStore marked = MarkedStore();
    // The shares are worked out one after the other, so those before the plane are new.
    const std::pair<char16_t, SlotNames> planes[] = {
        {u'H', {}},
        {u'W', {"MentalPercent"}},
        {u'R', {"MentalPercent", "PhysicalPercent"}},
        {u'F', {"MentalPercent", "PhysicalPercent", "EmotionalPercent"}},
    };
    for (const auto &[letter, shares] : planes) {
        store = marked;
        EXPECT_THROW(Calc(std::u16string(300, letter), std::u16string(500, u'-'),
                          std::u16string(28, letter)),
                     RuntimeFailure);
        SlotNames written = labels;
        written.insert(shares.begin(), shares.end());
        EXPECT_EQ(ChangedSince(marked), written);

        store = marked;
        Calc(std::u16string(300, letter), u"", std::u16string(27, letter)); // 32700
        EXPECT_NE(store.PlanesText, marked.PlanesText);
    }
}

TEST_F(Planes, ThreeHundredAndTwentySevenOfEachPlane) {
    Calc(std::u16string(327, u'H') + std::u16string(327, u'W'), std::u16string(327, u'R'),
         std::u16string(327, u'F'));
    EXPECT_EQ(Shares(), (Four{25, 25, 25, 25}));
    EXPECT_EQ(store.PlanesNumber, u"");
    EXPECT_EQ(Ratings(), (Words{u"Weak", u"Strong", u"Average", u"Strong"}));
}

TEST_F(Planes, NameLongerThanTheRangeFailsBehindTheLabels) {
    const ReadingStore marked = MarkedStore();
    store = marked;
    EXPECT_THROW(Calc(std::u16string(16384, u'-'), u"", std::u16string(16384, u'-')),
                 RuntimeFailure);
    EXPECT_EQ(ChangedSince(marked), labels);

    store = marked;
    Calc(std::u16string(16384, u'-'), u"", std::u16string(16383, u'-'));
    EXPECT_EQ(Shares(), (Four{0, 0, 0, 0}));
    EXPECT_EQ(store.PlanesNumber, marked.PlanesNumber);
    EXPECT_EQ(Ratings(), (Words{u"Weak", u"Weak", u"Weak", u"Weak"}));
}

TEST_F(Planes, AboutHasItsPartsInOrder) {
    Calc(u"ANN", u"", u"LEE");
    struct Line {
        std::u16string_view text;
        bool whole; ///< else only its beginning is known
    };
    // The physical plane comes first. Each heading is its own literal, with a closing blank
    // or none.
    const Line lines[] = {
        {u"A person 's total life is divided into 4 parts.", false},
        {u"", true},
        {u"Plane of expression: Physical (body):", true},
        {u"People with a dominant physical plane of expression have a basic strong constitution.",
         false},
        {u"You want to lead life in an unique and an innovative way.", false},
        {u"", true},
        {u"Planes of expression: Mental (mind): ", true},
        {u"The Mental Plane of Expression describes your thought process and how your mind works "
         u"in different situations.",
         false},
        {u"", true},
        {u"Plane of Expression: Emotional (heart): ", true},
        {u"People with dominant Emotional plane of expression have their heart rule their "
         u"emotional senses.",
         false},
        {u"", true},
        {u"Plane of Expression: Intuitive (spirit):", true},
        {u"People with a dominant Spiritual Plane of Expression are highly sensitive.", false},
        {u"", true},
        {u"", true},
    };
    const std::vector<std::u16string> paragraphs = Paragraphs(store.PlanesAbout);
    ASSERT_EQ(paragraphs.size(), std::size(lines));
    for (std::size_t index = 0; index < paragraphs.size(); ++index) {
        const auto &[text, whole] = lines[index];
        EXPECT_TRUE(whole ? paragraphs[index] == text : paragraphs[index].starts_with(text))
            << ::testing::PrintToString(std::u16string(text));
    }
    EXPECT_NEAR(static_cast<double>(store.PlanesAbout.size()), 4651, 93);
}

} // namespace
} // namespace modReadings
