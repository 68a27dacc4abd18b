#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
// "Plane" or "Planes", "expression" or "Expression", a closing blank or none: each heading
// is its own literal. The physical plane comes first here and nowhere else.
constexpr AboutPart parts[] = {
    {u"A person 's total life is divided into 4 parts. They are the body, the mind, "
     u"the heart and the intuition, and each of them deals with the world in its own "
     u"manner. Suppose that the lights go out in the middle of supper. The body feels "
     u"its way to the candles, the mind asks which fuse it was, the heart listens for "
     u"whoever is frightened, and intuition has had an uneasy feeling about that lamp "
     u"since spring. All four live in you, though one is quicker to speak than the "
     u"rest. Every letter of your name belongs to one of these planes, and the figures "
     u"above give the share, in a hundred, that each plane holds, together with a word "
     u"for its strength. The scales differ, because some planes have more letters than "
     u"others: a share that is strong in one can be weak in the next. The plane with "
     u"the largest share is the one that answers first when you have no time to "
     u"choose. It is your readiest gift, and also the one you use too often. A weak "
     u"plane is not an empty one. You reach it by a detour, later than other people "
     u"do, and are grateful for company that has it close at hand. If two planes are "
     u"nearly even, you will know the dispute between them from many an evening of "
     u"wanting two things at once. Read all four parts, for what you lack explains as "
     u"much as what you have.",
     2},
    {u"Plane of expression: Physical (body):", 1},
    {u"People with a dominant physical plane of expression have a basic strong "
     u"constitution. They trust what can be lifted, tasted or measured, and so do you "
     u"if this plane leads. You learn a machine by using it and leave the booklet in "
     u"the drawer. A long explanation makes your feet restless, and you believe in a "
     u"plan only after you have walked over the ground. Bad news sends you off to mop a "
     u"floor or scrub a pot, and you feel better before you have had a thought about "
     u"it; sitting still with a worry wears you down. People like to work beside you, "
     u"because you have taken one end of the piano while the rest are still discussing "
     u"the stairs.",
     1},
    {u"You want to lead life in an unique and an innovative way. Whatever you make has "
     u"to show your own hand, and you would choose an odd solution that works over the "
     u"usual one. In return you can be blunt: a hint passes you by, and a friend who "
     u"came to be listened to goes home well fed and with the same sorrow. Rest "
     u"has to be ordered like a task or it does not happen. With little of this plane, "
     u"you forget meals over a book and let errands pile up; a walk at the same hour "
     u"every day brings you back to the ground.",
     2},
    {u"Planes of expression: Mental (mind): ", 1},
    {u"The Mental Plane of Expression describes your thought process and how your mind "
     u"works in different situations. With much of it you want the reason before the "
     u"instruction, and you keep asking until it comes. You compare, look ahead, and "
     u"remember who said what. In a quarrel you hold on to the facts when the other "
     u"person would trade them all for a kind word. Your worries are thoughts as well, "
     u"and a decision that was sound at noon is taken apart again at midnight. With "
     u"little of it you learn from example, decide fast, and defend good decisions "
     u"poorly; three points on a slip of paper carry you through a hard talk.",
     2},
    {u"Plane of Expression: Emotional (heart): ", 1},
    {u"People with dominant Emotional plane of expression have their heart rule their "
     u"emotional senses. A choice is right for you when it feels right, and it changes "
     u"as the feeling changes. You hear the coolness in a voice on the telephone "
     u"before you take in the words. Gloom in a room becomes your own gloom, and a "
     u"happy child on a bus can save your morning. For a boss who remembers your name "
     u"you do twice the work, and a curt note spoils a week. People tell you their "
     u"troubles because you do not hurry them. The danger is your speed at the "
     u"hottest moment: leave the angry letter in the drawer until you have eaten and "
     u"slept. Where this plane is weak you feel as much as others do, only late, two "
     u"days after the farewell and alone in the car. You are then thought cool, so "
     u"write the few lines that you could not say on the day.",
     2},
    {u"Plane of Expression: Intuitive (spirit):", 1},
    {u"People with a dominant Spiritual Plane of Expression are highly sensitive. You "
     u"know things that nobody told you: that the guest is unhappy, that the bargain "
     u"has a hook in it. Pressed for grounds you have none, and too often you give way "
     u"to the person with the numbers. Noise and haggling drain you, and an hour alone "
     u"sets you right. Be careful in love and in dislike, where a wish likes to dress "
     u"up as a hunch. With little of this plane, you go by what is said and shown and "
     u"are amazed at turns others saw coming. Ask one of those others for a first "
     u"impression, and take it seriously.",
     2},
};
} // namespace

constinit const std::span<const AboutPart> planesAboutParts = parts;

} // namespace modReadings::readings
