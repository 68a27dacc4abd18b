#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"This is the time when you would like to start new ventures. A phone call in the first "
        u"week is worth more than a plan perfected in the third, when the wish has cooled into "
        u"talk. Old duties crowd around a new one. Put them together on two evenings, and keep "
        u"the fresh hours for the start."},
    {2, u"This is the time to maintain friendly and harmonious relationships with others. A cool "
        u"spell between you and a colleague or a cousin can be ended this month by a visit that "
        u"has no purpose. Return the borrowed dish with something in it, and remember the "
        u"birthdays that fall in these weeks; such trifles do more now than a long talk about "
        u"feelings would. Work that two can share goes better shared. If your name is left off "
        u"some list, ask before you brood; it was most likely an oversight."},
    {3, u"This is the month to explore your creative side. Four weeks are enough for a short "
        u"thing: a poem for a birthday, a shelf of painted jars, a scene acted with the "
        u"neighbors' children. Show it while it is still a bit rough. Talk comes easily and whole "
        u"afternoons go into it, and by the last week the dull mail has formed a pile. Clear it "
        u"in two mornings with the radio on."},
    {4, u"This is a time to plan and organize your work carefully. Count the working days left in "
        u"the month, write the jobs against them, and you will see at once that two have to go. "
        u"The rest can be done if each is given a morning of its own. Delays come from small "
        u"parts that are missing, so look a week ahead. When somebody upsets the list with a good "
        u"reason, give in; that is what the pencil is for."},
    {5, u"This is the time to forget about past mistakes and start afresh. The thing you bungled "
        u"last month interests nobody any longer except you. Accept the odd invitation, swap a "
        u"task with a colleague, leave a free weekend free and see what comes to fill it. "
        u"Restlessness makes you careless with keys and appointments, so write things down, and "
        u"of two parties on one night choose one."},
    {6, u"This is the period to give importance to your personal life. Someone at home has been "
        u"getting the tired end of your day for some weeks and has stopped mentioning it. Leave "
        u"work on time for a while, sit down to eat together, see to the lamp or the lock that "
        u"has waited so long. An older relative is glad of a call that is more than a duty. "
        u"Little of this will earn you any thanks, so do as much as you can do gladly and leave "
        u"the rest undone."},
    {7, u"This is a period to explore your inner talents and ideas. Something you can do rather "
        u"well has been left idle because it brings no applause: mending, languages, chess, "
        u"thinking a matter through on paper. Give it a quiet hour most evenings. You judge the "
        u"first results harshly; put them out of sight until the last week, and look again then. "
        u"Large decisions can wait."},
    {8, u"This is a number when you have to work really hard to make things happen. Nothing runs "
        u"by itself this month, though nearly everything moves when you take hold of it. Chase "
        u"the overdue reply, and ask the person at the top instead of the one at the desk. Settle "
        u"what each helper is to do. Their pace will madden you. Give them a date in place of a "
        u"lecture, and do not ask after it every morning."},
    {9, u"This is a time to do something for the society. Give it a definite shape: an afternoon "
        u"sorting clothes at the charity shop, or a lift for the neighbor who no longer drives. "
        u"Large feelings about the state of the world come and go, and the afternoon does more, "
        u"above all if you go back a second time. Use the last ten days to close your own small "
        u"accounts. Return what you have borrowed, hand in the report that lacks a page, and take "
        u"on nothing new."},
};
} // namespace

constinit const Prose personalMonth{
    rows,
    u"Personal month number tells about the general trends, lessons to be learnt, difficulties "
    u"to be faced and the rewards we will get in a particular month."};

} // namespace modReadings::readings
