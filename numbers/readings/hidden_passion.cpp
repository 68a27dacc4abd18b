#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"People of this number are very creative and artistic. Whatever passes through your "
        u"hands comes out as yours: you change a recipe the first time you cook it, and cannot "
        u"hear a tune without trying another ending. Starting is the talent you use most. The "
        u"blank page that frightens others is a holiday for you, and a group that has sat around "
        u"for an hour begins to move when you pick up the chalk. Habit makes it heavy-handed, for "
        u"you will take the pencil from a slower person, and you play cards with children to win. "
        u"Now and then carry out a friend's notion exactly as it was given. It is a strange "
        u"feeling, and it shows that there is room beside you."},
    {2, u"You are a selfless individual. Your talent is so quiet that you scarcely count it as "
        u"one: you feel the temperature of a household as the door opens, and you know which two "
        u"cousins should not be seated together. In a talk that has turned stiff you find the "
        u"harmless subject, and you pass on what was meant while leaving out what was said. You "
        u"hold the ladder, keep the minutes, look up the train for somebody who is late. It is "
        u"done so smoothly that nobody sees it or thanks you, and this rankles for weeks behind a "
        u"pleasant face. Worse, you have adjusted for so many years that when someone asks what "
        u"you yourself would enjoy, you have to go and look. Answer that question on paper, for a "
        u"Sunday of your own choosing, and then spend it that way. The ladder can lean against "
        u"the wall that day."},
    {3, u"You have good verbal and written communication skills and thus express your creative "
        u"skills in an effective way. A flat tire becomes a story by the time the tow truck "
        u"arrives, and your note on the kitchen table gets kept. You talk your way past guards, "
        u"write verses for a retirement and cheer up a sick friend with an imitation of the "
        u"doctor. So much comes out so readily that talking about the work replaces the work, and "
        u"a secret, being good material, is not always safe. There are several notebooks with "
        u"nine bright pages each. Pick the one you still like and fill it to the last page, "
        u"telling nobody what is in it."},
    {4, u"You are a practical and realistic person. Hand you a muddle and you begin to sort it "
        u"before your hat is off: screws by length, guests by arrival, arguments by what they "
        u"would cost. A friend with a broken heart comes to you and goes home with a mended lamp, "
        u"and feels looked after. You use this gift even where nobody wants it. A picture that "
        u"hangs crooked in a stranger's hall distracts you from the stranger. There is one right "
        u"way to load a car, and a vacation planned to the quarter hour leaves no gap for "
        u"anything to happen in. Walk past one crooked picture a day and look at the host. Very "
        u"little is lost by it, and you will still be the one who knows where the tickets are."},
    {5, u"You are unconventional and would like to do things in new and different ways. There are "
        u"several ways home and you take them by mood. In a foreign town you are bargaining in "
        u"bad grammar, with both hands, while your companions are still searching the phrase "
        u"book. What you do from habit is to try, and one clumsy attempt teaches you more than a "
        u"course of lessons. The trying overshoots. A method that worked goes out with the dull "
        u"one, and the kayak hangs in the garage beside the accordion. Before taking up the next "
        u"thing, go back to an old one for a month. It is often new enough the second time."},
    {6, u"You like to be with your near and dear ones and would do anything for them. Looking "
        u"after them is second nature: you drive an uncle to the station at five, teach the "
        u"neighbor's boy fractions, carry soup across the street. The trouble is that you also "
        u"decide who needs soup. Your evening is given away, a grown person has been helped into "
        u"a sweater, and both of you are a little cross. Ask first, wait for the answer, and "
        u"sometimes let it be no."},
    {7, u"You are a very curious person. \"It just is\" has never satisfied you; as soon as a "
        u"thing is explained you want to look behind it. You read the footnotes, take the clock "
        u"apart, and go on looking things up until it is one in the morning and the subject is "
        u"the history of salt. Colleagues bring you the fault that nobody can trace. The habit "
        u"costs you decisions, since there is always one more report to read before choosing a "
        u"bicycle, and the shop has closed. It is also hard to be loved by an examiner. Ask a "
        u"partner three whys about a remark at breakfast and they feel put on the witness stand, "
        u"though you were merely interested. Set a limit for the search ahead of time and keep to "
        u"it. At home, trade: for every question that you put, tell something about yourself that "
        u"nobody has dug for."},
    {8, u"People of this number are born leaders. Put you at a picnic and within ten minutes one "
        u"guest is fetching ice, another is at the grill, and everything is ready on time. You "
        u"see waste at a glance, you know what a thing ought to cost, and you say what others "
        u"have been thinking about the slow clerk. All this is so habitual that you do it on your "
        u"day off. Friends begin to feel employed, and a hammock makes you uneasy, as if someone "
        u"were paying you to lie in it. Go now and then as a plain guest, take the chair you are "
        u"offered, and watch a thing be done badly. Most people will have had a good time anyway."},
    {9, u"You are born with the inborn trait of serving mankind. When somebody absent is being "
        u"picked to pieces, you are the one who speaks up for them. Stray dogs, newcomers and the "
        u"odd pupil at the back all find you, and your second coat is generally on another "
        u"person. You grasp quickly how a thing looks from far off, and can pity even the one who "
        u"has wronged you. There is a blind spot close at hand: a call from your own family goes "
        u"unanswered for a week while you sign petitions. Strangers' sorrows spoil your supper, "
        u"and lost causes collect under your bed. Drop one of them this season, one that you keep "
        u"up only from guilt, and call back."},
};
} // namespace

constinit const ReadingTable hiddenPassion = rows;

constinit const std::u16string_view hiddenPassionAbout =
    u"All of us are born with some talents. This number tells you about your hidden talents and "
    u"strengths. This number also reveals your personality. We also get an idea about how to "
    u"use and direct our positive strengths in the right way so that we reap the maximum "
    u"benefits out of it. It is like a guide to your life.";

} // namespace modReadings::readings
