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
        u"it is being spoken, and the fourth talk leaves you less sure than the first. Note your "
        u"own view before you ask around, and reread it after."},
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
        u"spoils it. A question sprung on you in a meeting gets only a shrug from you, and the "
        u"right answer comes on the way home. Having once reached a conclusion, you test any new "
        u"fact much more sternly than you tested the old ones. Ask now and then whether you keep "
        u"a plan for its merit or for the labor you have put into it."},
    {5, u"People of this rational thought number have unconventional thoughts. Asked how to widen "
        u"the road, you want to know why everybody drives at eight. You would sooner try three "
        u"wrong answers than wait for the right one, a cheap method in the kitchen and a dear one "
        u"at the office. Your latest discovery always seems the best, until the next one. Give a "
        u"problem one hour more after it stops amusing you, for that is where its flaw tends to "
        u"hide."},
    {6, u"People with rational thought number 6 tend to go into great details regarding any "
        u"matter. You think a vacation through as far as who sits next to whom in the car. Care "
        u"makes you thorough and also partial: the same argument weighs more coming from a friend "
        u"than from a stranger. Worry likes to pass for thinking with you. Ask what you would "
        u"advise if you knew none of the people, then put the names back in."},
    {7, u"People of this rational number have an analytical nature. You test a statement as "
        u"others test ice: who says so, how they know, what follows if it is false. An "
        u"advertisement is to you a puzzle with one piece held back. But you hold back your "
        u"answer until the last doubt is gone, and by then the others have acted. Give it sooner, "
        u"with the doubt attached, and finish checking afterward."},
    {8, u"People of this rational thought number avoid irrelevant details of any matter and come "
        u"to the conclusion soon since they ask at once what a thing is for and what it costs. A "
        u"report of twenty pages you read from the end. You rank the points and strike out most "
        u"of them, and the question on which the rest hangs is answered while the others are at "
        u"the preface. Sometimes the detail you strike out is a person's pride, or a small cost "
        u"that returns every month. Anything that cannot be counted is apt to be counted as "
        u"nothing. Let the slowest thinker in the room speak before you close the matter."},
    {9, u"People with this rational thought number are more spiritually inclined. You see the "
        u"whole before the parts and judge a decision by whom it leaves worse off, strangers "
        u"included. Reasoning that comes out right on paper and treats somebody shabbily is to "
        u"you a mistake in the sum. In a dispute you can say how it will look in ten years, which "
        u"cools the hotheads. Train times and totals slip from you, however, and your mood puts "
        u"its color on the evidence: on a wet Monday everything proves the same sad point. Let "
        u"each hour of thinking end in some act with a place and a time to it, be it only a call "
        u"to an old friend."},
    {11, u"People with this rational thought number are spiritually inclined as well as dynamic in "
         u"nature but they may not be well able to explain how they came by an answer. It reaches "
         u"you whole, in the bath or in the middle of another person's sentence, and you collect "
         u"the reasons afterward. You have been right in this way too often to trust slow methods. "
         u"In a tense week, though, mere nerves speak in the same voice and you obey them with "
         u"equal certainty, and asked for your grounds you take offense, as though your honesty "
         u"had been doubted. Keep a list of your flashes with the date, and see later which came "
         u"true. As for the next one, reason backward from it and find out what else would have to "
         u"be so."},
    {22, u"People with this rational thought number like to dream about bigger things in life. "
         u"Your thinking starts at the far end: you see the street finished, with its lamps lit, "
         u"and reckon back to the first load of gravel. The way back is marked with prices and "
         u"trades, so that your daydreams stand up well to questions. Small questions seem beneath "
         u"the plan, and they lie there until one of them holds up everything. On some days the "
         u"size of it sends you back to your books for one more figure. Cut out a piece that two "
         u"people can finish in a week, and let what goes wrong there correct the drawing."},
};
} // namespace

constinit const Prose rationalThought{
    rows,
    u"This number reveals how your mind works in different situations of life. By knowing your "
    u"way of thought people can get an idea about your personality. This number also reveals "
    u"about your level of intelligence and ability for logical thinking."};

} // namespace modReadings::readings
