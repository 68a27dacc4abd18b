#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"People of this number are very creative and artistic. Whatever passes through your "
        u"hands comes out as yours: you improve a game the first time you play it, and cannot "
        u"hear a tune without trying another ending. Starting is the talent you use most. The "
        u"blank page that frightens others is a treat for you, and you have a better name for a "
        u"shop before buying anything in it. So well used a talent does not always wait to be "
        u"asked. It takes the scissors from a slower hand and does over a poster that somebody "
        u"else has begun. \"This one is mine,\" says the slower hand at last, and you fold your "
        u"arms, suffer a bit, and see it arrive by another road."},
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
        u"gap, and a secret, being good material, is not always safe. Nobody tires of the stories "
        u"that are yours to tell, least of all those in which you come off badly. People laugh, "
        u"and tell you one in return."},
    {4, u"You are a practical and realistic person. A muddle has hardly been set down in front of "
        u"you when it lies in order: screws by length, guests by arrival, arguments by what they "
        u"would cost. On a full train every suitcase finds a place because you have turned one of "
        u"them around. You use this gift even where nobody wants it. A picture that hangs crooked "
        u"in a stranger's hall distracts you from the stranger. There is one right way to load a "
        u"car, and a helper who does not know it is thanked and sent to wait indoors. Friends "
        u"have been known to tilt a picture on purpose and see how long you can bear it. They "
        u"would not be without you, since nobody else knows where the tickets are."},
    {5, u"You are unconventional and would like to do things in new and different ways. There are "
        u"several ways home and you take them by mood. In a foreign town you are bargaining in "
        u"bad grammar and good humor while your companions are still searching the phrase book. "
        u"Trying is your habit, and one clumsy attempt teaches you more than a course of lessons. "
        u"At times it overshoots: a recipe that worked goes out with the dull one, and the bread "
        u"machine gathers dust behind the paints. Years later you dig it out to give away, try it "
        u"once for fun, and find it new enough the second time."},
    {6, u"You like to be with your near and dear ones and would do anything for them. Looking "
        u"after them is second nature: you drive an uncle to the station at five, teach the "
        u"neighbor's boy fractions, carry soup across the street. Unluckily you also decide who "
        u"needs soup, and some eat it out of politeness. Now and then the pot comes across the "
        u"other way, and the neighbor at the door wants to know if you have eaten. It is worth "
        u"being hungry that day."},
    {7,
     u"You are a very curious person. \"It just is\" has never satisfied you; as soon as a thing "
     u"is explained you want to look behind it. You ask the guide about the room that is not "
     u"shown, and go on looking things up until it is one in the morning and the subject is "
     u"the history of salt. Colleagues bring you the fault that nobody can trace. The habit "
     u"has cost you a vacation or two, since no room is booked while one more opinion is "
     u"unread, and by then the rooms are gone. It is also hard to be loved by an examiner. A "
     u"partner who mentions an old friend gets three whys in a row and feels put on the "
     u"witness stand, though you were merely interested. At home a trade works better, for "
     u"each question one thing about yourself that nobody has dug for. Then it is one in the "
     u"morning again, and this time there are two of you."},
    {8, u"People of this number are born leaders. Ten minutes after you reach a cookout one guest "
        u"is getting ice, another is at the grill, and everything is ready on time. You count "
        u"heads at every table, and a shy guest is given a task before the shyness has time to "
        u"set in. All this is so habitual that you do it on your day off. Friends begin to feel "
        u"employed, and you lie stiffly in a hammock, as if someone were paying you for it. The "
        u"day you come as a plain guest they forget the ice, and a dog gets a steak. It is the "
        u"cookout that everybody remembers, you included, since you sat down for it."},
    {9, u"You are born with the inborn trait of serving mankind. When somebody absent is being "
        u"picked to pieces, you are the one who speaks up for them. On a train you end up "
        u"guarding somebody's bags, or reading out a form to a man who has forgotten his glasses. "
        u"You grasp quickly how a thing looks from far off, and can pity even the one who has "
        u"wronged you. So quick a habit does not stop to look, and people have been helped across "
        u"a street that they did not mean to cross. Most forgive you while they wait for the "
        u"light to change back. There is one party for whom you never put in a word, and friends "
        u"have begun to do it for you, having learned it from you."},
};
} // namespace

constinit const Prose hiddenPassion{
    rows,
    u"All of us are born with some talents. This number tells you about your hidden talents and "
    u"strengths. This number also reveals your personality. We also get an idea about how to "
    u"use and direct our positive strengths in the right way so that we reap the maximum "
    u"benefits out of it. It is like a guide to your life."};

} // namespace modReadings::readings
