#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// No pair of core numbers reaches 22; its row stays all the same.
constexpr Reading rows[] = {
    {1, u"People of this number have a dominating and stubborn nature. In the first half of life "
        u"it is kept on a short leash, out of duty or good manners, and then the leash gets "
        u"longer. You no longer wait for permission. A business of your own, a move to another "
        u"town, a firm refusal to the relative who has always arranged things: such steps come at "
        u"last, and they come quickly. Advice that you would once have followed to keep the peace "
        u"is heard out and set aside. You are better company for it, since a person who has their "
        u"own way at last has less reason to snap.\r\n"
        u"Unwatched, you can become someone whom everybody works around. Matters are settled in "
        u"the kitchen and brought to you in such a shape that you take them for your own idea. "
        u"The one to hold on to is the old friend, or the niece, who still says flatly that you "
        u"are wrong. An argument lost to such a person, after which you cook supper for the "
        u"winner, is fondly remembered by everyone."},
    {2, u"Your people interaction skills will improve and you will handle all sorts of "
        u"relationships with others tactfully. Plain softness turns with age into skill. At "
        u"twenty you give in for fear of a scene, or make one; at fifty you know which points can "
        u"be yielded, and hold the others in a tone that gives no offense. The neighbor with the "
        u"lawyer and the aunt whom everybody dreads turn mild in your company, and nobody sees "
        u"how it is done. In a meeting you wait until the loud ones have run dry, and then offer "
        u"the sentence that they can all accept. Old slights lose their sting, and a remark that "
        u"would have cost you a night's sleep makes you laugh. There is one thing to guard "
        u"against. So many people come to you to be heard that you can go a month without a word "
        u"on your own behalf. Keep one friend with whom you are not fair at all, and be as "
        u"partial and cross as you please. A bond formed or renewed in these years rests on firm "
        u"ground, because you come to it as an equal."},
    {3, u"Your confidence is at your peak at this time. The shyness or good sense that kept some "
        u"of it back in younger years falls away, and you begin to say, sing, paint or write what "
        u"you had only thought. You speak up in a full hall, and are still glad of it once you "
        u"are safely home again. Even your handwriting gets larger.\r\n"
        u"New friends come easily, many of them a good deal younger than you, who like it that "
        u"you do not lecture. An old talent that was put aside for the sake of a living asks to "
        u"be taken out again, and it is less rusty than you feared. With a date set it comes back "
        u"faster still.\r\n"
        u"You can come to live on fresh admirers. The same six stories are told, pauses and all, "
        u"while the old friends, who know them by heart, are invited less. Yet those are the ones "
        u"who know how it really was, and like you all the same. One of them asks you some winter "
        u"to teach a grandchild what you know. You start at the dull beginning, nobody claps, and "
        u"you have seldom enjoyed an evening more."},
    {4, u"Your hard work will pay off and your goals will be achieved. In the second half of life "
        u"the things you made piece by piece begin to carry you, a skill that sits in the hands, "
        u"a name that people trust. It is rest that has to be learned from the start. One warm "
        u"evening you sit on the step, see three things that want mending, and go on sitting "
        u"there."},
    {5, u"You have realized your life's goals. In the years when others settle into their chairs, "
        u"this makes you curious what else there is. Ties kept up from habit are loosened, the "
        u"attic is cleared, and you are glad to be the oldest beginner in a class that knows the "
        u"steps. Younger people tell you plans that would alarm their parents, because you ask "
        u"where and not why. The freedom has one rough edge. Whoever is used to having you near "
        u"hears of a departure when the tickets are bought, and feels cleared out with the rest. "
        u"A few would have loved to come along."},
    {6, u"You are compassionate and a humanitarian at heart. With the years this gets around: "
        u"somebody's teenager confides in you, and the school or the clinic asks for you by name. "
        u"You have more to give by then and, oddly, less need of thanks. The old temptation "
        u"stays, which is to hand over the advice before the trouble has been told to its end. "
        u"Those whom you let finish, and then decide for themselves, come back on some fine day "
        u"with nothing wrong at all. They wanted to see you."},
    {7, u"You like to be in isolation and analyze your life. With the years this wish grows "
        u"stronger, and crowded weekends that you once put up with are politely refused. A "
        u"question that you never had time for, in science, faith, history or your own past, "
        u"begins to claim your evenings. Your conclusions are worth hearing, and few hear them. "
        u"The past is picked over too long at times, like a fish with no meat left on it. The "
        u"good evenings come when two who share your question come to supper and are allowed to "
        u"be wrong at your table."},
    {8, u"Once you set your goal, you devote your time and energy in achieving that goal. Later "
        u"the goals change size. Enough has been proved by then, or has turned out not to need "
        u"proof, and you ask what the strength is for. You give somebody a start, settle an old "
        u"family dispute in an afternoon, and do not look around to see who noticed. Idle hours "
        u"stay hard, until a child who has never heard of you wants to be taught to whistle."},
    {9, u"You are inclined towards doing social service. As the years go on your own advancement "
        u"interests you less than the poor state of a park or a shelter. You turn up with "
        u"seedlings or a ladder, and are still there when the rest have cooled. Possessions begin "
        u"to weigh on you, and it is a pleasure to pass them to people who will use them. Even "
        u"old enemies are let off, some without knowing they were accused.\r\n"
        u"The young who come to help find you kind and a little far away. You speak to them of "
        u"the whole when they would like to know where to put the spade. It also makes you bitter "
        u"when a good cause is run by vain people, as good causes often are. That passes when you "
        u"do the part in front of you and leave on time. The young like you best on the day when "
        u"you tell them about the year in which nothing worked."},
    {11, u"You are at your spiritual best. The fine nerves of your young years do not go away, but "
         u"in the second half of life they find work. You know when to say nothing, and those who "
         u"have known you longest bring you the one question that they ask nobody else. A vision "
         u"that was once for everybody gets a size and an address, a class of six or a bench in a "
         u"hospital yard, and it loses nothing by the change, for people find their way there. "
         u"Doubt still calls. It used to stay for a month; now it sits down for an evening, finds "
         u"you busy with the six, and lets itself out."},
    {22, u"You have inborn managerial skills and leadership qualities. For years they are spent on "
         u"matters too small for them, a stockroom run like a harbor. Later a task comes along "
         u"that fits, often in the form of a request that you nearly turn down. You know whom to "
         u"call and in what order, and a thing that was talked about for ten years is standing "
         u"after two. Your own weight takes getting used to, for a sigh of yours keeps three "
         u"people late. Most who use the thing never hear your name. One day you stop on its steps "
         u"to look, and are asked, quite rightly, to move along."},
};
} // namespace

constinit const Prose realization{
    rows,
    u"This number tells about a person's hidden dreams and desires. It is also called the "
    u"maturity number, and it is found by adding the Life Path number to the Destiny number: "
    u"the road you walk and the talent you bring to it. What the two make together is seldom "
    u"plain in youth. Somewhere in the middle of life it begins to be felt, as a wish that will "
    u"not be put off any longer or as a side of you that old friends had not met. If the same "
    u"number stands elsewhere in your report, it grows stronger with age; if it is new, it asks "
    u"you to change a habit or two. Read it as a picture of what is coming up from below, and "
    u"make room for it in good time."};

constinit const std::u16string_view realizationRefusal =
    u"Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
    u"Please calculate these two figures first";

} // namespace modReadings::readings
