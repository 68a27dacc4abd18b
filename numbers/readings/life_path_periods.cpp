#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// No date reduces to 11 or 22; their rows stay all the same.
constexpr Reading rows[] = {
    {1, u"This is the time when you should set your own goals and devote your whole attention and "
        u"resources in achieving those goals. Help is scarce in these years, so you learn to "
        u"decide alone and to stand by a choice that proves costly. You do your best work where "
        u"nobody stands behind your chair. The price is stubbornness: you would sooner lose a "
        u"season than ask a younger person the way. Ask now and then."},
    {2, u"This is the period when you need to show patience and work in a steady pace towards "
        u"your goals. Little is gained by force. You spend years beside somebody stronger or "
        u"louder, doing the careful work, and what you know of people is learned there. So much "
        u"giving way leaves its mark, and one day you cannot say where you yourself would like to "
        u"live. Ask yourself early, and act on the answer. Others can bear more frankness than "
        u"you think."},
    {3, u"This is the time when you work and think in a mature manner and achieve success in your "
        u"different ventures. Nearly all of them pass through your mouth, your pen or your hands: "
        u"you persuade, entertain, teach a room, make things that people like to look at. The "
        u"loss shows late, for a gift spread over a dozen trades stays at the level of a good "
        u"amateur. Stay with one craft until it bores you and then a few years more; the better "
        u"work lies beyond that point. Most friends know only your cheerful side. Let two of them "
        u"see the other."},
    {4, u"It's a time to set goals for the future and work hard to realize the goals. Progress "
        u"comes by the inch in these years and stays where you put it. Habit hardens along with "
        u"it, and a moved chair can annoy you; once in a while change a rule that still works."},
    {5, u"This is a time when you will face many changes in your life and adapt to them. Towns, "
        u"trades and circles of friends follow each other, and you are at home in the new one "
        u"within a month. Depth is what these years do not give by themselves: a skill is dropped "
        u"when it stops being new, a love affair at the first dull winter. Stay through one such "
        u"winter and see what is behind it. Keep a friend from every place, by letter if need be, "
        u"or nobody will remember you whole."},
    {6, u"This is the time to realize the duties and responsibilities that you have towards your "
        u"family. They come in all sizes: children, parents who grow old, pupils and neighbors "
        u"who treat your kitchen as their own. You are good at it, and being needed gives the "
        u"whole period its warmth. It also gives you a say in everything, which you carry too far "
        u"with those old enough to choose a partner or a trade. When they go their own way you "
        u"count up what you did for them. Stop the count; they love you better without it. "
        u"Reserve one room or afternoon for yourself."},
    {7, u"You will be attracted towards various fields. Underneath is always the same search: you "
        u"want to know how a thing works and whether what is said about it is true. In time you "
        u"are the one who is asked for facts; for comfort people go elsewhere. You leave a "
        u"gathering early, find fault with a gift, keep a sorrow to yourself until it is a habit. "
        u"Tell one person while it is fresh. Follow one field to the bottom, and the others make "
        u"more sense."},
    {8, u"This is the right time to learn from the mistakes you have made and start things on a "
        u"new way. Most were mistakes of judgment: you trusted the wrong partner, or pressed a "
        u"good one until they left. In these years you are handed a department or the affairs of "
        u"a family, and you find that you can run it. What has to change is how you treat people "
        u"who cannot keep up, and yourself on days when there is nothing to win. Ask those at "
        u"home how a good year looked to them."},
    {9, u"This is the time to devote yourself to the service of others. Your circle widens until "
        u"it takes in people whose names you hardly know and causes that will outlast your part "
        u"in them. Places and friendships pass, and you learn to open your hand. Strangers call "
        u"you kind. At home they find you absent, with a repair begun in every room; save some "
        u"patience for them."},
    {11, u"You have gone through many experiences in life and learnt from them. They went deeper "
         u"with you than with the people beside you, and now others bring you their tangled "
         u"affairs; a remark you hardly remember turns somebody's course. Then come weeks when you "
         u"doubt the whole of it and cannot open a bill without getting worked up. Regular hours "
         u"and plain handwork steady you. Begin with the ideal that needs nobody's permission."},
    {22, u"People with this Life Path period have their whole concentration on the task at hand "
         u"and the different ways to achieve it. With you the task is large, meant for many people "
         u"and many years. Its size frightens you at night, so by day you drive your helpers. Let "
         u"them see the fear."},
};
} // namespace

constinit const ReadingTable lifePathPeriods = rows;

constinit const std::u16string_view lifePathPeriodsAbout =
    u"Our life is divided into three parts. The first part is the first stage of a person's "
    u"life. This is the developmental stage of a person's life. The second stage helps to "
    u"understand yourself and develop your creative talents. Having gone through the various "
    u"experiences in the third stage you are a wise person with great understanding about "
    u"people and situations.";

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
