#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"This is the day when your primary concern is about yourself, your personal goals and "
        u"desires. For one day that is as it should be. See to your own matter ahead of the "
        u"messages, because by noon other people will have found uses for you. A bold request is "
        u"well timed. Your voice has an edge today that you do not hear, and the clerk on the "
        u"phone does; a well-placed please gets you further than being right."},
    {2, u"This is the day to be social and develop friendly relationship with others. One other "
        u"will do, and your part is to listen. Sit by the shy one and ask twice. Whoever forgets "
        u"to greet you is looking for their keys."},
    {3, u"You will get fun from some lively recreational activities on this day. A dance or a "
        u"noisy lunch with people who laugh at the same things does more for you than an early "
        u"night. Your tongue is quick, and the thing you have been afraid to bring up comes out "
        u"lightly and is mostly taken well. The same quick tongue could spend a friend's secret "
        u"for a laugh. Go home while it is still fun, with one story untold."},
    {4, u"This is the day of maximum hard work to make a success of all your business affairs. It "
        u"is the plain kind, one thing after another, sleeves rolled up. Start with the job you "
        u"have walked around all week; the dread took longer than the doing will. Check each "
        u"total twice, and quit at the hour you set, or it gets done over tomorrow."},
    {5, u"On this day you would love to travel to distant places for relaxation. Most likely you "
        u"are expected here. So ride the bus to its last stop, or eat lunch where you cannot read "
        u"the menu, and be home by dark with a story. A plan falls through, and you alone are "
        u"pleased. Promise nothing for next month in this mood."},
    {6, u"This is a day to maintain balance and harmony in life. Work or school asks for one hour "
        u"more and somebody at home counts on the same hour; decide at lunch who gets it and tell "
        u"the other. Flowers on the table and an apology for this morning's tone take little time "
        u"and change the evening. You notice what others do wrong with the dishes or the driving. "
        u"Make one of these remarks and swallow the rest. If a friend calls in tears after nine, "
        u"listen until they are calm and then go to bed."},
    {7, u"There is a tendency to lose your calm and feel disturbed on this day. Noise and "
        u"questions get on your nerves, and you hear a reproach where somebody only asks the "
        u"time. Argue tomorrow. A turn around the block at noon sets you right, and so does a "
        u"task such as sorting a drawer, which asks for no opinion."},
    {8, u"This is a day to take some important professional decisions in life. Your word carries "
        u"weight, on a price, a plan or who is in charge. Hear the likeliest objector, settle it "
        u"by three, and say who does what. By supper you outrank nobody; the movie and other "
        u"people's hair are decided elsewhere."},
    {9, u"This is a day to cherish the companionship of others. Sit down with an old friend and "
        u"ask about the thing they mentioned last time. You are inclined to give away your coat "
        u"and your lunch money today; keep the bus fare. At the goodbye, say the warm thing that "
        u"you usually save for cards."},
};
} // namespace

constinit const Prose personalDay{
    rows,
    u"You have to be aware and careful since the things done on this day will lay the "
    u"foundation for the days to come. The work you do, your thoughts during the day will set "
    u"the platform for the days to come. You will have to pay close attention to the activities "
    u"of the day."};

} // namespace modReadings::readings
