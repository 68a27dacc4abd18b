#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// No date reduces to 11 or 22; their rows stay all the same.
constexpr Reading rows[] = {
    {1, u"This is the time when you should set your own goals and devote your whole attention and "
        u"resources in achieving those goals. These years have you decide alone, often early and "
        u"on too little knowledge, and they leave you hard to discourage. At home the habit is "
        u"less welcome. People who hear of a move once the truck is rented feel like luggage. "
        u"Told a month sooner, the same people carry boxes."},
    {2, u"This is the period when you need to show patience and work in a steady pace towards "
        u"your goals. Few of the goals are yours alone, for these years go by in twos. You are "
        u"the half that listens, and the pair of you get by waiting what neither could force. "
        u"Waiting can also become a habit: an answer that was ready in spring is still ready in "
        u"the fall, because nobody asked. You do best beside a person who turns around and wants "
        u"to know."},
    {3, u"This is the time when you work and think in a mature manner and achieve success in your "
        u"different ventures. Nearly all of them pass through your mouth, your pen or your hands: "
        u"you persuade, entertain, teach a room, make things that people like to look at. It "
        u"comes so easily that you give it away for a dinner or a round of laughter, and one day "
        u"meet your own idea under another name. Maturity here is to sign what you make and to "
        u"remember that a room that laughs has not yet agreed to anything. The party after the "
        u"signature is the better one."},
    {4, u"It's a time to set goals for the future and work hard to realize the goals. The work "
        u"goes brick by brick, and each stays where you laid it. What gets put off until the wall "
        u"is done is play. Those who drag you to the lake anyway are remembered longest."},
    {5, u"This is a time when you will face many changes in your life and adapt to them. Towns, "
        u"trades and circles of friends follow each other, and you are at home in the new one "
        u"within a month. Depth is not included: you know forty people by their first names and "
        u"none by their troubles. A skill that goes along from place to place can ripen on the "
        u"road. So can one friendship from each town, kept up by mail if need be. Without those "
        u"friends nobody would remember you whole."},
    {6, u"This is the time to realize the duties and responsibilities that you have towards your "
        u"family. They come in all sizes, from parents who grow old to the neighbor who borrows "
        u"an egg and stays to be asked what is wrong. You are good at it, and being needed gives "
        u"the whole period its warmth. It also gives you a say in everything, which you carry too "
        u"far with those old enough to choose a partner or a trade. Later you count up what you "
        u"did for them, and they hear the counting over the phone. They visit more gladly when "
        u"you are busy with a pleasure of your own."},
    {7, u"You will be attracted towards various fields. Underneath is a single search: you want "
        u"to know how a thing works and if what is said about it is true. An hour with an expert "
        u"flies, an afternoon of small talk drags, and those who came just for you look at the "
        u"back of your head. A few stay for the whole explanation and become friends for life. "
        u"Late in the period the fields begin to meet, and you see in one what its own experts "
        u"missed."},
    {8, u"This is the right time to learn from the mistakes you have made and start things on a "
        u"new way. Most are mistakes of command, since these years sooner or later put you over "
        u"something, a team, a budget, the affairs of a family. You back the wrong person, or "
        u"press a good one until they leave, and the figures show it. They show as well that you "
        u"can run it. People will follow a hard judge a long way, once they have seen the first "
        u"verdict fall on the judge."},
    {9, u"This is the time to devote yourself to the service of others. You are drawn into causes "
        u"that outlast your part in them, and some of your work goes on under other people's "
        u"names. Places and friendships pass, and you find that you can bear it. Other people's "
        u"troubles are also a fine place to hide your own. Good friends know the place, and knock "
        u"from time to time."},
    {11, u"You have gone through many experiences in life and learnt from them. They went in "
         u"deeper than with the people beside you; a look between two strangers has taught you "
         u"more than a move abroad teaches some. So you have a sense for what is true, and others "
         u"begin to steer by it. You utter half a thought and somebody changes course, which is "
         u"hard on the nerves. Told merely as your own story, it leaves them free and lets you "
         u"sleep."},
    {22, u"People with this Life Path period have their whole concentration on the task at hand "
         u"and the different ways to achieve it. The task is large, meant for many people and many "
         u"years. Its size frightens you at night, so by day you drive your helpers. They would "
         u"rather see the fear."},
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
