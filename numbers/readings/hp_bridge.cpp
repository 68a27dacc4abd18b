#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {0, u"People will feel comfortable in your company and seek your association. What you want "
        u"stands in your face, and hardly anyone has to guess at it. If you are glad of a visit, "
        u"the visitor can tell, and if you would rather sleep, that shows as well. Plain dealing "
        u"has made you trustful, so a polite \"gladly\" from a reluctant colleague passes with "
        u"you for the truth, and months later you hear with astonishment that they minded. Many "
        u"people keep a front door and a back door. With the shy ones, ask a second time in "
        u"private and give them a minute to reply."},
    {1, u"You need to be more confident and clear about your goals and desires of life. Inside "
        u"you there is a definite wish; what people hear is \"anything would suit me\", and they "
        u"act on it. So the branch office goes to a colleague, and the manager is truly surprised "
        u"to learn that you had hoped for it. You feel slighted by somebody who was never told. "
        u"Strip the next request of its apologies, the \"only if\" and the \"never mind if not\", "
        u"and say what you want and by when. A refusal, should it come, at least shows you where "
        u"you stand."},
    {2, u"People with bridge number 2 need to show patience in their work and in their "
        u"relationships. You wish to be close to others, and what they see of you is hurry. Let "
        u"the slow speaker finish, and keep back some of your own story on a first evening; the "
        u"acquaintance whom you call cold is merely a few steps behind. In a new post you know by "
        u"the second week what ought to change. As a rule you are right, and all that the others "
        u"hear is that you find them wanting, so spend the first month learning how the old hands "
        u"do it. A second message sent before the first is answered is affection on your side and "
        u"a reproach on theirs."},
    {3, u"People with this bridge number get easily frustrated by failures. When the pot cracks "
        u"in the kiln or the test has to be taken again, you put on a stone face and say that it "
        u"hardly mattered. Everyone believes you. You wanted a hand on the shoulder, and you get "
        u"a change of subject. Tell somebody about the mishap the same day, with its funny side "
        u"left in; the others have cracked pots of their own. Your hands learn fast, so go back "
        u"to the wheel while they still remember what went wrong."},
    {4, u"People with bridge 4 should try to avoid confusion and make an effort to get a clear "
        u"idea about things. You see some good in every plan while it is being discussed, and so "
        u"each listener goes home with another one. An aunt believes that you are moving in the "
        u"fall, your employer that you will stay for years. Neither was a lie when you said it, "
        u"yet they build on it and end by calling you unreliable. Find out the dull facts first, "
        u"and keep quiet until you have them. Then give everyone the same version, down to the "
        u"date."},
    {5, u"You should give up your attitude of being dependent on others since this is the time to "
        u"be independent and go on your own, with nobody to hold the map. Inwardly you long for "
        u"room. What shows is a person who wants company for a haircut and reads every letter "
        u"aloud to someone before answering it. So others kindly plan for you, and you thank them "
        u"and chafe. Spend a weekend by yourself in a place that none of them has recommended, "
        u"and get a little lost there. Tell them afterward, when there is nothing left to advise."},
    {6, u"You should value and strive for congenial and friendly relations with your family and "
        u"friends. They have little idea how fond of them you are. The cashier gets your good "
        u"humor, and a relative on the telephone gets what is left, since you count on family to "
        u"understand. You think warmly of an old friend while the invitation lies unanswered, or "
        u"arrive at a birthday with a useful present and leave before the candles. Stay to the "
        u"end of the dull party. Ask about the bad knee, hear the reply, and let the occasion "
        u"pass without setting anybody's affairs right."},
    {7, u"Spending some time in solitude would be rewarding enough for you. Begin with a single "
        u"evening, without a screen or a voice, on which you could have gone out and did not. At "
        u"first you are only restless; then your own opinion comes back, and it is often a "
        u"surprise. You need such hours because you fit so well into every company, lively with "
        u"the lively and grave with the grave, that your own wish gets lost there. You take up "
        u"sailing because your friends sail, and discover out on the water that you are bored. On "
        u"shore they all say that they never saw anyone enjoy it more."},
    {8, u"People with bridge number 8 should avoid taking short cuts. You wish to be respected, "
        u"and because real standing grows slowly you show it a little ahead of time. You discuss "
        u"the book from its cover, promise for the tenth what needs until the thirtieth, and let "
        u"a listener believe that you ran the office where you were one of four. On the first day "
        u"it works. But the capable people whose esteem you want are the ones who can tell, and "
        u"they begin to check your figures. A pity, since your ability goes deeper than the "
        u"polish. Name the honest date. Say \"I do not know that yet\" in front of someone "
        u"important, and come back with the answer. What you build in this way can bear your "
        u"weight."},
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
