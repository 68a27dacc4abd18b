#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {0, u"People will feel comfortable in your company and seek your association. The reason is "
        u"that what you want and what you ask for are nearly the same thing. If you ask for the "
        u"window seat, it is the seat you want, and nobody has to look behind your yes. Other "
        u"people have a wall in that place. A colleague says \"gladly\" through their teeth, you "
        u"take the word as you would have meant it yourself, and months later you hear with "
        u"astonishment that they minded. One more question, put in private, usually brings out "
        u"what the good manners were sitting on."},
    {1, u"You need to be more confident and clear about your goals and desires of life. Inside, "
        u"you have stood at the front for years; what people see is somebody in the back row with "
        u"a program. You want the solo or the first try, and wait until the rest have chosen, "
        u"from pride as much as manners, since being refused would be worse than coming second. "
        u"So the part goes to a colleague, honestly surprised to learn that you had hoped. "
        u"Whoever says \"I want to do that one\" finds, more often than not, that there was no "
        u"race."},
    {2, u"People with bridge number 2 need to show patience in their work and in their "
        u"relationships. You wish to be one of two, and with the person you have picked for it "
        u"you cannot wait. Your second message goes off when the first has lain for an hour, and "
        u"what was affection when it left you arrives as a reproach. If they take a day to think, "
        u"you hear a no, and are cool to them before they have said yes. At noon you remind a "
        u"partner of what was settled at ten. Two people seldom arrive at the same minute. The "
        u"first one there has the better part of it, a low wall in the sun and somebody to look "
        u"out for who is coming on purpose."},
    {3, u"People with this bridge number get easily frustrated by failures. You long to play, to "
        u"try a verse or a cartwheel and be laughed with; what people see is finished pieces. So "
        u"when the cake sinks or the punch line is gone, you clear it away with a face like a "
        u"closed theater, and say from then on that you have no talent in that line. Everyone "
        u"believes you. Yet the sunken cake was the best part of their evening, up to the face. "
        u"For a bow they would have clapped and asked for spoons."},
    {4,
     u"People with bridge 4 should try to avoid confusion and make an effort to get a clear "
     u"idea about things. Where your own next step is concerned you see some good in every "
     u"plan, so each listener goes home with another version: one believes that you are moving "
     u"in the fall, one that you will stay for years. Neither was a lie when you said it. They "
     u"build on it all the same, and call you unreliable, when that is the last thing you wish "
     u"to be. \"I am still thinking\" would have been a solid answer, the more so with a date to "
     u"it."},
    {5, u"You should give up your attitude of being dependent on others since this is the time to "
        u"be independent and go on your own, by a road nobody has tried out for you. Inwardly you "
        u"are always half on the way to somewhere. What people see on a free day sits in the "
        u"back, asks where everyone is going and comes along. They plan for you; you thank them "
        u"and look out at the exits. One afternoon on a train with no friend in it teaches you "
        u"that you get lost rather well. You come home with wet shoes, and are not easily put in "
        u"the back again."},
    {6, u"You should value and strive for congenial and friendly relations with your family and "
        u"friends. For all you do, they have little idea how fond of them you are. You praise "
        u"them to people who will never meet them, you keep a drawing that one of them made at "
        u"five, and on the telephone with them you are brief. An invitation that made you glad "
        u"lies unanswered because you meant to answer it well. The gap needs no eloquence. At the "
        u"dull end of a party, with your coat still on its hook, you sit down by the one with the "
        u"bad knee, ask after it, and are understood."},
    {7, u"Spending some time in solitude would be rewarding enough for you. You fit so well into "
        u"every company, lively with the lively and grave with the grave, that your own wish gets "
        u"lost there. A friend takes up hiking and you buy the boots; it is on a wet morning, two "
        u"miles out, that you notice how bored you are. Afterward, over the pancakes, they all "
        u"say that they never saw anyone enjoy it more. Suppose that you have a free evening, "
        u"could go out, and do not. The first hour is merely restless. Then your own opinion "
        u"comes in, rather shyly, and it is often a surprise."},
    {8, u"People with bridge number 8 should avoid taking short cuts. You wish to be respected, "
        u"and because real standing grows slowly you show it to people of rank a little ahead of "
        u"time. You discuss the book from its cover, drop a name whose owner shook your hand "
        u"once, and let a listener believe that you ran the office where you were one of four. On "
        u"the first day it works. But the capable people whose esteem you want are the ones who "
        u"can tell, and they begin to check your figures. A pity, since your ability goes deeper "
        u"than the polish. The day you say \"I have not read it\" to someone important, the floor "
        u"stays where it is. They tell you the story, gladly, and believe you about the rest."},
};
} // namespace

constinit const Prose hpBridge{
    rows,
    u"This number is like a bridge between what you really are and what others think you are. "
    u"This number helps to make others understand you much better. It also improves our "
    u"relationships. This number thus is like a bridge between how you think you are projecting "
    u"yourself and the way people see you. This will help improve your relationships and let "
    u"others see the real you."};

} // namespace modReadings::readings
