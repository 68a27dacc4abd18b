#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// No pair of core numbers reaches 22; its row stays all the same.
constexpr Reading rows[] = {
    {1, u"People of this number have a dominating and stubborn nature. In you it was kept on a "
        u"short lead for years, out of duty or good manners, and as you grow older the lead gets "
        u"longer. You no longer wait for permission. Work on your own account, a move to another "
        u"town, a firm refusal to the relative who has always arranged things: such steps come "
        u"now, and they come quickly. Advice that you would once have followed to keep the peace "
        u"is heard out and set aside. You are better company for it, since a person who has their "
        u"own way at last has less reason to snap.\r\n"
        u"Unwatched, you can become someone whom everybody works around. The others settle a "
        u"matter in the kitchen and bring it to you in such a shape that you take it for your own "
        u"idea. Notice how long it has been since you were told flatly that you were wrong. "
        u"Reopen one thing that was decided over their heads, and this time speak last. Losing an "
        u"argument now and then does your standing no harm."},
    {2, u"Your people interaction skills will improve and you will handle all sorts of "
        u"relationships with others tactfully. What used to be plain softness turns with age into "
        u"skill. Earlier you gave in for fear of a scene; now you know which points can be "
        u"yielded, and you hold the others in a tone that gives no offense. The neighbor with the "
        u"lawyer and the aunt whom everybody dreads turn mild in your company, and nobody sees "
        u"how it is done. In a meeting you wait until the loud ones have run dry, and then offer "
        u"the sentence that they can all accept. Old slights lose their sting, and a remark that "
        u"would have cost you a night's sleep makes you laugh. Guard against one thing. So many "
        u"people come to you to be heard that you can go a month without a word on your own "
        u"behalf. Keep one friend with whom you are not fair at all, and be as partial and cross "
        u"there as you please. A bond formed or renewed in these years rests on firm ground, "
        u"because you come to it as an equal."},
    {3, u"Your confidence is at your peak at this time. The shyness or good sense that kept you "
        u"quiet in younger years falls away, and you begin to say, sing, paint or write what you "
        u"had only thought. You speak up in a full hall and sleep soundly afterward, whatever was "
        u"thought of it. Even your handwriting gets larger.\r\n"
        u"New friends come easily, many of them a good deal younger than you, who like it that "
        u"you do not lecture. An old talent that was put aside for the sake of a living asks to "
        u"be taken out again, and it is less rusty than you feared. Join the choir or send in the "
        u"piece, because with a date set and chairs to fill you work better.\r\n"
        u"You can come to live on fresh admirers. The same six stories go round, each time a "
        u"little grander, while the old friends, who know them, are invited less. Have those "
        u"friends in first, and ask for their stories. Teach a younger person what you know, too, "
        u"from the dull beginnings upward; a gift that is handed on no longer hangs on how an "
        u"evening goes."},
    {4, u"Your hard work will pay off and your goals will be achieved. In later life what you "
        u"made piece by piece stands up without you: the skill, the household, the good name. "
        u"What comes hard is to stop carrying bricks. Show somebody younger the places where you "
        u"had it wrong at first, and then, for once, sit down in the sun on the wall you have "
        u"built."},
    {5, u"You have realized your life's goals. While others of your age settle into their chairs, "
        u"you grow lighter. Ties that were kept from habit are loosened, the attic is cleared, "
        u"and you are willing to be a beginner again at a language or a dance. News that would "
        u"upset the rest of the family is brought to you first. Before a large change, live with "
        u"the idea for three months; whatever still pulls at you then deserves the trip. This "
        u"late liberty has its catch, for in a restless spring you can drop within a week the "
        u"friend or the home that you miss by autumn."},
    {6, u"You are compassionate and a humanitarian at heart. In the second half of life this "
        u"draws a circle about you: somebody's teenager confides in you, and a local cause wants "
        u"you on its board. Your advice is sound by now, and you are tempted to hand it to all "
        u"comers. Hold it until the question is put, and give the surplus to a pear tree, which "
        u"will not resent it. Those whom you left to manage by themselves turn out to be the ones "
        u"who come back most often and most gladly."},
    {7, u"You like to be in isolation and analyze your life. With the years this wish grows "
        u"stronger, and crowded weekends that you once put up with are politely refused. A "
        u"question that you never had time for, in science, faith, history or your own past, "
        u"begins to claim your evenings. Your conclusions are worth hearing, and few hear them. "
        u"The past can also be picked over too long, like a fish with no meat left on it. Put its "
        u"lesson on one page. Then ask two who share your question to supper, and let them be "
        u"wrong at your table."},
    {8, u"Once you set your goal, you devote your time and energy in achieving that goal. Your "
        u"authority ripens late: you speak less in a meeting, and more gets done. Others ask you "
        u"to take the chair or to decide between two claims, for you weigh a thing coolly and "
        u"then act. Train the one who will come after you without standing at their elbow. Titles "
        u"impress you less than they did, though you still like to be the one whom they ask."},
    {9, u"You are inclined towards doing social service. As the years go on your own advancement "
        u"interests you less, and the poor state of a park or a shelter interests you more. You "
        u"turn up with seedlings or a ladder, and you are still there when the enthusiasm of the "
        u"rest has cooled. Possessions begin to weigh on you, and it is a pleasure to pass them "
        u"to people who will use them. Even old enemies are let off, some without knowing they "
        u"were accused.\r\n"
        u"The young who come to help find you kind and a little far away. You speak to them of "
        u"the whole when they would like to know where to put the spade. It also makes you bitter "
        u"when a good cause is run by vain people, as good causes often are. Do the part that "
        u"lies in front of you and leave on time. And tell the newest of them about the year when "
        u"nothing worked."},
    {11, u"You are at your spiritual best. What was nervousness in younger years settles into a "
         u"sense that you can rely on, and there is no longer any need to convince others of it. A "
         u"vision that was once for everybody gets a size and an address, a class of six or a "
         u"bench in a hospital yard, and it loses nothing by the change, for people find their way "
         u"there. Days of doubt still come, when it all seems mere imagination. You have met them "
         u"often enough to know that they leave by themselves, and the six are waiting. Go in and "
         u"begin, and leave the judgment of your worth to another day."},
    {22, u"You have inborn managerial skills and leadership qualities. For a long time they were "
         u"spent on matters too small for them. Now a task comes along that fits, often as a "
         u"request that you nearly turn down. You know whom to call and in what order, and a thing "
         u"that was talked about for ten years has its foundation in one. Mind your voice, for a "
         u"remark of yours in passing is taken as an order. Say early who is to take over, and sit "
         u"silent in their meetings. The work is meant for people who will never know your name, "
         u"and somewhat to your surprise this suits you."},
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
