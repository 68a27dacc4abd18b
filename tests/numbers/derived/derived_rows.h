#pragma once

// How each reading of the derived numbers begins, with the number of its paragraphs and
// its length in characters.

#include "tests/numbers/cycles/reading_row.h"

namespace modReadings {

inline constexpr ReadingRow karmicDebtRows[] = {
    {13, 2, 1270,
     u"This number signifies the consequences you may face due to the duties avoided in your "
     u"previous lives."},
    {14, 2, 1263,
     u"You don't like to follow conventions and want to try different and innovative ways of "
     u"dealing with a situation."},
    {16, 1, 1688, u"You are spiritually inclined and search for the hidden truths of life."},
    {19, 1, 1246,
     u"You are a born leader and you have the abilities to overcome any obstacles that come in "
     u"your way."},
    {0, 1, 14, u"Not Applicable"},
};

inline constexpr ReadingRow balanceRows[] = {
    {1, 1, 1170,
     u"Though you have the confidence and capability to handle a situation in an effective manner, "
     u"you should give value to"},
    {2, 1, 1153, u"You let others influence and lead you in difficult times."},
    {3, 1, 1295,
     u"Though you are generally talkative, you need to be more articulate so that you could "
     u"express your views and opinions in"},
    {4, 1, 1129,
     u"You are emotional and fail to view situations and solve problems in a practical way."},
    {5, 1, 1181, u"People with 5 as their Balance number have rigid and conventional viewpoint."},
    {6, 2, 1489,
     u"Though you have certain positive qualities, you lack confidence in your own abilities."},
    {7, 2, 1415,
     u"People with this number as their Balance Number, are generally very emotional and thus deal "
     u"with each and every"},
    {8, 1, 1289, u"People with balance number 8 lack patience."},
    {9, 1, 1037,
     u"Though you are compassionate and understanding by nature, you have the tendency to stay "
     u"aloof."},
};

inline constexpr ReadingRow subconsciousSelfRows[] = {
    {3, 3, 1438,
     u"Those having 3 Subconscious Self Number, have the tendency of depending too much on "
     u"others."},
    {4, 1, 1166,
     u"You get involved with the trivial details of things and thus quickly lose your interests."},
    {5, 1, 1010, u"Your interest lies in different fields."},
    {6, 1, 1220, u"You are a humanitarian at heart."},
    {7, 1, 893,
     u"You are a well-balanced and controlled person, along with being confident and "
     u"self-assertive."},
    {8, 1, 1412, u"You are confident in yourself and like to face the various challenges of life."},
    {9, 1, 1194,
     u"People having this number as their Subconscious Self Number, are very mysterious so it's "
     u"difficult to understand them"},
    {0, 1, 39, u"This number is not valid for this name."},
    {1, 1, 39, u"This number is not valid for this name."},
    {2, 1, 39, u"This number is not valid for this name."},
};

inline constexpr ReadingRow rationalThoughtRows[] = {
    {1, 1, 557, u"People with this number are full of different innovative ideas."},
    {2, 1, 477,
     u"People of this rational number like to discuss things in detail with others before coming "
     u"to a conclusion."},
    {3, 1, 480, u"People with rational thought number 3 have a creative bend of mind."},
    {4, 1, 657, u"People of this rational thought number are full of different ideas."},
    {5, 1, 439, u"People of this rational thought number have unconventional thoughts."},
    {6, 1, 413,
     u"People with rational thought number 6 tend to go into great details regarding any matter."},
    {7, 1, 389, u"People of this rational number have an analytical nature."},
    {8, 1, 590,
     u"People of this rational thought number avoid irrelevant details of any matter and come to "
     u"the conclusion soon since"},
    {9, 1, 617, u"People with this rational thought number are more spiritually inclined."},
    {11, 1, 686,
     u"People with this rational thought number are spiritually inclined as well as dynamic in "
     u"nature but they may not be well"},
    {22, 1, 592,
     u"People with this rational thought number like to dream about bigger things in life."},
};

inline constexpr ReadingRow hpBridgeRows[] = {
    {0, 1, 546, u"People will feel comfortable in your company and seek your association."},
    {1, 1, 519, u"You need to be more confident and clear about your goals and desires of life."},
    {2, 1, 620,
     u"People with bridge number 2 need to show patience in their work and in their "
     u"relationships."},
    {3, 1, 479, u"People with this bridge number get easily frustrated by failures."},
    {4, 1, 521,
     u"People with bridge 4 should try to avoid confusion and make an effort to get a clear idea "
     u"about things."},
    {5, 1, 525,
     u"You should give up your attitude of being dependent on others since this is the time to be "
     u"independent and go on your"},
    {6, 1, 550,
     u"You should value and strive for congenial and friendly relations with your family and "
     u"friends."},
    {7, 1, 567, u"Spending some time in solitude would be rewarding enough for you."},
    {8, 1, 683, u"People with bridge number 8 should avoid taking short cuts."},
};

inline constexpr ReadingRow leBridgeRows[] = {
    {0, 1, 386,
     u"People with this combination of Life Path/Expression Number will generally progress and "
     u"accomplish their dreams in"},
    {1, 1, 687, u"People with Life Path/Expression number 1 lack self-confidence."},
    {2, 1, 766,
     u"You basically have a loving and friendly nature, which however, doesn't show up easily."},
    {3, 1, 587, u"You should learn to take life easily."},
    {4, 1, 561,
     u"People with this combination of Life Path/ Expression number need to be more practical and "
     u"realistic."},
    {5, 1, 604, u"People with the combination number 5 are very conventional."},
    {6, 1, 527, u"People with combination number 6 need to express themselves freely."},
    {7, 1, 504,
     u"You need to spend more time in solitude and deliberate on matters in frequent intervals."},
    {8, 1, 639,
     u"People with this combination number are not very ambitious and are afraid of being very "
     u"competitive."},
};

inline constexpr ReadingRow realizationRows[] = {
    {1, 2, 939, u"People of this number have a dominating and stubborn nature."},
    {2, 1, 958,
     u"Your people interaction skills will improve and you will handle all sorts of relationships "
     u"with others tactfully."},
    {3, 3, 991, u"Your confidence is at your peak at this time."},
    {4, 1, 344, u"Your hard work will pay off and your goals will be achieved."},
    {5, 1, 549, u"You have realized your life's goals."},
    {6, 1, 473, u"You are compassionate and a humanitarian at heart."},
    {7, 1, 520, u"You like to be in isolation and analyze your life."},
    {8, 1, 424, u"Once you set your goal, you devote your time and energy in achieving that goal."},
    {9, 2, 796, u"You are inclined towards doing social service."},
    {11, 1, 572, u"You are at your spiritual best."},
    {22, 1, 561, u"You have inborn managerial skills and leadership qualities."},
};

} // namespace modReadings
