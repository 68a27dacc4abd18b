"""Random names, dates and clocks: people as they come, and texts that no list would offer."""

from numerology.digits import digit_sum, fold, reduce_keep_master
from numerology.letters import letter_value
from numerology.months import NAMES as MONTHS
from numerology.months import month_value
from numerology.text import units

VOWELS = "AEIOU"
CAPITALS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
FIRST = ("ANNA", "BEN", "CLARA", "DAVID", "ELENA", "FRED", "GRACE", "HUGO", "IDA", "JOHN", "KIM",
         "LEO", "MARIA", "NINA", "OAK", "PAUL", "QUINN", "ROSS", "SKY", "TOM", "UMA", "VERA",
         "WALT", "XENA", "YVES", "ZOE", "MARY ANN", "JEAN-LUC", "O", "I")
LAST = ("ADAMS", "BAKER", "COX", "DIAZ", "EVANS", "FOX", "GREY", "HILL", "IVES", "JONES", "KENT",
        "LEE", "MOSS", "NASH", "OWEN", "PYM", "QUICK", "RIVER", "SMITH", "TURNER", "UNGER",
        "VANCE", "WINTER", "XU", "YORK", "ZIMMER", "O'HARA", "VAN DYK", "E", "FLYNN", "LYNN")
FOREIGN = ("ÉLODIE", "ÅSA", "STRASSE", "ÑÚÑEZ", "МАРИЯ", "ΣΟΦΙΑ", "名前", "İPEK", "ŒUVRE", "A\u0301NNA",
           "\U0001f600ANN", "\U00010400", "B\U0001d538A", "\ud83d", "\ude00B", "A\u00a0B", "\u00a0",
           "\uff21NNA", "K\u200dIM", "\x00", "A\tB", "\\u0041", "\"")
OTHER_MONTHS = ("März", "janvier", "mayo", "Ιούνιος", "一月", "january", "MAY", "June.", "10", "5", "",
                "Sept", " May", "May ", "  October  ", "Mayor")
ODD_DAYS = ("0", "32", "49", "58", "99", "100", "199", "327", "-5", "-1", "+7", " 9", "9 ", " 12 ",
            "1 2", "007", "013", "12.5", "1e1", "0x1F", "", " ", "abc", "l3", "1O", "-", "+", "--5",
            "32767", "32768", "-32768", "-32769", "99999", "00000000000012", "٣", "３", "²", "½",
            "9" * 3640, "9" * 3641, "9" * 40, "\u00a07")
ODD_YEARS = ("", " ", "abc", "-100", "+1990", " 1990", "1990 ", "19 90", "0", "1", "40000", "32767",
             "32768", "-32768", "99999999999999999999", "1990.0", "MCMXC", "２０００", "0001990",
             "9" * 3641, "1980\x00")


def _letters(rng, alphabet, fewest, most):
    return "".join(rng.choice(alphabet) for _ in range(rng.randint(fewest, most)))


def _few_letters(rng):
    """Of one to three different letters: ties, gaps, leading planes."""
    return _letters(rng, rng.sample(CAPITALS, rng.randint(1, 3)), 1, 8)


def _long(rng):
    """More than a plane can count."""
    return _letters(rng, rng.sample(CAPITALS, rng.randint(1, 4)), 200, 1400)


def _huge(rng):
    """About as long as 16 bits can count, or as can be totalled."""
    letters = rng.choice(("R", "RI", "Y", "A", "-", "AB", "E", "QHZRI"))
    length = rng.choice((3640, 3641, 4681, 4682, 5500, 32767, 32768, 33000))
    return (letters * length)[:length]


def _with_signs(rng):
    return "".join(rng.choice((letter, letter + rng.choice(" -'.0123456789")))
                   for letter in _letters(rng, CAPITALS, 1, 7))


def _untrimmed(rng):
    return " " * rng.randint(0, 2) + rng.choice(FIRST) + " " * rng.randint(1, 2)


KINDS = (
    (30, lambda rng: rng.choice(FIRST)),
    (20, lambda rng: rng.choice(LAST)),
    (14, lambda rng: _letters(rng, CAPITALS, 1, 10)),
    (12, _few_letters),
    (4, lambda rng: _letters(rng, CAPITALS, 12, 60)),
    (4, lambda rng: _letters(rng, VOWELS, 1, 5)),
    (4, lambda rng: _letters(rng, "BCDFGHJKLMNPQRSTVWXYZ", 1, 6)),
    (3, lambda rng: _letters(rng, "YBLNRT", 1, 5)),
    (3, lambda rng: _letters(rng, "F", 1, 3)),
    (3, lambda rng: _letters(rng, "FL", 1, 5)),
    (4, _with_signs),
    (5, lambda rng: rng.choice(FIRST) + rng.choice("123456789")),
    (2, lambda rng: _letters(rng, "0123456789", 1, 4)),
    (4, lambda rng: units(rng.choice(FOREIGN))),
    (2, lambda rng: units(rng.choice(FOREIGN)) + rng.choice(LAST)),
    (2, lambda rng: _letters(rng, CAPITALS.lower() + "l", 1, 4)),
    (2, _untrimmed),
    (2, lambda rng: " " * rng.randint(0, 3)),
    (1, _long),
    (0.5, _huge),
)
_WEIGHTS = [weight for weight, _ in KINDS]


