"""Planes of Expression: how the letters of the name share themselves among four planes."""

from numerology.int16 import HIGHEST, RuntimeFailure, int16
from numerology.rules import reached
from numerology.text import LINE_BREAK

PLANES = {"Mental": "HAJNPGL", "Physical": "WEDM", "Emotional": "ROIZBSTX",
          "Intuitive": "FKQUYCV"}

# The highest share that is weak, and the highest that is average.
LIMITS = {"Mental": (25, 32), "Physical": (17, 23), "Emotional": (20, 34), "Intuitive": (11, 17)}


def _rating(store, plane):
    """The word for a plane's share, or None where the earlier word stays."""
    share = getattr(store, plane + "Percent")
    weak, average = LIMITS[plane]
    if share <= weak:
        return "Weak"
    if share > average:
        return "Strong"
    if plane == "Physical":
        # This band looks at the mental share for its lower limit.
        if store.MentalPercent < 18:
            reached("Planes: an average physical share without a rating")
            if store.PhysicalRating:
                reached("Planes: the physical rating of an earlier name stays")
            return None
        reached("Planes: an average physical share with a rating")
    return "Average"


def calc_planes(state):
    store = state.store
    for plane in PLANES:
        setattr(store, plane + "Label", plane + " Ability ")
    name = state.profile.whole_name()
    length = len(name)
    if length > HIGHEST:
        reached("Planes: a name too long")
        raise RuntimeFailure
    for plane, letters in PLANES.items():
        hundredfold = int16(sum(map(name.count, letters)) * 100,
                             "Planes: a hundredfold count")
        if length == 0:
            reached("Planes: an empty name")
            raise RuntimeFailure
        setattr(store, plane + "Percent", hundredfold // length)

    shares = {plane: getattr(store, plane + "Percent") for plane in PLANES}
    leaders = [plane for plane in PLANES if shares[plane] == max(shares.values())]
    if len(leaders) == 1:
        store.PlanesNumber = leaders[0]
    else:
        reached("Planes: a tie names no plane")
        if store.PlanesNumber:
            reached("Planes: a tie leaves the plane of an earlier name")

    for plane in PLANES:
        word = _rating(store, plane)
        if word is not None:
            setattr(store, plane + "Rating", word)

    lines = [getattr(store, plane + "Label") + str(shares[plane]) + " - "
             + getattr(store, plane + "Rating") for plane in PLANES]
    store.PlanesText = (" " + LINE_BREAK).join(lines)
    state.set_fixed("PlanesAbout")
