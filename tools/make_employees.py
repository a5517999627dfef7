#!/usr/bin/env python3
"""Write data/employees.cfg, the pool of job candidates for Zorvane.

Deterministic: the same seed always gives the same file. Standard library only.

Each line of the file is   name|experience|reliability|ambition
  experience   the highest position the person can do: 1 to 7, a few 8 to 10
  reliability  1 to 10, how often the person turns up for work
  ambition     1 to 10, how fast the person learns and how soon the person
               gets restless when idle or over-qualified

The candidates are drawn from a handful of kinds of people so that hiring is
a real choice. Experience makes training cheaper, so experienced people tend
to be the less dependable ones, and the rare experienced and reliable person
is ambitious and will not sit idle for long.

Usage:  python3 tools/make_employees.py [output file]
The default output is data/employees.cfg beside this tools folder.
"""

import random
import sys
from pathlib import Path

SEED = 1998
CANDIDATES = 320
MAX_NAME_LENGTH = 18  # the staff grid's name column holds about this many

FIRST_NAMES = [
    # English and American
    "Arthur", "Beatrice", "Clifford", "Dolores", "Edna", "Franklin", "Gloria",
    "Harold", "Irene", "Jasper", "Kathleen", "Lloyd", "Mabel", "Norman",
    "Opal", "Percy", "Rosalind", "Stanley", "Thelma", "Vernon", "Wanda",
    "Wilbur", "Hazel", "Cecil", "Marjorie", "Dwight", "Lorraine", "Russell",
    "Eunice", "Floyd", "Georgia", "Hank", "Ivy", "June", "Lois", "Marvin",
    "Nell", "Otis", "Pearl", "Roy", "Sadie", "Travis", "Vera", "Wade",
    "Dottie", "Earl", "Bonnie", "Chester", "Millie", "Tammy",
    # Spanish and Latin American
    "Alejandro", "Beatriz", "Carmen", "Diego", "Esperanza", "Fernando",
    "Graciela", "Hector", "Inez", "Javier", "Lupe", "Marisol", "Nestor",
    "Paloma", "Ramon", "Soledad", "Tomas", "Ximena", "Yolanda", "Rafael",
    # East, South and Southeast Asian
    "Aiko", "Bao", "Daisuke", "Hiroshi", "Jin", "Kenji", "Lan", "Mei",
    "Minh", "Priya", "Rajesh", "Sanjay", "Sunita", "Tuan", "Yuki", "Anjali",
    "Arjun", "Kavya", "Naoko", "Ravi", "Takeshi", "Wei", "Jae", "Deepa",
    "Hyun", "Mariel",
    # African
    "Abebe", "Adaeze", "Amara", "Chidi", "Femi", "Kwame", "Nia", "Thabo",
    "Zola", "Kofi", "Ama", "Jabari", "Nkechi", "Sipho", "Wanjiru", "Tendai",
    "Yaw", "Folake", "Kwesi", "Makena",
    # European
    "Anneliese", "Bjorn", "Dagmar", "Elke", "Franz", "Giuseppe", "Henrik",
    "Ingrid", "Jurgen", "Lars", "Magda", "Nikolai", "Olga", "Piotr", "Rolf",
    "Sven", "Tatiana", "Ulrike", "Vaclav", "Zofia", "Matteo", "Chiara",
    "Luca", "Sinead", "Declan", "Siobhan", "Padraig", "Aoife", "Fergus",
    "Margit", "Mirela", "Dragan", "Bogdan", "Ilse",
    # Middle Eastern and North African
    "Amir", "Dalia", "Farid", "Layla", "Nadia", "Omar", "Rania", "Samir",
    "Tariq", "Yasmin", "Karim", "Leila", "Hassan", "Noura", "Ziad",
    # Pacific, Hebrew and more
    "Aroha", "Tane", "Kalani", "Leilani", "Keoni", "Ayelet", "Avi", "Talia",
    "Moshe", "Ilana",
]

