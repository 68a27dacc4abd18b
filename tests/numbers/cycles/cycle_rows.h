#pragma once

// How each reading of the cycles begins, with the number of its paragraphs and
// its length in characters.

#include "tests/numbers/cycles/reading_row.h"

namespace modReadings {

inline constexpr ReadingRow personalYearRows[] = {
    {1, 1, 1011, u"It is the year of a new beginning of life."},
    {2, 1, 964, u"It is the year of Development, Cooperation and Patience."},
    {3, 1, 1061, u"It is a year when you will be very Social & Creative."},
    {4, 1, 1066, u"It is time for hard work and a slow, but steady progress."},
    {5, 2, 1023, u"It is a year of freedom."},
    {6, 1, 1001,
     u"It is the year, which is focused on your Love, Family, Home and Responsibility."},
    {7, 1, 1063, u"It is a time for self-analysis and understanding of your inner being."},
    {8, 1, 795, u"It is the year of financial gains."},
    {9, 1, 716, u"It is the period year of self-reflection."},
};

inline constexpr ReadingRow personalMonthRows[] = {
    {1, 1, 287, u"This is the time when you would like to start new ventures."},
    {2, 1, 486, u"This is the time to maintain friendly and harmonious relationships with others."},
    {3, 1, 371, u"This is the month to explore your creative side."},
    {4, 1, 397, u"This is a time to plan and organize your work carefully."},
    {5, 1, 384, u"This is the time to forget about past mistakes and start afresh."},
    {6, 1, 434, u"This is the period to give importance to your personal life."},
    {7, 1, 361, u"This is a period to explore your inner talents and ideas."},
    {8, 1, 398, u"This is a number when you have to work really hard to make things happen."},
    {9, 1, 441, u"This is a time to do something for the society."},
};

inline constexpr ReadingRow personalDayRows[] = {
    {1, 1, 401,
     u"This is the day when your primary concern is about yourself, your personal goals and "
     u"desires."},
    {2, 1, 214, u"This is the day to be social and develop friendly relationship with others."},
    {3, 1, 401, u"You will get fun from some lively recreational activities on this day."},
    {4, 1, 328,
     u"This is the day of maximum hard work to make a success of all your business affairs."},
    {5, 1, 313, u"On this day you would love to travel to distant places for relaxation."},
    {6, 1, 485, u"This is a day to maintain balance and harmony in life."},
    {7, 1, 306, u"There is a tendency to lose your calm and feel disturbed on this day."},
    {8, 1, 298, u"This is a day to take some important professional decisions in life."},
    {9, 1, 287, u"This is a day to cherish the companionship of others."},
};

inline constexpr ReadingRow lifePathPeriodsRows[] = {
    {1, 1, 396,
     u"This is the time when you should set your own goals and devote your whole attention and "
     u"resources in achieving those goals."},
    {2, 1, 442,
     u"This is the period when you need to show patience and work in a steady pace towards your "
     u"goals."},
    {3, 1, 542,
     u"This is the time when you work and think in a mature manner and achieve success in your "
     u"different ventures."},
    {4, 1, 252, u"It's a time to set goals for the future and work hard to realize the goals."},
    {5, 1, 464, u"This is a time when you will face many changes in your life and adapt to them."},
    {6, 1, 552,
     u"This is the time to realize the duties and responsibilities that you have towards your "
     u"family."},
    {7, 1, 437, u"You will be attracted towards various fields."},
    {8, 1, 458,
     u"This is the right time to learn from the mistakes you have made and start things on a new "
     u"way."},
    {9, 1, 365, u"This is the time to devote yourself to the service of others."},
    {11, 1, 425, u"You have gone through many experiences in life and learnt from them."},
    {22, 1, 274,
     u"People with this Life Path period have their whole concentration on the task at hand and "
     u"the different ways to achieve it."},
};

inline constexpr ReadingRow pinnacleRows[] = {
    {1, 1, 599, u"You should keep your focus on your dreams."},
    {2, 1, 1602,
     u"Pinnacle number 2 represents a period for improving existing economic conditions."},
    {3, 1, 1126, u"In this period there is an inherent urge to express yourself freely to others."},
    {4, 1, 1055,
     u"The pinnacle number 4 signifies the period in one's life when should try to go on a slow "
     u"pace, concentrate and be methodical"},
    {5, 1, 1363,
     u"In this period a person tends to be adventurous and wants to experiment in various "
     u"matters."},
    {6, 1, 1431,
     u"This is a period in which one's personal life gains more importance than one's professional "
     u"life for the person."},
    {7, 2, 1136, u"This period is appropriate for your inner development and some soul searching."},
    {8, 2, 1774,
     u"This signifies the period when you will want to achieve success, fame and wealth."},
    {9, 3, 1424,
     u"In this period you receive great satisfaction in doing something for others, as well as for "
     u"yourself."},
    {11, 2, 1587,
     u"This is a challenging number among the different pinnacles and it shows that you are at the "
     u"height of your sensitivity and"},
    {22, 2, 1461, u"You are at your humanitarian best at this period of your life."},
};

inline constexpr ReadingRow challengeRows[] = {
    {0, 1, 1204, u"There are two possibilities in this period."},
    {1, 2, 1028,
     u"If you are in the challenge of the number 1 you are likely to feel dominated by others with "
     u"strong influence"},
    {2, 1, 1133,
     u"The challenge of the number 2 indicates that you are an extremely sensitive person."},
    {3, 1, 1300,
     u"In the challenge of the number 3 you have a tendency to concentrate on too many things at a "
     u"time and thus finally you might"},
    {4, 1, 1052, u"The challenge of the number 4 might give you difficulties with your work."},
    {5, 1, 1127,
     u"In this challenge number you would need to be more responsible and overcome the deep desire "
     u"for freedom at any cost."},
    {6, 1, 1225, u"You set high standards for yourself."},
    {7, 1, 1218,
     u"The challenge of this number is to face the difficulties you find while dealing with your "
     u"own inner feelings; i.e the"},
    {8, 1, 1029,
     u"The challenge of the number 8 is the understanding that satisfaction is not gained by "
     u"material gains and financial security."},
};

inline constexpr ReadingRow essenceRows[] = {
    {1, 1, 1316, u"This is a period of a new beginning."},
    {2, 2, 1518, u"This essence of your life is a period of growth."},
    {3, 1, 1167, u"In this essence you like to enjoy life to its fullest."},
    {4, 1, 1177,
     u"In this essence period you will be concentrating on serious matters of your life."},
    {5, 2, 1436,
     u"With the Essence number 5 you have to deal with sudden and unexpected changes in your "
     u"life."},
    {6, 2, 1192,
     u"In this Essence number the focus of your life will be on your family and domestic matters."},
    {7, 1, 1317,
     u"In this essence period you may need to remain in isolation and study in solitude."},
    {8, 1, 1496,
     u"In this period there will be situations when you will be concerned about business matters "
     u"and towards having a strong"},
    {9, 3, 1162, u"People with the Essence number 9 have dramatic and emotional characteristics."},
    {11, 1, 307, u"This is a period of deeper mysticism and possibly even leadership."},
    {22, 1, 347, u"You will taste the success and will have fun with your friends and family."},
};

} // namespace modReadings