def name(rng):
    [(_, make)] = rng.choices(KINDS, _WEIGHTS)
    return make(rng)


def day(rng):
    if rng.random() < 0.08:
        return rng.choice(ODD_DAYS)
    if rng.random() < 0.2:
        return rng.choice(("11", "13", "13", "14", "16", "19", "22", "28", "29", "31"))
    return str(rng.randint(1, 31))


def month(rng):
    return rng.choice(OTHER_MONTHS if rng.random() < 0.1 else MONTHS)


def year(rng):
    if rng.random() < 0.05:
        return rng.choice(ODD_YEARS)
    return str(rng.randint(1900, 2050))


def person(rng):
    """First, middle and last name, month, day and year of birth."""
    middle = name(rng) if rng.random() < 0.4 else ""
    return (name(rng), middle, name(rng), month(rng), day(rng), year(rng))


def without_value(rng):
    """A person whose date counts nothing, and perhaps neither does the first name."""
    return (rng.choice((name(rng), "12")), "", name(rng), rng.choice(OTHER_MONTHS),
            rng.choice(("", "0", "00")), rng.choice(("", "0", "000")))


def without_letters(rng):
    """A person whose names count nothing, and who may not be born yet."""
    names = rng.choices(("", "12", "-", "É", "名前", "3A", "'N", " "), k=3)
    return (*names, month(rng), day(rng), rng.choice(("2099", "2050", "2026", year(rng))))


def _of_great_sums(rng):
    """A date whose digit sums have two digits even after a fold."""
    return (name(rng), "", name(rng), month(rng), "9" * rng.randint(9, 12),
            "9" * rng.randint(2, 12))


def _of_great_year(rng):
    """A year over all that a list would offer, with a digit sum that folds to 11."""
    while True:
        chosen = rng.randint(2999, 32767)
        if sum(map(int, str(chosen))) in (28, 29, 37, 38):
            return (name(rng), name(rng), name(rng), month(rng), rng.choice("0129"), str(chosen))


def _at_the_limit(rng):
    """An age, or a sum, at the limit of 16 bits; clocks show 2026 for it."""
    return (rng.choice(("A", "RIRI", "OF", "J-J")), rng.choice(("", "Q")), rng.choice(LAST),
            month(rng), rng.choice(("1", "9", "-1", "32760", "32767", "-32768")),
            rng.choice(("-30741", "-30742", "-30740", "32767", "32766", "32759", "-32768")))


def _of_masters(rng):
    """Life Path 22 beside Destiny 7, or the other way round."""
    while True:
        someone = (rng.choice(FIRST), "", rng.choice(LAST), rng.choice(MONTHS),
                   str(rng.randint(1, 31)), str(rng.randint(1900, 2050)))
        total = sum(map(letter_value, someone[0] + someone[2]))
        born = fold(digit_sum(someone[4])) + month_value(someone[3]) + fold(digit_sum(someone[5]))
        if {reduce_keep_master(total), reduce_keep_master(born)} == {7, 22}:
            return someone


def _at_an_age(rng):
    """A person at the border of a period in 2026, or in the year of birth."""
    age = rng.choice((0, 0, 1, *range(23, 32), *range(51, 61)))
    return (name(rng), name(rng), name(rng), month(rng), day(rng), str(2026 - age))


def _of_great_total(rng):
    """A first name whose letters total about what 16 bits hold."""
    first = rng.choice(("R" * 3640 + "P", "R" * 3640 + "A", "R" * 3641, "Y" * 4681, "Y" * 4682,
                        "Y" * 4690, "E" * 4700 + "Y" * 1000))
    return (first, "", rng.choice(("", "Y", "FLYNN")), month(rng), day(rng), year(rng))


CORNERS = (without_value, _of_great_sums, _of_great_year, _at_the_limit, _of_masters, _at_an_age,
           _of_great_total)
CORNER_WEIGHTS = (8, 10, 6, 8, 6, 6, 4)


def corner(rng):
    """A person and a clock for rules that are seldom reached."""
    [make] = rng.choices(CORNERS, CORNER_WEIGHTS)
    someone = make(rng)
    present = 0 if rng.random() < 0.1 else 2026
    return someone, ((present, rng.randint(1, 12), rng.randint(1, 28)),)


def _date(rng):
    if rng.random() < 0.03:
        return (rng.choice((0, 1, 9, 99, 999, 10000, 32767, -1, -32767)), 6, 15)
    return (rng.randint(1900, 2099), rng.randint(1, 12), rng.randint(1, 28))


def clock(rng):
    """The dates that one reading of the clock after the other shows; the last one stays."""
    if rng.random() < 0.7:
        return (_date(rng),)
    if rng.random() < 0.5:
        present = rng.randint(1990, 2060)  # around midnight on New Year's Eve
        return tuple(rng.choice(((present, 12, 31), (present + 1, 1, 1)))
                     for _ in range(rng.randint(2, 12)))
    return tuple(_date(rng) for _ in range(rng.randint(2, 12)))
