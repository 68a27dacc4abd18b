"""The pages of the site: the path of each and the title that it has in a browser."""

import os

UPDATE_PATH = os.environ["ORRAVANE_UPDATE_PATH"]

TITLES = {
    "/": "Orravane: a numerology report for one person",
    "/orravane-help/": "Help – Orravane",
    "/thankyou-for-using-orravane.php": "Thank you for using Orravane",
    UPDATE_PATH: "Update Orravane",
    "/not-found.html": "No such page – Orravane",
}
