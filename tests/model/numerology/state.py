"""All that lives as long as the process: the person, the slots of all results, the clock."""

from numerology.rules import no_row_reached, reached
from numerology.text import units


class Profile:
    """The person being read: six texts."""

    SLOTS = ("FirstName", "MiddleName", "LastName", "BirthMonth", "BirthDay", "BirthYear")

    def __init__(self, *texts):
        for slot, text in zip(self.SLOTS, texts or [""] * 6, strict=True):
            setattr(self, slot, units(text))

    def whole_name(self):
        return self.FirstName + self.MiddleName + self.LastName


NUMBER_SLOTS = """
    PersonalMonthNumber HiddenPassionNumber LifePathPeriodsNumber
    PinnacleNumber1 PinnacleNumber2 PinnacleNumber3 PinnacleNumber4
    SubconsciousSelfNumber LifePathNumber DestinyNumber KarmicDebtNumber BalanceNumber
    PersonalDayNumber RationalThoughtNumber HPBridgeNumber LEBridgeNumber EssenceNumber
    RealizationNumber InnerDreamsNumber SoulUrgeNumber
    LifePathDaySum DestinyRaw SoulUrgeRaw InnerDreamsRaw BirthdayRaw
    MentalPercent PhysicalPercent EmotionalPercent IntuitivePercent
    ScratchSum YUsedAsVowel BirthDayValue PeriodNumber1 PeriodNumber2 PeriodNumber3 PeriodRoot
""".split()

TEXT_SLOTS = """
    PersonalMonthText PersonalMonthAbout BirthdayText BirthdayAbout
    HiddenPassionText HiddenPassionAbout
    LifePathPeriodsText PeriodLine1 PeriodStage1 PeriodLine2 PeriodStage2 PeriodLine3
    PeriodStage3 LifePathPeriodsAbout
    PersonalYearNumber PersonalYearText PersonalYearAbout
    PinnacleLabel1 PinnacleLabel2 PinnacleLabel3 PinnacleLabel4
    PinnacleText1 PinnacleText2 PinnacleText3 PinnacleText4 PinnacleAbout
    SubconsciousSelfText SubconsciousSelfAbout LifePathText LifePathAbout
    DestinyText DestinyAbout KarmicLessonsNumber KarmicLessonsText KarmicLessonsAbout
    ChallengeNumber ChallengeLabel1 ChallengeLabel2 ChallengeLabel3 ChallengeLabel4
    ChallengeText1 ChallengeText2 ChallengeText3 ChallengeText4 ChallengeAbout
    KarmicDebtText KarmicDebtAbout BalanceText BalanceAbout PersonalDayText PersonalDayAbout
    RationalThoughtText RationalThoughtAbout HPBridgeText HPBridgeAbout
    LEBridgeText LEBridgeAbout EssenceText EssenceAbout RealizationText RealizationAbout
    InnerDreamsText InnerDreamsAbout PlanesNumber PlanesText PlanesAbout
    SoulUrgeText SoulUrgeAbout
    MentalLabel PhysicalLabel EmotionalLabel IntuitiveLabel
    MentalRating PhysicalRating EmotionalRating IntuitiveRating
    ScratchLetter CurrentDayText CurrentYearText MissingDigitsScratch
""".split()


class Store:
    """Every slot by its name. ScratchIndex is left out: it is the index of whatever walk came
    last, nothing reads it, and nothing says where a loop leaves it."""

    def __init__(self):
        for slot in NUMBER_SLOTS:
            setattr(self, slot, 0)
        for slot in TEXT_SLOTS:
            setattr(self, slot, "")


class Clock:
    """Shows one date after another: each reading moves it on, until the last date stays."""

    def __init__(self, *dates):
        self.dates = list(dates)

    def _read(self):
        if len(self.dates) > 1:
            reached("clock: moves while a calculator runs")
            return self.dates.pop(0)
        return self.dates[0]

    def year(self):
        return self._read()[0]

    def month(self):
        return self._read()[1]

    def day(self):
        return self._read()[2]


class State:
    """What a calculator works on."""

    def __init__(self, book):
        self.book = book
        self.profile = Profile()
        self.store = Store()
        self.clock = Clock((2026, 11, 16))

    def select(self, slot, number, table=None):
        """Puts the reading of a number into a text slot; False, and nothing is written, where
        the number has none. `table` is the slot that the book lists the readings under."""
        text = self.book.reading(table or slot, number)
        if text is None:
            no_row_reached(slot, getattr(self.store, slot))
            return False
        setattr(self.store, slot, text)
        return True

    def set_fixed(self, *slots):
        """Puts the fixed texts of these slots into them."""
        for slot in slots:
            setattr(self.store, slot, self.book.fixed(slot))
