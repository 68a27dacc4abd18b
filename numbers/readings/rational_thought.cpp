#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"People with this number are full of different innovative ideas. You think by beginning: "
        u"a first sketch lies on the table before the question has been fully stated, and you "
        u"improve it as you go. That a thing has always been done one way is reason enough for "
        u"you to look for another. Checking the proof bores you, and an idea seems truer if it is "
        u"your own, so the advice you fought on Monday comes back on Thursday as your discovery. "
        u"Before you defend a plan, have someone attack it for ten minutes while you only take "
        u"notes. What is left of it will stand."},
    {2, u"People of this rational number like to discuss things in detail with others before "
        u"coming to a conclusion. You think best across a table, watching a face that tells you "
        u"where your reasoning is thin. Who would be hurt counts with you as much as what is "
        u"correct, and your solutions last for that reason. But every opinion sounds right while "
        u"it is being spoken, and the fourth talk leaves you less sure than the first. A friend "
        u"who merely asks, and has no view, sends you home with yours."},
    {3, u"People with rational thought number 3 have a creative bend of mind. Your thoughts come "
        u"as pictures and comparisons, and you often understand a problem only on hearing "
        u"yourself tell it to a friend. A talk about the leaking gutter ends in plans for a "
        u"puppet theater, while the gutter goes on dripping. You persuade easily, and the first "
        u"to be persuaded is you, since a thing well said sounds true to you. Where the joke is "
        u"best, look for the fact that was left out to make room for it."},
    {4, u"People of this rational thought number are full of different ideas. Yours arrive with "
        u"measurements attached: before you agree to move, you have counted the boxes and paced "
        u"off the hall. You reason step by step, and a leap in another person's argument bothers "
        u"you like a missing stair, so you are seldom taken in by well-spoken nonsense. Hurry "
        u"spoils it. A question sprung on you in a meeting gets a shrug, and two days later a "
        u"full page, when a guess has already settled it. Having once reached a conclusion, you "
        u"test any new fact much more sternly than you tested the old ones. A plan that took ten "
        u"evenings is hard to drop, because the evenings argue for it."},
    {5, u"People of this rational thought number have unconventional thoughts. Asked how to widen "
        u"the road, you want to know why everybody drives at eight. You think with your hands, "
        u"and three wrong answers that were tried out teach you more than a right one in a book. "
        u"The next attempt would be nearly right, and is therefore dull, so it stays on your desk "
        u"with a step missing. In other people's puzzles, oddly, the missing step is the first "
        u"thing you see."},
    {6, u"People with rational thought number 6 tend to go into great details regarding any "
        u"matter. You think a vacation through as far as who sits next to whom in the car. Care "
        u"makes you thorough and also partial: the same argument weighs more coming from a friend "
        u"than from a stranger. Worry likes to pass for thinking with you. Ask what you would "
        u"advise if you knew none of the people, then put the names back in."},
    {7,
     u"People of this rational number have an analytical nature. You test a statement as "
     u"others test ice: who says so, how they know, what follows if it is false. So your "
     u"answers are sound and often late, for the last doubt never quite leaves, and a decision "
     u"does not wait for it. \"I am nine tenths sure, and here is the tenth that I doubt\" would "
     u"be worth more to people than the silence they get."},
    {8, u"People of this rational thought number avoid irrelevant details of any matter and come "
        u"to the conclusion soon since they ask at once what a thing is for and what it costs. A "
        u"report of twenty pages is begun at the end. Most points are struck out, and the one on "
        u"which the rest hangs is settled while slower readers are at the preface. Sometimes the "
        u"detail you strike out is a person's pride, or a small cost that returns every month. "
        u"Anything that cannot be counted is apt to be counted as nothing. The slowest thinker in "
        u"the room has noticed, and is looking for words as you close the matter."},
    {9, u"People with this rational thought number are more spiritually inclined. You see the "
        u"whole before the parts and judge a decision by whom it leaves worse off, strangers "
        u"included. A plan that treats somebody shabbily is to you a bad plan. In a dispute you "
        u"can tell how it will look in ten years, which cools the hotheads. From that height, "
        u"though, the choice between two doorknobs hardly seems to want an answer, and somebody "
        u"is standing there holding both. Your mood has a vote as well. A cause that was hopeless "
        u"in the rain is possible in sunshine, and your verdicts on the whole human race are "
        u"mostly passed on an empty stomach."},
    {11, u"People with this rational thought number are spiritually inclined as well as dynamic in "
         u"nature but they may not be well able to explain how they came by an answer. It reaches "
         u"you whole, in the tub or in the middle of another person's sentence, and you collect "
         u"the reasons afterward. You have been right in this way too often to trust slow methods. "
         u"Asked for your grounds, you take offense, and a good answer is lost for want of a way "
         u"to it. You do best to build that way from the far side: if the answer is true, other "
         u"things must be true as well, and those anybody can look up. Now and then one of them is "
         u"not, and then you have caught a mood that was posing as an insight."},
    {22, u"People with this rational thought number like to dream about bigger things in life. "
         u"Your thinking starts at the far end: you see the street finished, with its lamps lit, "
         u"and count back to the first load of gravel. The way back is marked with prices and "
         u"trades, so that your daydreams stand up well to questions. It is you who give way. On "
         u"some nights the thing looks too large for one head, and you go back to your books for "
         u"another figure, although the figures were in order a month ago. A piece of it that two "
         u"people can finish in a week teaches you more than the books, and frightens nobody."},
};
} // namespace

constinit const Prose rationalThought{
    rows,
    u"This number reveals how your mind works in different situations of life. By knowing your "
    u"way of thought people can get an idea about your personality. This number also reveals "
    u"about your level of intelligence and ability for logical thinking."};

} // namespace modReadings::readings
