#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {0, u"People with this combination of Life Path/Expression Number will generally progress and "
        u"accomplish their dreams in the work they would have picked for themselves. What is "
        u"asked of you is mostly what you are good at. It has made you short with friends who "
        u"change trades at forty, and somewhat lazy: the first chair that fits, you keep. Ask for "
        u"the harder part of the work you already do well."},
    {1, u"People with Life Path/Expression number 1 lack self-confidence. You have the ability, "
        u"and your road leads to places where someone must go first, but between the two stands a "
        u"person waiting to be told that it is time. You do the chief's work under a deputy's "
        u"title. Newcomers whom you trained are set over you within a few years, and you help "
        u"them settle in. One more course, you think, and then you will be ready; the course is "
        u"passed with honors and nothing follows. Those who lead are seldom more certain than "
        u"you, and have only grown used to the feeling. Take charge of something that has an end, "
        u"an outing or a single order, before you feel fit for it, and sign it with your full "
        u"name."},
    {2, u"You basically have a loving and friendly nature, which however, doesn't show up easily. "
        u"Your skill is of a kind that works alone, while your road runs through other people, "
        u"and you travel it like someone on a night train, courteous and with your eyes on a "
        u"page. When a colleague comes back from a funeral, you feel it for days, and what "
        u"reaches them is a nod. So nobody thinks of you when a partner is sought. You had been "
        u"hoping to be asked, and it did not occur to you to ask. Friendliness needs small coin: "
        u"a good morning with the name added, a question about the sick dog, praise spoken while "
        u"the person is there to hear it. Eat at the full table now and then, without the book. "
        u"The first weeks are stiff; keep on, and give the others time to get used to it."},
    {3, u"You should learn to take life easily. Your road has hills enough, and you carry your "
        u"gifts up them with clenched teeth. A friendly game of tennis becomes a test of "
        u"character; for a picnic with eight guests you draw up a schedule, and lie awake over "
        u"the one dish that failed. What you deliver is good, and colleagues respect you for it "
        u"and take their jokes to another table. Do something regularly that you are bad at and "
        u"enjoy, such as dancing or drawing horses, and let a child correct you. Your talent "
        u"first came to you when you were fooling about, and it is still frightened off by a "
        u"frown."},
    {4, u"People with this combination of Life Path/ Expression number need to be more practical "
        u"and realistic. A shop that you dream of has its name, its color and a painted sign "
        u"before anybody has asked about the rent. Your road keeps setting you down before plain "
        u"jobs, while your mind is already at the opening party. People love to hear you plan, "
        u"but by the third scheme they stop offering their Saturdays. Take your smallest plan, "
        u"list what it needs by Friday in hours and in hands, and show the list to someone who "
        u"has done it before. What survives their pencil can be built."},
    {5, u"People with the combination number 5 are very conventional. You use your ability in the "
        u"one way you were shown, in the kind of place where it was always used, and the result "
        u"is sound. Meanwhile the road takes a turn every few years. A new method comes in, and "
        u"you keep the old one going beside it, so that everything is done twice. \"We never did "
        u"it so\" is a sentence that the younger ones can imitate in your voice. Carry the same "
        u"skill to an unlikely address: a bookkeeper can do the accounts of a circus, a careful "
        u"cook can feed a ship. What you know loses nothing by the move, and to new people it is "
        u"news."},
    {6, u"People with combination number 6 need to express themselves freely. You are the one who "
        u"sees that things get done, and you think that such a person has no right to a mood. "
        u"Asked where to spend the holiday, you name the place the others like, and pack for "
        u"everybody. The song, the plan for the schoolyard, the opinion on a cousin's marriage "
        u"stay inside until you forget whose they were. Say \"I would rather go to the sea\" at "
        u"the table, and stop there. Those you look after are glad of the chance to please you "
        u"for once."},
    {7, u"You need to spend more time in solitude and deliberate on matters in frequent "
        u"intervals. As a doer you go from one task straight into the next, and your yes is given "
        u"before the question is finished. A good deal of talent has gone into work that anybody "
        u"could have done, merely because it lay on top. Every few weeks, set out alone on foot "
        u"and go over what you took on, why, and what came of it. Some of the reasons will look "
        u"thin. Tell callers that you will answer in two days; few matters suffer by it."},
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
