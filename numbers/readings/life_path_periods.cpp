#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// No date reduces to 11 or 22; their rows stay all the same.
constexpr Reading rows[] = {
    {1, u"This is the time when you should set your own goals and devote your whole attention and "
        u"resources in achieving those goals. Help is scarce in these years, so you learn to "
        u"decide alone and to stand by a choice that proves costly. You do your best work where "
        u"nobody stands behind your chair. Deciding so becomes a habit, and those at home hear of "
        u"a plan when it is past changing. Show it to them raw."},
    {2, u"This is the period when you need to show patience and work in a steady pace towards "
        u"your goals. Little is gained by force. You spend years beside somebody stronger or "
        u"louder, doing the careful work, and what you know of people is learned there. So much "
        u"giving way leaves its mark, and you go on working to that person's taste after they "
        u"have left. Do a piece in your own manner, and let it be seen. Others can bear more "
        u"frankness than you think."},
    {3, u"This is the time when you work and think in a mature manner and achieve success in your "
        u"different ventures. Nearly all of them pass through your mouth, your pen or your hands: "
        u"you persuade, entertain, teach a room, make things that people like to look at. The "
        u"loss shows late: what comes easily you give away easily, for a dinner or a round of "
        u"laughter, and others build on it under their own name. Sign what you make and keep a "
        u"copy. A room that laughs, besides, has not yet agreed to anything, so have the answer "
        u"in writing before you celebrate."},
    {4, u"It's a time to set goals for the future and work hard to realize the goals. Progress "
        u"comes by the inch in these years and stays where you put it. Habit hardens along with "
        u"it, and a moved chair can annoy you; once in a while change a rule that still works."},
    {5, u"This is a time when you will face many changes in your life and adapt to them. Towns, "
        u"trades and circles of friends follow each other, and you are at home in the new one "
        u"within a month. Depth is what these years do not give by themselves: you know forty "
        u"people by their first names and none by their troubles. Take one skill along from place "
        u"to place, and let it ripen on the road. Keep a friend from every place, by letter if "
        u"need be, or nobody will remember you whole."},
    {6, u"This is the time to realize the duties and responsibilities that you have towards your "
        u"family. They come in all sizes: children, parents who grow old, pupils, and neighbors "
        u"who come for an egg and stay to be asked what is wrong. You are good at it, and being "
        u"needed gives the whole period its warmth. It also gives you a say in everything, which "
        u"you carry too far with those old enough to choose a partner or a trade. When they go "
        u"their own way you count up what you did for them. Stop the count; they love you better "
        u"without it. Reserve one room for yourself."},
    {7, u"You will be attracted towards various fields. Underneath is always the same search: you "
        u"want to know how a thing works and whether what is said about it is true. You listen "
        u"gladly to anyone who knows something, and badly to anyone who merely wants company. A "
        u"gift is examined and its fault pointed out, and the giver does not try again. Thank "
        u"first. And carry what you find in one field over into the next, where nobody has "
        u"thought of it."},
    {8, u"This is the right time to learn from the mistakes you have made and start things on a "
        u"new way. Most were mistakes of judgment: you trusted the wrong partner, or pressed a "
        u"good one until they left. In these years you are handed a department or the affairs of "
        u"a family, and you find that you can run it. What has to change is the hour after a "
        u"mistake. Say at once that it was yours, pay what it cost, and do not spend the evening "
        u"proving that anyone would have made it."},
    {9, u"This is the time to devote yourself to the service of others. You are drawn into causes "
        u"that will outlast your part in them, and some of your work goes on under other people's "
        u"names. Places and friendships pass, and you find that you can bear it. Strangers call "
        u"you kind. You can also hide among the needy, where nobody inquires after you; keep one "
        u"friend who does."},
    {11, u"You have gone through many experiences in life and learnt from them. They went deeper "
         u"with you than with the people beside you, and when you speak of them a noisy table "
         u"falls quiet. Then come weeks when you doubt the whole of it and cannot open a bill "
         u"without getting worked up. In such weeks tell people simply what happened to you, and "
         u"leave the meaning of it to them. Begin with the ideal that needs nobody's permission."},
    {22, u"People with this Life Path period have their whole concentration on the task at hand "
         u"and the different ways to achieve it. With you the task is large, meant for many people "
         u"and many years. Its size frightens you at night, so by day you drive your helpers. Let "
         u"them see the fear."},
};
} // namespace

constinit const Prose lifePathPeriods{
    rows, u"Our life is divided into three parts. The first part is the first stage of a person's "
          u"life. This is the developmental stage of a person's life. The second stage helps to "
          u"understand yourself and develop your creative talents. Having gone through the various "
          u"experiences in the third stage you are a wise person with great understanding about "
          u"people and situations."};

constinit const std::u16string_view periodStage1 =
    u"This is the first stage of a person's life. It starts with your birth goes on till your "
    u"mid-life. This is a development phase. These are the basic, foundational years of a "
    u"person's life. In this period the foundations for your future years are laid.";

constinit const std::u16string_view periodStage2 =
    u"The middle stage of a person's life is divided into two parts. This period extends the "
    u"midlife of a person. This is the most important period since most of significant events "
    u"of a person's life happen in this period. In this period your full concentration falls on "
    u"your family and your profession. You go through different experiences of life and prepare "
    u"yourself for life's final stages.";

constinit const std::u16string_view periodStage3 =
    u"This is the last and final stage of a person's life. In this period you need to analyze "
    u"whatever you have experienced and learnt in the previous two periods. This is the time "
    u"for some reflection. In this time you are likely to settle all the differences and lead a "
    u"peaceful and calm life.";

} // namespace modReadings::readings
