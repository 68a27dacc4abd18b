"""The order of the pass, and what happens to a calculator that fails."""

from numerology.birthday import calc_birthday
from numerology.bridges import calc_hp_bridge, calc_le_bridge, calc_realization
from numerology.challenges import calc_challenges
from numerology.essence import calc_essence
from numerology.int16 import RuntimeFailure
from numerology.karmic_debt import calc_karmic_debt
from numerology.letter_stock import calc_hidden_passion, calc_karmic_lessons
from numerology.life_path import calc_life_path
from numerology.life_path_periods import calc_life_path_periods
from numerology.name_numbers import calc_destiny, calc_inner_dreams, calc_soul_urge
from numerology.name_parts import calc_balance, calc_rational_thought, calc_subconscious_self
from numerology.personal_cycles import (calc_personal_day, calc_personal_month,
                                        calc_personal_year)
from numerology.pinnacles import calc_pinnacles
from numerology.planes import calc_planes
from numerology.rules import gave_up

PASS_ORDER = (
    calc_personal_month,
    calc_birthday,
    calc_hidden_passion,
    calc_life_path_periods,
    calc_personal_year,
    calc_pinnacles,
    calc_subconscious_self,
    calc_life_path,
    calc_destiny,
    calc_karmic_lessons,
    calc_challenges,
    calc_karmic_debt,
    calc_balance,
    calc_personal_day,
    calc_rational_thought,
    calc_hp_bridge,
    calc_le_bridge,
    calc_essence,
    calc_realization,
    calc_inner_dreams,
    calc_planes,
    calc_soul_urge,
)


def run(calculate, state):
    """Runs one calculator. One that fails is abandoned; what it wrote stays."""
    try:
        calculate(state)
    except RuntimeFailure:
        gave_up[calculate.__name__] += 1


def run_all(state):
    for calculate in PASS_ORDER:
        run(calculate, state)
