"""What is written for a topic: a report is a list of (text, bold), one for each write."""

import dataclasses
from collections.abc import Callable

from numerology import proceed_pass as calculators
from numerology.int16 import RuntimeFailure, number
from numerology.rules import reached
from numerology.text import LINE_BREAK

COMPREHENSIVE = "Comprehensive Reading"


@dataclasses.dataclass(frozen=True)
class Topic:
    caption: str  # of the node in the tree
    heading: str
    number: str  # the slot behind the heading; empty for none
    calculate: Callable
    blocks: tuple  # (slot, line breaks behind it), ...


def _standard(caption, heading, entry, calculate):
    return Topic(caption, heading, entry + "Number", calculate,
                 ((entry + "About", 2), (entry + "Text", 0)))


def _pairs(*pairs):
    """Lines, each directly above its text, with an empty line between the pairs."""
    blocks = []
    for line, text in pairs:
        blocks += [(line, 1), (text, 2)]
    blocks[-1] = (blocks[-1][0], 0)
    return tuple(blocks)


def _four(entry):
    return _pairs(*((f"{entry}Label{place}", f"{entry}Text{place}") for place in (1, 2, 3, 4)))


# In the order of the tree.
TOPICS = (
    _standard("Personal Month", "Your Personal Month is: ", "PersonalMonth",
              calculators.calc_personal_month),
    _standard("Hidden Passion Number", "Your Hidden Passion Number is: ", "HiddenPassion",
              calculators.calc_hidden_passion),
    Topic("Life Path Periods", "Your Current LifePath Period Number is: ",
          "LifePathPeriodsNumber", calculators.calc_life_path_periods,
          (("LifePathPeriodsAbout", 2), ("LifePathPeriodsText", 2))
          + _pairs(("PeriodLine1", "PeriodStage1"), ("PeriodLine2", "PeriodStage2"),
                   ("PeriodLine3", "PeriodStage3"))),
    _standard("Personal Year", "Your Personal Year Number is: ", "PersonalYear",
              calculators.calc_personal_year),
    Topic("Pinnacle Phases", "Pinnacle Phases", "", calculators.calc_pinnacles,
          (("PinnacleAbout", 2),) + _four("Pinnacle")),
    _standard("Subconscious Self Number", "Your Subconscious Self Number is: ",
              "SubconsciousSelf", calculators.calc_subconscious_self),
    _standard("Life Path Number", "Your Life Path Number is: ", "LifePath",
              calculators.calc_life_path),
    _standard("Destiny / Expressions Number", "Your Destiny Or Expression Number is: ",
              "Destiny", calculators.calc_destiny),
    _standard("Karmic Lessons Number", "Your Karmic Lessons Number is: ", "KarmicLessons",
              calculators.calc_karmic_lessons),
    Topic("Birthday Number", "Your BirthDay Number is: ", "BirthDay",
          calculators.calc_birthday, (("BirthdayAbout", 2), ("BirthdayText", 0))),
    Topic("Challenge Number", "Your Challenge Number is: ", "ChallengeNumber",
          calculators.calc_challenges, (("ChallengeAbout", 2),) + _four("Challenge")),
    _standard("Karmic Debt Numbers", "Your Karmic Debt Number is: ", "KarmicDebt",
              calculators.calc_karmic_debt),
    _standard("Balance Number", "Your Balance Number is: ", "Balance",
              calculators.calc_balance),
    _standard("Personal Day", "Your Personal Day is: ", "PersonalDay",
              calculators.calc_personal_day),
    _standard("Rational Thought Number", "Your Rational Thought Number is: ",
              "RationalThought", calculators.calc_rational_thought),
    _standard("H/P Bridge Number", "Your HP Bridge Number is: ", "HPBridge",
              calculators.calc_hp_bridge),
    _standard("L/E Bridge Number", "Your LE Bridge Number is: ", "LEBridge",
              calculators.calc_le_bridge),
    _standard("Essence", "Your Essence Number is: ", "Essence", calculators.calc_essence),
    _standard("Realization / Maturity Number", "Your Realization Or Maturity Number is: ",
              "Realization", calculators.calc_realization),
    _standard("Inner Dreams / Personality Number",
              "Your Inner Dreams Or Personality Number is: ", "InnerDreams",
              calculators.calc_inner_dreams),
    Topic("Planes Of Expression / Personal Aspects", "Your Planes of Expression is towards ",
          "PlanesNumber", calculators.calc_planes, (("PlanesText", 2), ("PlanesAbout", 0))),
    _standard("Soul Urge / Heart's Desire Number",
              "Your Soul Urge Or Heart's Desire Number is: ", "SoulUrge",
              calculators.calc_soul_urge),
)

TOPIC_OF_CAPTION = {topic.caption: topic for topic in TOPICS}
TOPIC_OF_CALCULATOR = {topic.calculate: topic for topic in TOPICS}
BEFORE_SLOT = {"PlanesText": "Your Personal Aspects: "}


def _bold(text):
    return (text + 2 * LINE_BREAK, True)


def _number_text(topic, state):
    if topic.number == "BirthDay":
        return str(number(state.profile.BirthDay))
    return str(getattr(state.store, topic.number)) if topic.number else ""


def render(topic, state, last_breaks=0):
    """The topic as the slots hold it; `last_breaks` line breaks end it."""
    report = []
    try:
        report.append(_bold(topic.heading + _number_text(topic, state)))
    except RuntimeFailure:
        reached("rendering: a heading is missing")
    for slot, breaks in topic.blocks:
        text = BEFORE_SLOT.get(slot, "") + getattr(state.store, slot)
        report.append((text + LINE_BREAK * (breaks or last_breaks), False))
    return report


def click(topic, state):
    """What a click on a topic shows: its calculator runs again first."""
    calculators.run(topic.calculate, state)
    return render(topic, state)


def comprehensive_reading(state):
    report = [_bold("Orravane Comprehensive Reading")]
    for calculate in calculators.PASS_ORDER:
        calculators.run(calculate, state)
        report += render(TOPIC_OF_CALCULATOR[calculate], state, last_breaks=2)
    return report
