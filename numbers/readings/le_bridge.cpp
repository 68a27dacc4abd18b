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
        u"One more season, you think, and then you will be ready; the season ends with praise and "
        u"nothing follows. Those who lead are seldom more certain than you, and have only grown "
        u"used to the feeling. With you it often begins by accident, on an outing that nobody "
        u"else had prepared. Everyone gets home, and some of them ask when the next one is."},
    {2, u"You basically have a loving and friendly nature, which however, doesn't show up easily. "
        u"Your skill is a solo, and your road keeps handing you duets. It puts a partner into the "
        u"plan and a second name under the letter. You do your half without a fault, with your "
        u"eyes on the page. You hear everything all the same: when the person beside you comes "
        u"back from a funeral, you feel it for days, and what reaches them is a nod. So when "
        u"pairs are made up, nobody thinks of you. You had been hoping to be asked, and it did "
        u"not occur to you to ask. The change starts small, with a good morning that has a name "
        u"in it or a question about the sick dog, and for some weeks it is stiff on both sides. "
        u"Then one noon half a sandwich lies on your desk, cut by somebody who had you in mind."},
    {3, u"You should learn to take life easily. On your days off you may manage it, but you carry "
        u"your gift uphill with clenched teeth. A puppet show for six children is rehearsed until "
        u"nobody dares to giggle, and one verse that limps costs you a night. The result is "
        u"excellent, and people admire it with folded hands. Your road would take you by way of "
        u"laughter, with drafts passed around while they are still warm. The talent first came "
        u"when you were fooling around. It still does: you draw a horse that looks like a bus, "
        u"hold it up, and while they howl you see how the real picture has to go."},
    {4, u"People with this combination of Life Path/ Expression number need to be more practical "
        u"and realistic. The garden you dream of has its roses, its arbor and a bench for the "
        u"evening, and you have not yet looked where north is. For other people you can be exact; "
        u"before a plain job of your own, your mind is already on the bench. Everyone loves to "
        u"hear you plan, though after a few such plans they stop offering to dig. The smallest "
        u"plan, carried out to the place itself, loses half its roses to the shade. You start on "
        u"the rest, and somebody brings a second spade."},
    {5, u"People with the combination number 5 are very conventional. You do the work you trained "
        u"for as you were shown it, in the kind of place where it was always done, and the result "
        u"is sound. The road takes a turn every few years. A new method comes in, and you keep "
        u"the old one going beside it, so that everything is done twice. \"We never did it that "
        u"way\" is a sentence that those around you can say in your voice. The same skill would be "
        u"welcome at an unlikely address: a bookkeeper can do the accounts of a circus, a careful "
        u"cook can feed a ship. What you know loses nothing by the move, and to new people it is "
        u"news."},
    {6, u"People with combination number 6 need to express themselves freely. Among those you "
        u"look after, everybody gets a turn, and it is years since anyone saw you take one. You "
        u"start the song in a key that suits the others and hold the coats while they dance. What "
        u"you would have sung stays inside, since whoever is in charge, you feel, has no business "
        u"with a mood. But your road is longer than the kitchen, and it wants the cook to come "
        u"out. \"Now you,\" says a child one evening, quite without tact, and the table goes quiet "
        u"to listen."},
    {7, u"You need to spend more time in solitude and deliberate on matters in frequent "
        u"intervals. As a doer you go from one task straight into the next, and what is put on "
        u"your desk is done, asked for or not. In this way much of your talent has gone into work "
        u"that happened to lie on top. You notice it now and then at a red light, as a wish to "
        u"know what it is all for; then the light changes. A bench out of earshot is solitude "
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

constinit const Prose leBridge{
    rows,
    u"This number gives you an idea about who you really are. The Life Path is the road you "
    u"travel, and the Expression is the talent that you carry along it. In many people the two "
    u"do not quite agree: the road asks for one thing and the hand is skilled in another. The "
    u"bridge number tells how far apart they lie. At 0 they agree, and the larger the number, "
    u"the more often a good ability meets with the wrong task. The reading names the quality to "
    u"practice in everyday life, so that you can use on your road what you do well."};

} // namespace modReadings::readings
