#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"This is the time when you would like to start new ventures. The first step belongs in "
        u"the first week, while you feel brave: sign up, or buy the boots. Then hold off "
        u"announcing it. Talking about a plan feels so much like doing it that many good ones "
        u"have stopped there, well applauded."},
    {2, u"This is the time to maintain friendly and harmonious relationships with others. A cool "
        u"spell between you and a colleague or a cousin can be ended this month by a visit that "
        u"has no purpose. Return the borrowed dish with something in it, and remember the "
        u"birthdays that fall in these weeks; such trifles do more now than a long talk about "
        u"feelings would. A dull job is better shared, if only for the talk. If your name is left "
        u"off some list, ask before you brood; it was most likely an oversight."},
    {3, u"This is the month to explore your creative side. Four weeks are enough for something "
        u"short, such as a birthday song with the right names in it or the first three pages of a "
        u"comic book. Show it around while it is still a bit rough. Whole afternoons go into "
        u"pleasant talk, and by the last week the dull mail has formed a pile. Two mornings with "
        u"the radio on take care of it."},
    {4, u"This is a time to plan and organize your work carefully. Count the days that are left "
        u"in the month, write the jobs against them, and you will see at once that two have to "
        u"go. The rest can be done if each is given a morning of its own. Delays come from small "
        u"parts that are missing, so look a week ahead. When someone upsets the schedule with a "
        u"good reason, give in; that is what the pencil is for."},
    {5, u"This is the time to forget about past mistakes and start afresh. Last month's blunder "
        u"interests hardly anyone now except you. It probably came of doing the usual thing half "
        u"asleep, so do it otherwise: trade chores with a friend, take a different road, keep one "
        u"weekend blank and see what fills it. The likely new mistake is to change what was "
        u"working as well; by the 20th it is missed."},
    {6, u"This is the period to give importance to your personal life. A person you love has been "
        u"getting the tired end of your day for some weeks and has stopped mentioning it. Stop "
        u"work on time for a while, sit down to eat together, see to the lamp or the lock that "
        u"has waited. A relative living alone is glad of a call that is more than a duty. Little "
        u"of this will earn you any thanks, so do as much as you can do gladly and leave the rest "
        u"undone."},
    {7, u"This is a period to explore your inner talents and ideas. Something you do rather well "
        u"has been left idle because it brings no applause: mending, languages, chess, thinking a "
        u"matter through on paper. Give it a quiet hour most evenings. You judge the first "
        u"results harshly, so put them out of sight. In the last week they usually look better "
        u"than they felt."},
    {8, u"This is a number when you have to work really hard to make things happen. Nothing runs "
        u"by itself this month, though nearly everything moves when you put a shoulder to it. The "
        u"reply comes after the second call, and the decision is made one desk above the one "
        u"where you asked. Helpers seem slow to you, and your sighs make them slower. Tell them "
        u"what has gone right so far and let the date do the rest."},
    {9, u"This is a time to do something for the society. Give it a day and an address: an "
        u"afternoon of sorting coats at the thrift shop, or an hour with a neighbor who no longer "
        u"gets out. You come home so cheered that you could sign up for everything, but going "
        u"back a second week does more good. The last ten days are for your own small accounts, "
        u"the borrowed book and the thank-you that is late enough to be embarrassing. It will be "
        u"welcome all the same."},
};
} // namespace

constinit const Prose personalMonth{
    rows,
    u"Personal month number tells about the general trends, lessons to be learnt, difficulties "
    u"to be faced and the rewards we will get in a particular month."};

} // namespace modReadings::readings
