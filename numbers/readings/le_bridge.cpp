#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {0, u"People with this combination of Life Path/Expression Number will generally progress and "
        u"accomplish their dreams in the work they would have picked for themselves. You can do "
        u"most of what is asked of you, and friends who are still looking for their place find "
        u"your advice too short. So good a fit can be worn half asleep. It is the harder half of "
        u"the same work that wakes you up again."},
    {1, u"People with Life Path/Expression number 1 lack self-confidence. You have the ability, "
        u"and your road leads to places where someone must go first, but between the two stands a "
        u"person waiting to be told that it is time. When the group needs a head, you name two "
        u"others. You know the way, and walk half a step behind the one who is guessing. One more "
        u"course, you think, and then you will be ready; the course is passed with honors and "
        u"nothing follows. Those who lead are seldom more certain than you, and have only grown "
        u"used to the feeling. With you it often begins by accident, on an outing that nobody "
        u"else had prepared. Everyone gets home, and some of them ask when the next one is."},
    {2, u"You basically have a loving and friendly nature, which however, doesn't show up easily. "
        u"Your skill is of a kind that works alone, while your road runs through other people, "
        u"and you travel it like someone on a night train, courteous and with your eyes on a "
        u"page. When a colleague comes back from a funeral, you feel it for days, and what "
        u"reaches them is a nod. So nobody thinks of you when a partner is sought. You had been "
        u"hoping to be asked, and it did not occur to you to ask. Friendliness is paid in small "
        u"coin, such as a good morning with the name added or a question about the sick dog. The "
        u"first weeks of it are stiff on both sides. Then one noon somebody moves over on the "
        u"bench to make room for you, and you find that you have left the book upstairs."},
    {3, u"You should learn to take life easily. Your road has hills enough, and you carry your "
        u"gifts up them with clenched teeth. A friendly game of tennis becomes a test of "
        u"character; for a picnic with eight guests you draw up a schedule, and lie awake over "
        u"the one dish that failed. The result is good, and colleagues respect you for it and "
        u"take their jokes to another table. An evening on which you draw a horse that looks like "
        u"a sofa, and hand it around, is no evening lost to your work. The talent first came to "
        u"you when you were fooling about, and it is still frightened off by a frown."},
    {4, u"People with this combination of Life Path/ Expression number need to be more practical "
        u"and realistic. The garden you dream of has its roses, its arbor and a bench for the "
        u"evening, and you have not yet looked where north is. Your road keeps setting you down "
        u"before plain jobs, while your mind is already sitting on the bench. Everyone loves to "
        u"hear you plan, though after a few such plans they stop offering to dig. The gap closes "
        u"beside somebody who has done it before, owns a pencil, and likes you. Half of your "
        u"smallest plan is struck out, and the rest gets built."},
    {5, u"People with the combination number 5 are very conventional. You use your ability in the "
        u"one way you were shown, in the kind of place where it was always used, and the result "
        u"is sound. Meanwhile the road takes a turn every few years. A new method comes in, and "
        u"you keep the old one going beside it, so that everything is done twice. \"We never did "
        u"it so\" is a sentence that those around you can say in your voice. The same skill would "
        u"be welcome at an unlikely address: a bookkeeper can do the accounts of a circus, a "
        u"careful cook can feed a ship. What you know loses nothing by the move, and to new "
        u"people it is news."},
    {6,
     u"People with combination number 6 need to express themselves freely. You are the one who "
     u"sees that things get done, and you think that such a person has no right to a mood. "
     u"Asked where to spend the holiday, you name the place the others like, and pack for "
     u"everybody. The song, the plan for the schoolyard, the opinion on a cousin's marriage "
     u"stay inside until you forget whose they were. \"I would rather go to the sea\" is a whole "
     u"sentence. Those you look after have been waiting a long time for the chance to please "
     u"you."},
    {7, u"You need to spend more time in solitude and deliberate on matters in frequent "
        u"intervals. As a doer you go from one task straight into the next, and your yes is given "
        u"before the question is finished. In this way much of your talent has gone into work "
        u"that happened to lie on top. You notice it now and then at a red light, as a wish to "
        u"know what it is all for; then the light changes. A bench near your work is solitude "
        u"enough. From there the tasks have another size, and two or three prove to be other "
        u"people's."},
    {8, u"People with this combination number are not very ambitious and are afraid of being very "
        u"competitive. When a friend applies for the same post, you withdraw your letter and wish "
        u"them luck. In a race you slow down near the line, because the other runner looks so "
        u"unhappy. You call the prize vulgar and nearly believe it, yet your road leads again and "
        u"again to large matters, and you have the means to manage them. Somebody less fair takes "
        u"the post, and you work for them. Enter a contest in which little is at stake, a flower "
        u"show or a chess evening, and play to win. Then sit down beside the one you beat. They "
        u"would have been insulted by a gift."},
};
} // namespace

constinit const Prose leBridge{
    rows,
    u"This number gives you an idea about who you really are. The Life Path is the road you "
    u"travel, and the Expression is the talent that you carry along it. In many people the two "
    u"do not quite agree: the road asks for one thing and the hand is skilled in another. The "
    u"bridge number tells how far apart they lie. At 0 they agree, and the larger the number, "
    u"the more often a good ability meets with the wrong task. The reading names the quality to "
    u"practice in everyday life, so that you can use on your road what you do well."};

} // namespace modReadings::readings
