#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// No pair of core numbers reaches 22; its row stays all the same.
constexpr Reading rows[] = {
    {1, u"People of this number have a dominating and stubborn nature. In you it was kept on a "
        u"short lead for years, out of duty or good manners, and as you grow older the lead gets "
        u"longer. You no longer wait for permission. A trade of your own, a move to another town, "
        u"a firm refusal to the relative who has always arranged things: such steps come now, and "
        u"they come quickly. Advice that you would once have followed to keep the peace is heard "
        u"out and set aside. You are better company for it, since a person who has their own way "
        u"at last has less reason to snap.\r\n"
        u"The price is that you can become someone whom everybody works around. Younger people "
        u"stop arguing, and it suits you to think them convinced. Notice how long it has been "
        u"since you were told flatly that you were wrong. Pick a person whose courage you trust, "
        u"and grant them the right to contradict you without paying for it. Losing an argument "
        u"now and then does your standing no harm."},
    {2, u"Your people interaction skills will improve and you will handle all sorts of "
        u"relationships with others tactfully. What used to be plain softness turns with age into "
        u"skill. Earlier you gave in for fear of a scene; now you know which points can be "
        u"yielded, and you hold the others in a tone that gives no offense. Relatives who have "
        u"not spoken since some wedding find themselves seated side by side at your table. In a "
        u"meeting you wait until the loud ones have run dry, and then offer the sentence that "
        u"they can all accept. Old slights lose their sting, and a remark that would have cost "
        u"you a night's sleep makes you laugh. Guard against one thing. So many people bring you "
        u"their side of the story that you can go a month without telling anyone yours. Keep one "
        u"friend with whom you are not fair at all, and be as partial and cross there as you "
        u"please. A bond formed or renewed in these years rests on firm ground, because you come "
        u"to it as an equal."},
    {3, u"Your confidence is at your peak at this time. The shyness or good sense that kept you "
        u"quiet in younger years falls away, and you begin to say, sing, paint or write what you "
        u"had only thought. You hold forth to a full room and do not lie awake over how it went "
        u"down. Clothes get brighter, and so does the talk.\r\n"
        u"New friends come easily, many of them a good deal younger than you, who like it that "
        u"you do not lecture. An old talent that was put aside for the sake of a living asks to "
        u"be taken out again, and it is less rusty than you feared. Join the choir or send in the "
        u"piece, because with an audience, even one of five, you work better.\r\n"
        u"Settle on one thing to make, and keep the mornings for it. Otherwise the calendar fills "
        u"with outings, and years can go by in which you delight everyone and leave nothing "
        u"behind that you are proud of. A low mood also gets talked over when it ought to be "
        u"talked about. Old friends, who can tell your real laugh from the other one, are waiting "
        u"to be told."},
    {4, u"Your hard work will pay off and your goals will be achieved. In later life what you "
        u"laid down piece by piece bears weight: the skill, the household, the name for keeping "
        u"your word. What comes hard is to stop carrying bricks. Hand a task to someone slower, "
        u"leave the room while they do it, and sit down for once on the wall you have built."},
    {5, u"You have realized your life's goals. While others of your age settle into their chairs, "
        u"you grow lighter. Ties that were kept from habit are loosened, a bag stands packed, and "
        u"you are willing to be a beginner again at a language or a dance. News that would upset "
        u"the rest of the family is brought to you first. Before a large change, live with the "
        u"idea for three months; whatever still pulls at you then deserves the trip. This late "
        u"liberty has its catch, for in a restless spring you can drop within a week the friend "
        u"or the home that you miss by autumn."},
    {6, u"You are compassionate and a humanitarian at heart. In the second half of life this "
        u"draws a circle about you: somebody's teenager talks to you on the stairs, and a local "
        u"cause wants you on its board. Your advice is sound by now, and you are tempted to hand "
        u"it to all comers. Hold it until the question is put, and keep one afternoon in which "
        u"nobody's needs can find you. Those whom you left to manage by themselves turn out to be "
        u"the ones who come back most often and most gladly."},
    {7, u"You like to be in isolation and analyze your life. With the years this wish grows "
        u"stronger, and crowded weekends that you once put up with are politely refused. A "
        u"question that you never had time for, in science, faith, history or your own past, "
        u"begins to claim your evenings. Your conclusions are worth hearing, and few hear them. "
        u"The past can also be picked over too long, with the same old mistake put on trial every "
        u"winter. Pass a verdict and close the file. Then invite someone patient and think aloud "
        u"for an hour."},
    {8, u"Once you set your goal, you devote your time and energy in achieving that goal. Your "
        u"authority ripens late: you speak less in a meeting, and more gets done. Others ask you "
        u"to take the chair or to decide between two claims, for you weigh a thing coolly and "
        u"then act. Train the one who will come after you without standing at their elbow. A "
        u"plain stop to work does not suit you, and with nothing else to run you run your "
        u"household."},
    {9, u"You are inclined towards doing social service. As the years go on your own advancement "
        u"interests you less, and the poor state of a park or a shelter interests you more. You "
        u"turn up with a broom or a letter to the council, and you are still there when the "
        u"enthusiasm of the rest has cooled. Possessions begin to weigh on you, and it is a "
        u"pleasure to pass them to people who will use them. Even old enemies are let off, some "
        u"without knowing they were accused.\r\n"
        u"The people at home see this with mixed feelings. They are proud of you, and they would "
        u"like to have you there on a Thursday. It also makes you bitter when a good cause is run "
        u"by vain people, as good causes often are. Do the part that lies in front of you and "
        u"leave on time. Then ask whoever kept your supper warm about their day, and hear all of "
        u"it."},
    {11, u"You are at your spiritual best. What was nervousness in younger years settles into a "
         u"sense that you can rely on, and there is no longer any need to convince others of it. A "
         u"few quiet words at the right moment turn somebody around, often a person half your age, "
         u"and you are the last to learn of it. What you see is worth writing down, and worth "
         u"showing to a practical person before you act on it. Days of doubt still come, when it "
         u"all seems mere imagination. Dig, cook or mend something on such a day, and put off "
         u"every judgment of yourself until you have slept."},
    {22, u"You have inborn managerial skills and leadership qualities. For a long time they were "
         u"spent on matters too small for them. Now a task comes along that fits, often as a "
         u"request that you nearly turn down. You know whom to call and in what order, and a thing "
         u"that was talked about for ten years has its foundation in one. Mind your pace, because "
         u"your helpers have other lives to go home to. Say early who is to take over, and show "
         u"them the drawings. The work is meant for people who will never know your name, and "
         u"somewhat to your surprise this suits you."},
};
} // namespace

constinit const ReadingTable realization = rows;

constinit const std::u16string_view realizationAbout =
    u"This number tells about a person's hidden dreams and desires. It is also called the "
    u"maturity number, and it is found by adding the Life Path number to the Destiny number: "
    u"the road you walk and the talent you bring to it. What the two make together is seldom "
    u"plain in youth. Somewhere in the middle of life it begins to be felt, as a wish that will "
    u"not be put off any longer or as a side of you that old friends had not met. If the same "
    u"number stands elsewhere in your report, it grows stronger with age; if it is new, it asks "
    u"you to change a habit or two. Read it as a picture of what is coming up from below, and "
    u"make room for it in good time.";

constinit const std::u16string_view realizationRefusal =
    u"Your Maturity Number is dependent on your LifePath Number and Destiny Number. "
    u"Please calculate these two figures first";

} // namespace modReadings::readings
