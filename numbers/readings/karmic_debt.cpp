#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {13, u"This number signifies the consequences you may face due to the duties avoided in your "
         u"previous lives. Work that was once left to others is handed back to you now, and it has "
         u"grown in the meantime. A job that takes a friend one evening takes you three: the part "
         u"does not fit, the form is returned, the hinge that you mended hangs loose again two "
         u"days later. Some of this is plain bad luck, which everybody meets. Some of it is a step "
         u"that looked too small to matter and was left out. The shortcut, which serves other "
         u"people well enough, fails you oftener than is fair.\r\n"
         u"None of this makes you lazy. You can do the work of two, and only at the very end, "
         u"tired and nearly proud of it, do you let go of the thing too soon: the shelves are up "
         u"and the sawdust lies under them for a month. Whoever shares your house or your shop "
         u"clears it away and says less about it than they think. Such a debt is made good at the "
         u"end of a job, in the ten minutes after you believe that it is over. That is when the "
         u"bolt is found that was never tightened, and the floor is swept by the one who dirtied "
         u"it. The first months are heavy going. Then a guest leans with full weight on something "
         u"you put up, without a glance at the screws, and you notice that you were not worried "
         u"either."},
    {14, u"You don't like to follow conventions and want to try different and innovative ways of "
         u"dealing with a situation. A dispute that others would settle by letter you settle over "
         u"supper, and it often works. But in the lives before this one, freedom was taken without "
         u"asking who would pay for it. Vows were dropped, pleasures were overdone, and those who "
         u"stayed behind had to manage. So change visits you now at the wrong moment. Plans are "
         u"upset in the last week, people back out, the place you have finally settled into is "
         u"closed or sold, and you learn what it is to be the one who counted on something.\r\n"
         u"Your weak spot is the second helping. One late night, one purchase, one flirtation "
         u"brings the next, and when you stop, a promise has slipped. You are sorry at once, and "
         u"charming, so the next lapse is easier to forgive and easier to commit. The debt shrinks "
         u"whenever you stay with something after it has stopped being new: the course to its last "
         u"lesson, the friend through the dull part of a long trouble. It shrinks when you settle "
         u"at home, with a cool head, how much is enough, and when you promise less than you feel "
         u"like promising and keep all of it. The upsets go on for a time. By then there are "
         u"people who have counted on you and been right, and they do not wait to be called."},
    {16, u"You are spiritually inclined and search for the hidden truths of life. Ready answers "
         u"annoy you, and under a clear night sky you go on asking when the others have turned to "
         u"talk of supper. Behind this stands an older account, from a time when the same fine "
         u"mind was used for looking down. Affection was accepted as a tribute and not returned; a "
         u"heart was won for the sake of winning it. Now the pride is to be given up, and as it "
         u"seldom leaves by itself, events lend a hand. You are proved wrong on the very point on "
         u"which you had been lecturing. A promotion that seemed yours by right goes to somebody "
         u"you never counted as a rival. The loss can be borne. Having been seen to lose is "
         u"harder, and your first impulse is to shut the door and tell yourself that nobody there "
         u"was on your level. In this way the lesson moves along with you and waits until you are "
         u"sure of yourself again. It loses much of its force on the day when you say to the "
         u"person concerned that you were wrong, and stop the sentence there, with the reasons "
         u"left out. Being taught does you good as well, by a child with a card trick, say, or a "
         u"colleague whom you never asked anything. In love you keep one room locked, and after "
         u"some years the other person gives up knocking; a small fear, confessed where you would "
         u"normally offer an opinion, turns the key from the inside. Those nearest to you have "
         u"learned to bring you only finished work, because you go through it with a red pencil, "
         u"and so you miss the years in which they were trying. Your hours of silence are no part "
         u"of the debt. And once in a while you catch yourself laughing along with those who saw "
         u"you lose, which is as near to free of it as anyone gets."},
    {19, u"You are a born leader and you have the abilities to overcome any obstacles that come in "
         u"your way. In earlier lives such strength served nobody but its owner: orders were "
         u"given, rivals were pushed aside, and the weak were told to manage. In this life you "
         u"find out how that felt. When the load is heaviest there is no one beside you, for you "
         u"have answered every offer by saying that it is nothing, and after a while people "
         u"believe it. At work the keys, the passwords and the touchy customer are all in your "
         u"care, so nobody can relieve you and nobody has had the chance to learn. The thing that "
         u"was neglected is another person's turn, and the places are easy to find once you look "
         u"for them. A colleague draws breath to speak, and you have gone on to the next point. "
         u"The young driver beside you is told which lane. Somebody's plan is improved until they "
         u"stop calling it theirs. Leave such a decision where it belongs, and stand by it "
         u"afterward, though you would have chosen differently. Lend your push to a shy person who "
         u"has none; one call from you opens what stays shut to them. The debt is lighter than it "
         u"looks, for it asks you to give up nothing but the floor. Your independence is safe, and "
         u"those whom you shut out for years turn out to be good company."},
    {0, u"Not Applicable"},
};
} // namespace

constinit const Prose karmicDebt{
    rows,
    u"The number indicates the mistakes we have made in our previous lifetimes, the results of "
    u"those mistakes are generally felt in this one, often in a place where we believe we have "
    u"done nothing to deserve them. A person who once left the work to others finds that work "
    u"is slow to succeed. One who lived for pleasure sees plans upset, pride meets with a fall, "
    u"and power that was used for oneself ends in standing alone. The four debts are known by "
    u"the numbers 13, 14, 16 and 19, looked for in the date of birth and in the sums of the "
    u"name. Many carry none of them, and the report then says so. A debt of this sort is no "
    u"punishment and nobody is a bad person for having it. You can tell it by its coming back: "
    u"the same quarrel with a different partner, the same trouble at the next place of work, "
    u"with only the names changed. It is paid by doing willingly now, in small matters, what "
    u"was neglected then, and with each payment the trouble loosens its grip. The old habit is "
    u"still the easier one, so this takes patience. Left unpaid, the debt makes easy things "
    u"hard. In numerological terms this burden is called a Karmic Debt."};

} // namespace modReadings::readings
