#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// Up to two values are too few for a reading.
constexpr Reading rows[] = {
    {3, u"Those having 3 Subconscious Self Number, have the tendency of depending too much on "
        u"others. Your name holds few of the nine values, so when something unexpected happens "
        u"you reach for the telephone first. The basement is under water, and you have described "
        u"it to four people and not yet looked for the valve. Each of the four says something "
        u"different, and you do what the last one said. In the meantime you have begun three "
        u"remedies at once and cannot remember where you put the flashlight.\r\n"
        u"It is no small thing to know whom to ask, and you know it better than the sturdy ones "
        u"who would drown before they shouted. Your alarm is honest; you laugh soon afterward, "
        u"and nobody has to guess how you feel. The harm lies elsewhere. Helpers grow tired when "
        u"each surprise is carried to their door, and with every rescue you believe a little less "
        u"that you could have managed. A firm voice easily takes you over in such hours, whether "
        u"or not it knows anything.\r\n"
        u"What helps is practice on small occasions. The next time a train is canceled or the "
        u"oven gives out, do two sensible things yourself before you tell anybody. Pin up a card "
        u"that says where the valve is and whom to call, and read it first. Choose one adviser "
        u"for the day and follow that advice to the end, even if a neighbor leans over the fence "
        u"with a better idea. Finish with the water before you start on the carpet. You will "
        u"still call your friends, but then it will be to tell them how it went."},
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
        u"wiring and enough of a foreign tongue to calm a lost tourist. On the day when "
        u"everything goes wrong, one of these scraps turns out to be the thing needed. Surprises "
        u"wake you up. You want no plan; each attempt suggests the next. Others are still saying "
        u"that it cannot be true when you come in by the pantry window with a torn sleeve, "
        u"looking for the next problem. Waiting is what you handle badly: an hour in a corridor "
        u"without news frightens you more than the blow itself, and you make some rash move just "
        u"to be moving. You also leave early. As soon as the worst is over your attention goes "
        u"elsewhere, and the forms, the borrowed ladder and the shaken friend are left to "
        u"somebody slower. People remember both halves of that. In the next upset, choose one "
        u"part of it and stay until the person concerned tells you it is finished. And in the "
        u"corridor, when you long to act and nothing can be done, fetch the others something hot "
        u"to drink."},
    {6, u"You are a humanitarian at heart. Let something sudden happen, and your eyes go over the "
        u"faces before they go to the damage: who is pale, who has not eaten, where the children "
        u"are. Somebody is wrapped in your coat and given a task, since you know that a "
        u"frightened person is better off peeling potatoes than staring. A stranger's bad luck "
        u"can cost you a week's wages, and you do not mention it at home. In the troubles of "
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
        u"self-assertive. As the noise in the room goes up, your voice goes down, and people "
        u"begin to listen to it. You take a minute to look at what has really happened before you "
        u"lift a hand, and that minute makes the rest short. No one has to tell you what to do, "
        u"and those who try are told so in few words. But the calm is made by an effort that no "
        u"one sees. You pay for it later, behind a closed door, and are short for an evening with "
        u"anyone who opens it. In the thick of things you can be scornful of tears, as though the "
        u"person weeping were doing it badly, and your composure is then taken for coldness. Say "
        u"one human sentence before you give instructions: that this is bad, and that you do not "
        u"like it either. It costs you nothing in authority, and the others will work better for "
        u"someone who is made as they are."},
    {8, u"You are confident in yourself and like to face the various challenges of life. With "
        u"eight of the nine values in the name there are few alarms that find you empty-handed. "
        u"You ask three questions, decide, and send people off in different directions, and if "
        u"the decision proves wrong you make another without wasting breath on the first. Money, "
        u"telephone numbers and favors owed to you are all at hand within the hour. Trouble suits "
        u"you so well that calm weeks make you uneasy; you begin to inspect what is running "
        u"smoothly and stir up an emergency or two where there was none. It is also hard for you "
        u"to give the command back. The crisis has been over since Thursday and you are still "
        u"telling grown people where to stand. Someone who hesitates you count as useless, "
        u"although the slow one may be the only person who has noticed that the back door is "
        u"open. Then there is the single value that your name lacks. When a surprise strikes just "
        u"there, you are as helpless as anybody and far less used to it, so you grow loud, or say "
        u"that the matter is of no importance. Learn to know that place by the irritation it "
        u"causes you, and keep someone near who is good at it. When the next storm has passed, "
        u"tell everybody that it is over and that you are handing things back. Then go home "
        u"early, ask what the others have been through, and do not improve on the answer. They "
        u"will follow you more gladly the time after."},
    {9, u"People having this number as their Subconscious Self Number, are very mysterious so "
        u"it's difficult to understand them at the very moment when everyone else can be read "
        u"like a notice on a wall. All nine values stand in your name, and no event finds you "
        u"quite without an answer. You hear that the house has been sold over your head, and you "
        u"nod and ask whether there is any more soup. It is no mask. You take a disaster as you "
        u"take the weather, as something that was bound to come to someone and will pass, and an "
        u"anxious person who sits beside you for an hour goes away quieter. The distance is hard "
        u"on those who love you. They bring you a fright or a piece of splendid news, see no "
        u"change in your face, and stop bringing things. Since nothing seems urgent to you, "
        u"preparations are put off, and others lie awake over your affairs in your place. You "
        u"help where you are fetched, but it seldom strikes you to go and look. Put into words "
        u"what your face leaves out: say that you are glad, that it grieves you, that you would "
        u"have missed them. Once in a while ask for aid with something, even if you could do "
        u"without it. People draw close to what they can be of use to, and you give them few "
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
    u"look about for help and your efforts scatter; where many are held, you keep your head, "
    u"though you are harder to help. What the name leaves out can still be learned by anybody "
    u"who knows that it is missing.";

} // namespace modReadings::readings