LAST_NAMES = [
    # English and American
    "Abernathy", "Birch", "Crumley", "Dimsdale", "Ellsworth", "Fairweather",
    "Gubbins", "Hatfield", "Ingersoll", "Jessup", "Kettleman", "Lumley",
    "Merriweather", "Nutley", "Oakes", "Pettibone", "Quimby", "Rowntree",
    "Stubbs", "Tidwell", "Underhill", "Vickers", "Whitlock", "Yardley",
    "Pickering", "Cobb", "Haverford", "Larkin", "Penwright", "Thistlewood",
    "Bramble", "Hargrove", "Puckett", "Wimberly", "Tuttle", "Prewitt",
    "Gaskell", "Buckley", "Dunmore", "Fenwick",
    # Spanish and Latin American
    "Alvarado", "Bustamante", "Cardenas", "Delgado", "Echeverria", "Fuentes",
    "Gallardo", "Ibarra", "Jimenez", "Lozano", "Medina", "Navarro", "Ochoa",
    "Pacheco", "Quintero", "Rios", "Saavedra", "Tovar", "Villanueva",
    "Zamora",
    # East, South and Southeast Asian
    "Banerjee", "Chowdhury", "Deshpande", "Iyer", "Nair", "Patel", "Reddy",
    "Srinivasan", "Agarwal", "Nakamura", "Takahashi", "Fujimoto", "Okada",
    "Hayashi", "Watanabe", "Nguyen", "Tran", "Pham", "Zhang", "Liu",
    "Huang", "Zhou", "Lin", "Park", "Choi", "Jung", "Kang", "Yoon", "Santos",
    "Reyes", "Dizon", "Bautista",
    # African
    "Adeyemi", "Okafor", "Mensah", "Boateng", "Owusu", "Nwosu", "Eze",
    "Kamau", "Mwangi", "Otieno", "Dlamini", "Ndlovu", "Mokoena", "Diallo",
    "Traore", "Haile", "Tesfaye", "Abara",
    # European
    "Andersson", "Bergstrom", "Lindqvist", "Halvorsen", "Johansen",
    "Kowalski", "Nowak", "Wisniewski", "Zielinski", "Novak", "Horvat",
    "Schreiber", "Hoffmann", "Vogel", "Krause", "Richter", "Moretti",
    "Esposito", "Ferrara", "Lombardi", "Colombo", "Rossi", "Conti",
    "Marchetti", "Dubois", "Lefebvre", "Moreau", "Fontaine", "Girard",
    "Papadopoulos", "Georgiou", "Petrov", "Volkov", "Sokolov", "O'Malley",
    "Brennan", "Gallagher", "Kavanagh", "Donnelly", "McTavish", "Fraser",
    "Lindgren", "Virtanen", "Korhonen",
    # Middle Eastern and Turkish
    "Haddad", "Khoury", "Saleh", "Mansour", "Farouk", "Aziz", "Rahimi",
    "Karimi", "Tehrani", "Yilmaz", "Demir", "Ozturk", "Cohen", "Levi",
    "Friedman", "Shapiro", "Rosen",
    # Pacific
    "Kahananui", "Makoa", "Ngata", "Fonoti",
]

# Kinds of candidate: (label, weight, experience, reliability, ambition), each
# stat given as (lowest, highest, most likely).
KINDS = [
    # Green: cheap to find, expensive to train, often willing and steady.
    ("rookie", 30, (1, 2, 1), (2, 10, 6), (1, 10, 5)),
    # The backbone: middling experience, dependable, content to stay put.
    ("steady", 25, (2, 4, 3), (5, 9, 7), (2, 6, 4)),
    # Been everywhere: cheap to train, but often missing.
    ("veteran", 18, (5, 7, 6), (2, 7, 4), (1, 6, 3)),
    # Climbs fast, grows restless fast.
    ("hotshot", 12, (3, 6, 4), (2, 7, 5), (8, 10, 9)),
    # Shows up when it suits.
    ("drifter", 8, (1, 5, 2), (1, 3, 2), (1, 10, 4)),
    # The rare find: skilled and dependable, and will not sit idle.
    ("gem", 3, (5, 7, 6), (8, 10, 9), (7, 10, 8)),
    # More than any post needs; trained for next to nothing.
    ("overqualified", 4, (8, 10, 8), (2, 7, 4), (1, 8, 5)),
]

def draw(rng, span):
    """A whole number from lowest to highest, leaning towards the likeliest."""
    low, high, mode = span
    if low == high:
        return low
    value = int(round(rng.triangular(low - 0.49, high + 0.49, mode)))
    return max(low, min(high, value))


def make_names(rng, count):
    names = []
    seen = set()
    while len(names) < count:
        name = rng.choice(FIRST_NAMES) + " " + rng.choice(LAST_NAMES)
        if name in seen or len(name) > MAX_NAME_LENGTH:
            continue
        seen.add(name)
        names.append(name)
    return names


def make_candidates(rng, count):
    weights = [kind[1] for kind in KINDS]
    people = []
    for name in make_names(rng, count):
        _, _, exp, rel, amb = rng.choices(KINDS, weights=weights)[0]
        people.append((name, draw(rng, exp), draw(rng, rel), draw(rng, amb)))
    return people


HEADER = """\
# employees.cfg - the job candidates of Zorvane.
#
# One candidate a line:  name|experience|reliability|ambition
#   name         first and last name; a name may not hold a "#" or a "|"
#   experience   the highest position the person can do, 1 to 7
#                (more than 7 is over-qualified for every post)
#   reliability  1 to 10: how often the person comes to work
#   ambition     1 to 10: how fast the person learns, and how soon
#                the person grows restless without work
#
# Everything from a "#" to the end of the line is a comment.
# Write whole numbers; a line with an empty name or with a number
# below 1 is passed over. Keep at least ten different names.
#
# Made by tools/make_employees.py (seed {seed}): change the script and
# run it again rather than editing this file by hand.
"""


def main():
    here = Path(__file__).resolve().parent
    out = Path(sys.argv[1]) if len(sys.argv) > 1 else here.parent / "data" / "employees.cfg"
    rng = random.Random(SEED)
    people = make_candidates(rng, CANDIDATES)
    lines = [HEADER.format(seed=SEED)]
    for name, exp, rel, amb in people:
        assert "#" not in name and "|" not in name and name.strip() == name
        lines.append(f"{name}|{exp}|{rel}|{amb}\n")
    with open(out, "w", encoding="ascii", newline="\n") as f:
        f.write("".join(lines))
    print(f"wrote {len(people)} candidates to {out}")


if __name__ == "__main__":
    main()
