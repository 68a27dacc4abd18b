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
    {1,
     u"You need to be more confident and clear about your goals and desires of life. The wish "
     u"inside you is definite enough; what comes out is a question about the rest. You are "
     u"hungry and ask whether anyone would like to stop, you want the solo and wonder aloud "
     u"who might sing it. So the car drives on and a colleague gets the part, and those who "
     u"decided are honestly surprised to learn that you had hoped. The gap is one sentence "
     u"wide. It says what you want and by when, with no \"only if\" in front and no \"never mind\" "
     u"behind."},
    {2, u"People with bridge number 2 need to show patience in their work and in their "
        u"relationships. You wish to be close to others, and what they see of you is hurry. A new "
        u"acquaintance is asked three private things in the first half hour, parries them all, "
        u"and is put down as cold. Your next message goes off when the last has lain for an hour, "
        u"and what was affection when it left you arrives as a reproach. New colleagues are told "
        u"early what could be improved. You are often right, too. Yet most people are merely a "
        u"few steps behind, and by winter they have caught up and remember you as the one who "
        u"liked them first."},
    {3, u"People with this bridge number get easily frustrated by failures. When the cake sinks "
        u"or the driving test has to be taken again, you put on a stone face and say that it "
        u"hardly mattered. Everyone believes you. You wanted a hand on the shoulder, and you get "
        u"a change of subject. Told the same evening, with its funny side left in, a failure "
        u"becomes a thing that happened to you and no longer a thing that is wrong with you. The "
        u"hand comes then, with a worse story than yours."},
    {4, u"People with bridge 4 should try to avoid confusion and make an effort to get a clear "
        u"idea about things. You see some good in every plan while it is being discussed, so each "
        u"listener goes home with another version: one believes that you are moving in the fall, "
        u"one that you will stay for years. Neither was a lie when you said it. They build on it "
        u"all the same, and call somebody unreliable who wishes above all to be relied on. \"I am "
        u"still thinking\" would have been a solid answer, the more so with a date to it."},
    {5, u"You should give up your attitude of being dependent on others since this is the time to "
        u"be independent and go on your own, with nobody to hold the map. Inwardly you long for "
        u"room. What shows, over small choices, is a person who takes a friend along to buy shoes "
        u"and reads a message aloud before answering. So others kindly plan for you; you thank "
        u"them and chafe. It changes with one free day in a place that none of them recommended, "
        u"where you miss a turn and like it. They hear of it afterward, when there is nothing "
        u"left to advise."},
    {6, u"You should value and strive for congenial and friendly relations with your family and "
        u"friends. They have little idea how fond of them you are. You praise them warmly to "
        u"people who will never meet them, you have kept a drawing that one of them made at five, "
        u"and on the telephone with them you are brief. An invitation that made you glad lies "
        u"unanswered because you meant to answer it well. The gap needs no eloquence. At the dull "
        u"end of a party, with your coat still on its hook, you sit down by the one with the bad "
        u"knee, ask after it, and are understood."},
    {7, u"Spending some time in solitude would be rewarding enough for you. You fit so well into "
        u"every company, lively with the lively and grave with the grave, that your own wish gets "
        u"lost there. A friend takes up running and you buy the shoes; it is on a wet morning, "
        u"two miles out, that you notice how bored you are. Afterward, over the pancakes, they "
        u"all say that they never saw anyone enjoy it more. Suppose that you have a free evening, "
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

constinit const ReadingTable hpBridge = rows;

constinit const std::u16string_view hpBridgeAbout =
    u"This number is like a bridge between what you really are and what others think you are. "
    u"This number helps to make others understand you much better. It also improves our "
    u"relationships. This number thus is like a bridge between how you think you are projecting "
    u"yourself and the way people see you. This will help improve your relationships and let "
    u"others see the real you.";

} // namespace modReadings::readings
