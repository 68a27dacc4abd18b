#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// Up to two values are too few for a reading.
constexpr Reading rows[] = {
    {3, u"Those having 3 Subconscious Self Number, have the tendency of depending too much on "
        u"others. Your name holds few of the nine values, so when something unexpected happens "
        u"you reach for the telephone first. The last train is canceled, and you have described "
        u"it to four people and not yet looked for a bus. Each of the four says something "
        u"different, and you do what the last one said. By then a friend is on the way with a "
        u"car, a cousin has made up a bed, and one of the two has to be called off with "
        u"apologies.\r\n"
        u"It is no small thing to know whom to ask, and you know it better than the sturdy ones "
        u"who would drown before they shouted. Your alarm is honest and soon over, and for that "
        u"hour nobody has to guess how you feel. The harm lies elsewhere. Helpers grow tired when "
        u"each surprise is carried to their door, and with every rescue you believe a little less "
        u"that you could have managed. You overlook what you had on you all along: some money, a "
        u"map, and a tongue that can ask the man at the counter.\r\n"
        u"In real danger a call for help is right, and nobody makes it sooner than you. Most "
        u"surprises are smaller. The wrong package arrives, the store is closed for inventory, a "
        u"guest turns up a day early. Ten minutes with the telephone left in your pocket are as a "
        u"rule enough to see what the matter is and to take one sensible step, and the step after "
        u"that is easier. You will still call your friends, but then it will be to tell them how "
        u"it went."},
    {4, u"You get involved with the trivial details of things and thus quickly lose your "
        u"interests. The letter that turns your plans over lies on the table, and you are looking "
        u"for the folder it belongs in. A sudden event has too many sides for you, so you take "
        u"hold of the one you can put in order and work on it with great care: the receipts, the "
        u"addresses, who was told first. For that reason you are the person who knows the policy "
        u"number on the night of the accident, and others bless you for it. But the main question "
        u"has been waiting meanwhile, and when you come to it your strength is spent and the "
        u"matter has begun to disgust you. Decisions pass to people who know far less about it, "
        u"and you watch with folded arms. Being hurried makes this worse, since under pressure "
        u"you check the same list a second time and grow stiff toward anyone who suggests leaving "
        u"out a line. Before you touch a single paper, say in one sentence what has to be settled "
        u"by tonight. Hand over the rest, or leave it lying there in full view. You will find "
        u"that untidiness can be endured for a day or two, and that your patience, kept for the "
        u"right thing, lasts far better than you thought."},
    {5, u"Your interest lies in different fields. You have picked up a little first aid, some "
        u"plain carpentry and enough about engines to know what the noise means. On the day when "
        u"everything goes wrong, one of these scraps turns out to be the thing needed. Surprises "
        u"wake you up. You want no plan; each attempt suggests the next, and others are still "
        u"saying that it cannot be true when you come back with a spare part and a stranger who "
        u"can fit it. It is waiting that defeats you: an hour in a hospital corridor without news "
        u"frightens you more than the blow itself, and you make some rash move just to be moving. "
        u"Besides, the upset exhilarates you. To those who have lost something by it, your "
        u"whistling on the stairs sounds like a lack of heart. They find out otherwise when there "
        u"is nothing left to try. A friend who was in that corridor, asked a year later what had "
        u"helped most, passes over the spare part and speaks of the quarter of an hour in which "
        u"you sat down on the next chair and said nothing clever."},
    {6, u"You are a humanitarian at heart. When something sudden happens, your eyes go over the "
        u"faces before they go to the damage: who is pale, who has not eaten, where the children "
        u"are. Somebody is wrapped in your coat and given a task, since you know that a "
        u"frightened person is better off peeling potatoes than staring. A stranger's bad luck "
        u"can cost you a week's money, and you do not mention it at home. In the troubles of "
        u"others you are quite sure of yourself. It is another matter when the blow falls within "
        u"your own four walls. There you hope too long that things will right themselves, cover "
        u"for the person who caused the mess, and hide your own fright behind the cooking until "
        u"it breaks out over a broken cup weeks later. You also tend to decide what is good for "
        u"people who are only shaken and not helpless, and you are wounded if they would rather "
        u"sit alone. Let the one who prefers the stairs and silence have them. Arrange ahead of "
        u"time, on a quiet day, which friend is to look after you when your turn comes, and tell "
        u"that friend so. You will object that it is not necessary. It is, because everyone has "
        u"grown used to thinking that you are the one who manages, and nobody will think of it in "
        u"the hour itself."},
    {7, u"You are a well-balanced and controlled person, along with being confident and "
        u"self-assertive. It shows in the first ten minutes after a surprise, whatever you are "
        u"like in slower troubles. As the noise in the room goes up, your voice goes down, and "
        u"people begin to listen to it. You take one look at what has really happened, a child "
        u"missing from the line or water all over the documents, and name the next two things to "
        u"be done in the right order. So much calm takes an effort that no one sees. Afterward, "
        u"when the rest are laughing with relief, you are gray in the face and short with whoever "
        u"opens your door. In the thick of it you can be scornful of tears, as though the person "
        u"weeping were doing it badly. They would be astonished to hear that you were frightened "
        u"too. The few who have been told do not follow you any less; they stop thinking that "
        u"something is wrong with them."},
    {8, u"You are confident in yourself and like to face the various challenges of life. With "
        u"eight of the nine values in the name there are few alarms that find you empty-handed. "
        u"You ask three questions, decide, and send people off in different directions, and if "
        u"the decision proves wrong you make another without wasting breath on the first. Money, "
        u"telephone numbers and favors owed to you are all at hand within the hour. Trouble suits "
        u"you so well that the first calm week after it makes you uneasy; you inspect what is "
        u"running smoothly and find an emergency where there was none. It is also hard for you to "
        u"give the command back. The crisis has been over for three days, and you are still "
        u"telling grown people where to stand. Anyone who hesitates counts as useless in your "
        u"eyes, although the slow one may be the only person who has noticed that the back door "
        u"is open. Then there is the single value that your name lacks. When a surprise strikes "
        u"just there, you are as helpless as anybody and far less used to it, so you grow loud, "
        u"or say that the matter is of no importance. Your irritation is a useful sign. It marks "
        u"the place, and somebody who is good at it can be kept near. You are at your best on the "
        u"evening after the storm, if you say aloud that it is over and give everyone their own "
        u"affairs back. On such an evening you ask how it was for them, listen, and do not "
        u"improve on the answer. They would follow you again the next morning."},
    {9, u"People having this number as their Subconscious Self Number, are very mysterious so "
        u"it's difficult to understand them at the very moment when everyone else can be read "
        u"like a notice on a wall. All nine values stand in your name, and no event finds you "
        u"quite without an answer. You hear that the house has been sold over your head, nod, and "
        u"ask if there is more soup. It is no mask. You may be brisk while something can be done; "
        u"a blow that has fallen is weather, bound to come to someone and sure to pass, and an "
        u"anxious person who sits beside you for an hour goes away quieter. The distance is hard "
        u"on those who love you. They bring you a fright or a piece of splendid news, see no "
        u"change in your face, and stop bringing things. Since the worst does not look so bad to "
        u"you, precautions are put off, and others lie awake over your affairs in your place. You "
        u"help where you are called, but it seldom strikes you to go and look. Put into words "
        u"what your face leaves out: that you are glad, that it grieves you, that you would have "
        u"missed them. A ladder borrowed without great need brings a neighbor nearer than years "
        u"of nodding. People draw close to what they can be of use to, and you give them few "
        u"openings."},
    {0, u"This number is not valid for this name."},
    {1, u"This number is not valid for this name."},
    {2, u"This number is not valid for this name."},
};
} // namespace

constinit const ReadingTable subconsciousSelf = rows;

constinit const std::u16string_view subconsciousSelfAbout =
    u"You face different situations in life. Some can be seen coming, and for those you "
    u"prepare; others stand in the doorway before you have put down your keys. This number "
    u"shows how you meet the second kind, when there is no time to think and something older "
    u"than thought takes over. It is found by counting how many of the nine letter values occur "
    u"in your name. Each value present is a tool within your reach. Where few are held, you "
    u"look around for help and your efforts scatter; where many are held, you keep your head, "
    u"though you are harder to help. What the name leaves out can still be learned by anybody "
    u"who knows that it is missing.";

} // namespace modReadings::readings
