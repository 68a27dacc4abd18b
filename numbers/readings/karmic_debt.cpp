#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {13, u"This number signifies the consequences you may face due to the duties avoided in your "
         u"previous lives. Work that was once left to others is handed back to you now, and it has "
         u"grown in the meantime. A job that takes a friend one evening takes you three: the part "
         u"does not fit, the form is returned, the hinge you mended on Saturday hangs loose again "
         u"on Tuesday. It looks like bad luck, and you are quick to find a culprit in the tool, "
         u"the boss or the weather. Look closer and there is usually a step you skipped because it "
         u"bored you. The shortcut, which serves other people well enough, fails you nearly every "
         u"time.\r\n"
         u"None of this makes you lazy. You can do the work of two, but in bursts, mostly the "
         u"night before, and the last tenth is left undone: the shelves are up and the sawdust "
         u"lies under them for a month. Whoever shares your house or your shop clears up after you "
         u"and says less about it than they think. A debt of this kind is paid in small coins. "
         u"Stay ten minutes after you believe the work is over, and you will find the bolt that "
         u"was never tightened. Sweep up before you call anyone to look. If a thing goes wrong, do "
         u"it over without a speech. The first months are heavy going. Later you find that what "
         u"you make holds together, and that larger matters are put into your hands."},
    {14, u"You don't like to follow conventions and want to try different and innovative ways of "
         u"dealing with a situation. A dispute that others would settle by letter you settle over "
         u"supper, and it often works. But in the lives before this one, freedom was taken without "
         u"asking who would pay for it. Vows were dropped, pleasures were overdone, and those who "
         u"stayed behind had to manage. So change visits you now at the wrong moment. Plans are "
         u"upset in the last week, people back out, the place you have finally settled into is "
         u"closed or sold, and you learn what it is to be the one who counted on something.\r\n"
         u"Your weak spot is the second helping. One late night, one purchase, one flirtation "
         u"brings the next, and when you stop, a promise has slipped. You are sorry at once and "
         u"charming about it, which makes the next lapse easier to forgive and easier to commit. "
         u"The debt shrinks whenever you stay with something after it has stopped being new: the "
         u"course to its last lesson, the friend through the dull part of a long trouble. Decide "
         u"how much is enough while you are still at home with a cool head. Promise less than you "
         u"feel like promising, and keep all of it. The upsets still come for a time, and those "
         u"you did not let down turn up to carry the other end of the sofa."},
    {16, u"You are spiritually inclined and search for the hidden truths of life. Ready answers "
         u"annoy you, and under a clear night sky you go on asking when the others have turned to "
         u"talk of supper. Behind this stands an older account, from a time when the same fine "
         u"mind looked down on simpler people and took their affection as its due. Love was "
         u"accepted and not returned; a heart was won for the sake of winning it. Now the pride is "
         u"to be given up, and as it seldom leaves by itself, events lend a hand. Something you "
         u"built with great confidence comes down: your standing among colleagues, a friendship, a "
         u"picture of yourself that you had kept for years. What hurts most about the fall is that "
         u"people saw it. Your first impulse then is to shut the door, to tell yourself that "
         u"nobody there was on your level, and to put up the same tower in another street. So the "
         u"lesson comes round again, from a greater height. The better course costs more at the "
         u"start: tell the person concerned that you were wrong, and stop the sentence there, "
         u"before the reasons follow. Let someone with less schooling show you how a thing is "
         u"done, and do it as you were shown. In love you keep one room locked, and after some "
         u"years the other person gives up knocking; confess a small fear where you would normally "
         u"offer an opinion. Those nearest to you have learned to bring you only finished work, "
         u"because you go through it with a red pencil, and so you miss the years in which they "
         u"were trying. Keep your hours of silence, since you think badly without them, but come "
         u"out of them with something for the people at the table. Each time you rebuild there is "
         u"less show in it, and what remains standing is the part that was true from the start."},
    {19, u"You are a born leader and you have the abilities to overcome any obstacles that come in "
         u"your way. In earlier lives such strength served nobody but its owner: orders were "
         u"given, rivals were pushed aside, and the weak were told to manage. In this life you "
         u"find out how that felt. Just when the load is heaviest there is no one beside you, and "
         u"the uncomfortable part is that you arranged it. You move house without a helper, work "
         u"through a fever rather than cancel, and answer every offer by saying that it is "
         u"nothing. After a while the offers stop, and you conclude that people cannot be counted "
         u"on. In an argument you keep going until the other side falls silent, and you take the "
         u"silence for consent. At work the keys, the passwords and the touchy customer are all in "
         u"your care, so nobody can ever relieve you. What was neglected is the other person's "
         u"turn. Leave a decision to a colleague and stand by it afterward, though you would have "
         u"chosen differently. Ask for help while the trouble is still small, and do not correct "
         u"the way it is given. Lend your push to a shy person who has none; one call from you "
         u"opens what stays shut to them. Your independence is safe, and those whom you shut out "
         u"for years turn out to be good company."},
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
