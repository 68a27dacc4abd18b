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
        u"person waiting to be told that it is time. Where you are new and a head is needed, you "
        u"name two others. You know the way, and walk half a step behind the one who is guessing. "
        u"One more course, you think, and then you will be ready; the course is passed with "
        u"honors and nothing follows. Those who lead are seldom more certain than you, and have "
        u"only grown used to the feeling. With you it often begins by accident, on an outing that "
        u"nobody else had prepared. Everyone gets home, and some of them ask when the next one "
        u"is."},
    {2, u"You basically have a loving and friendly nature, which however, doesn't show up easily. "
        u"Your skill is of a kind that works alone, while your road runs through other people, "
        u"and on working days you travel it like someone on a night train, courteous and with "
        u"your eyes on a page. When a colleague comes back from a funeral, you feel it for days, "
        u"and what reaches them is a nod. So nobody thinks of you when a partner is sought. You "
        u"had been hoping to be asked, and it did not occur to you to ask. Friendliness is paid "
        u"in small coin, such as a good morning with the name added or a question about the sick "
        u"dog. The first weeks of it are stiff on both sides. Then one noon somebody moves over "
        u"on the bench to make room for you, and you find that you have left the book upstairs."},
    {3, u"You should learn to take life easily. Your road has hills enough, and you carry your "
        u"gifts up them with clenched teeth. A friendly game of tennis becomes a test of "
        u"character; for a picnic with eight guests you draw up a schedule, and lie awake over "
        u"the one dish that failed. The result is good, and colleagues respect you for it and "
        u"take their jokes to another table. An evening on which you draw a horse that looks like "
        u"a sofa, and hand it around, is no evening lost to your work. The talent first came to "
        u"you when you were fooling about, and it is still frightened off by a frown."},
    {4, u"People with this combination of Life Path/ Expression number need to be more practical "
        u"and realistic. The garden you dream of has its roses, its arbor and a bench for the "
        u"evening, and you have not yet looked where north is. For other people you can be exact; "
        u"before a plain job of your own, your mind is already on the bench. Everyone loves to "
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
    {6, u"People with combination number 6 need to express themselves freely. You are the one who "
        u"sees that things get done, and you think that such a person has no right to a mood. "
        u"Asked where to spend the vacation, you name the place the others like, and pack for "
        u"everybody. The song, the plan for the schoolyard, the opinion on a cousin's marriage "
        u"stay inside until you forget whose they were. \"I would rather go to the coast\" is a "
        u"whole sentence. Those you look after have been waiting a long time for the chance to "
        u"please you."},
    {7, u"You need to spend more time in solitude and deliberate on matters in frequent "
        u"intervals. As a doer you go from one task straight into the next, and your yes is given "
        u"before the question is finished. In this way much of your talent has gone into work "
        u"that happened to lie on top. You notice it now and then at a red light, as a wish to "
        u"know what it is all for; then the light changes. A bench near your work is solitude "
        u"enough. From there the tasks have another size, and two or three prove to be other "
        u"people's."},
    {8, u"People with this combination number are not very ambitious and are afraid of being very "
        u"competitive. When a friend applies for the same job, you withdraw your name and wish "
        u"them luck. In a race you slow down near the line, because the other runner looks so "
        u"unhappy. You call the prize vulgar and nearly believe it, yet your road leads again and "
        u"again to large matters, and you have the means to manage them. Somebody less fair takes "
        u"the job, and you work for them. Enter a contest in which little is at stake, a flower "
        u"show or a chess evening, and play to win. Then sit down beside the one you beat. They "
        u"would have been insulted by a gift."},
};
} // namespace

constinit const ReadingTable leBridge = rows;

constinit const std::u16string_view leBridgeAbout =
    u"This number gives you an idea about who you really are. The Life Path is the road you "
    u"travel, and the Expression is the talent that you carry along it. In many people the two "
    u"do not quite agree: the road asks for one thing and the hand is skilled in another. The "
    u"bridge number tells how far apart they lie. At 0 they agree, and the larger the number, "
    u"the more often a good ability meets with the wrong task. The reading names the quality to "
    u"practice in everyday life, so that you can use on your road what you do well.";

} // namespace modReadings::readings
