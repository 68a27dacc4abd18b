#include "numbers/readings.h"

namespace modReadings::readings {

namespace {
constexpr Reading rows[] = {
    {1, u"This is the day when your primary concern is about yourself, your personal goals and "
        u"desires. Put the thing you want at the top of the morning, before the messages, because "
        u"by noon other people have found uses for you. A bold request is well timed. You sound "
        u"sharper than you feel, above all on the phone with someone who follows rules. Say what "
        u"you are after in one sentence and add a please."},
    {2, u"This is the day to be social and develop friendly relationship with others. Call "
        u"somebody who has been quiet lately, and let them do the talking. Leave the touchy "
        u"subject for tomorrow; tonight it would sting you both."},
    {3, u"You will get fun from some lively recreational activities on this day. A dance or a "
        u"noisy lunch with people who laugh at the same things does more for you than an early "
        u"night. Your tongue is quick and the table listens, so an awkward request, put lightly "
        u"today, is granted before it has been weighed. Be on your way home before the fun turns "
        u"into noise, and leave one good story for next time."},
    {4, u"This is the day of maximum hard work to make a success of all your business affairs. "
        u"Take the heaviest job first and shut the door on the rest until it is done. The figures "
        u"repay a second reading. The machine or the clerk will be slow, so bring something to do "
        u"meanwhile. Stop at the hour you set; the mistakes come after it."},
    {5, u"On this day you would love to travel to distant places for relaxation. If the far "
        u"country is out of reach, ride some bus to its last stop, order lunch by pointing, sit "
        u"in a park where nobody knows you. A plan is changed at short notice, rather to your "
        u"taste. Promise nothing for next month while you are in this mood."},
    {6, u"This is a day to maintain balance and harmony in life. Work asks for one hour more and "
        u"somebody at home counts on the same hour; decide at lunch who gets it and tell the "
        u"other. Flowers on the table and an apology for this morning's tone take little time and "
        u"change the evening. You notice what others do wrong with the dishes or the homework. "
        u"Make one of these remarks and swallow the rest. If a friend calls in tears after nine, "
        u"listen until they are calm and then go to bed."},
    {7, u"There is a tendency to lose your calm and feel disturbed on this day. Noise and "
        u"questions get on your nerves, and you read coldness into a message that was only short. "
        u"Answer it tomorrow. A turn around the block at noon sets you right, and so does a task "
        u"such as sorting a drawer, which asks for no opinion."},
    {8, u"This is a day to take some important professional decisions in life. Have the facts on "
        u"one sheet, hear the person who disagrees, and decide before the afternoon is over. What "
        u"you put off is soon decided by somebody with less care. Tonight you are off duty, and "
        u"nobody at the table reports to you."},
    {9, u"This is a day to cherish the companionship of others. Sit down with an old friend and "
        u"ask about the thing they mentioned last time. You are inclined to give away your coat "
        u"and your lunch money today; keep the bus fare. At the goodbye, say the warm thing that "
        u"you usually save for cards."},
};
} // namespace

constinit const Prose personalDay{
    rows,
    u"You have to be aware and careful since the things done on this day will lay the "
    u"foundation for the days to come. The work you do, your thoughts during the day will set "
    u"the platform for the days to come. You will have to pay close attention to the activities "
    u"of the day."};

} // namespace modReadings::readings
