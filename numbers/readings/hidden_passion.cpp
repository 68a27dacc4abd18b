#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"People of this number are very creative and artistic. Whatever passes through your "
        u"hands comes out as yours: you change a recipe the first time you cook it, and cannot "
        u"hear a tune without trying another ending. Starting is the talent you use most. The "
        u"blank page that frightens others is a holiday for you, and you have a better name for a "
        u"shop before buying anything in it. Habit makes it heavy-handed, for you will take the "
        u"pencil from a slower person, and rewrap a present that somebody else has wrapped. Now "
        u"and then carry out a friend's notion exactly as it was given. It is a strange feeling, "
        u"and it shows that there is room beside you."},
    {2, u"You are a selfless individual. Your talent is so quiet that you scarcely count it as "
        u"one: you feel the temperature of a household as the door opens, and you know which two "
        u"cousins should not be seated together. In a talk that has turned stiff you find the "
        u"harmless subject, and you pass on what was meant while leaving out what was said. You "
        u"hold the ladder, keep the minutes, look up the train for somebody who is late. The "
        u"habit runs on where it is not wanted, and you have made peace between people who were "
        u"enjoying their quarrel. Worse, you have adjusted for so many years that when someone "
        u"asks what you yourself would enjoy, you have to go and look. Plan one Sunday by the "
        u"answer alone, from breakfast until bedtime, and let no telephone call alter it. The "
        u"ladder can lean against the wall that day."},
    {3, u"You have good verbal and written communication skills and thus express your creative "
        u"skills in an effective way. A flat tire becomes a story by the time the tow truck "
        u"arrives, and your note on the kitchen table gets kept. You talk your way past guards, "
        u"write verses for a retirement and cheer up a sick friend with an imitation of the "
        u"doctor. So much comes out so readily that a friend with news of their own waits for a "
        u"gap, and a secret, being good material, is not always safe. Before a good story leaves "
        u"your mouth, ask yourself whose it is. There are plenty of your own, and people tell you "
        u"more once they feel safe."},
    {4, u"You are a practical and realistic person. Hand you a muddle and you begin to sort it "
        u"before your hat is off: screws by length, guests by arrival, arguments by what they "
        u"would cost. A friend with a broken heart comes to you and goes home with a mended lamp, "
        u"and feels looked after. You use this gift even where nobody wants it. A picture that "
        u"hangs crooked in a stranger's hall distracts you from the stranger. There is one right "
        u"way to load a car, and a helper who does not know it is thanked and sent to wait "
        u"indoors. Walk past one crooked picture a day and look at the host. Very little is lost "
        u"by it, and you will still be the one who knows where the tickets are."},
    {5, u"You are unconventional and would like to do things in new and different ways. There are "
        u"several ways home and you take them by mood. In a foreign town you are bargaining in "
        u"bad grammar, with both hands, while your companions are still searching the phrase "
        u"book. What you do from habit is to try, and one clumsy attempt teaches you more than a "
        u"course of lessons. The trying overshoots. A method that worked goes out with the dull "
        u"one, and the kayak hangs in the garage beside the accordion. Before taking up the next "
        u"thing, go back to an old one for a month. It is often new enough the second time."},
    {6, u"You like to be with your near and dear ones and would do anything for them. Looking "
        u"after them is second nature: you drive an uncle to the station at five, teach the "
        u"neighbor's boy fractions, carry soup across the street. Unluckily you also decide who "
        u"needs soup. Your evening is given away, a grown person has been helped into a sweater, "
        u"and both of you are a little cross. Ask first, wait for the answer, and sometimes let "
        u"it be no."},
    {7, u"You are a very curious person. \"It just is\" has never satisfied you; as soon as a "
        u"thing is explained you want to look behind it. You ask the guide about the room that is "
        u"not shown, and go on looking things up until it is one in the morning and the subject "
        u"is the history of salt. Colleagues bring you the fault that nobody can trace. The habit "
        u"costs you decisions, since no room is booked while one more opinion is unread, and by "
        u"then the rooms are gone. It is also hard to be loved by an examiner. Ask a partner "
        u"three whys about a remark at breakfast and they feel put on the witness stand, though "
        u"you were merely interested. Set a limit for the search ahead of time and keep to it. At "
        u"home, trade: for every question that you put, tell something about yourself that nobody "
        u"has dug for."},
    {8, u"People of this number are born leaders. Put you at a picnic and within ten minutes one "
        u"guest is fetching ice, another is at the grill, and everything is ready on time. You "
        u"count heads at every table without meaning to, and a shy guest is given a task before "
        u"the shyness has time to set in. All this is so habitual that you do it on your day off. "
        u"Friends begin to feel employed, and you lie stiffly in a hammock, as if someone were "
        u"paying you for it. Go now and then as a plain guest, take the chair you are offered, "
        u"and watch a thing be done badly. Most people will have had a good time anyway."},
    {9, u"You are born with the inborn trait of serving mankind. When somebody absent is being "
        u"picked to pieces, you are the one who speaks up for them. On a train you end up holding "
        u"somebody's baby, or reading out a form to a man who has forgotten his glasses. You "
        u"grasp quickly how a thing looks from far off, and can pity even the one who has wronged "
        u"you. There is a blind spot close at hand. The habit is so quick that people are helped "
        u"across a street they did not mean to cross, and your own case is pleaded by nobody. "
        u"Wait until the other has asked. The next time a thing is shared out, put in a word for "
        u"the party you always forget."},
};
} // namespace

constinit const Prose hiddenPassion{
    rows,
    u"All of us are born with some talents. This number tells you about your hidden talents and "
    u"strengths. This number also reveals your personality. We also get an idea about how to "
    u"use and direct our positive strengths in the right way so that we reap the maximum "
    u"benefits out of it. It is like a guide to your life."};

} // namespace modReadings::readings
