#!/usr/bin/env python3
"""Lengthen data/movies.lst and data/games.lst with invented titles.

The first lines of each list are written by hand and kept as they stand; this script
rewrites everything after them with titles composed from the word lists below, so that a
ten-year game still finds fresh movies at the distributor and fresh machines on the game
market: every title the theater has owned comes back faded, so a short list runs dry.

Every title is made up. Each one carries an invented town or an invented person, so none
is the name of a real film or game; duplicates of any earlier title (letter case ignored)
are skipped.

Deterministic: the same seed always gives the same files. Standard library only.

Usage:  python3 tools/make_titles.py
"""

import random
from pathlib import Path

SEED = 2026
DATA = Path(__file__).resolve().parent.parent / "data"
MOVIES_BY_HAND = 501
MOVIES_TOTAL = 4500
GAMES_BY_HAND = 187
GAMES_TOTAL = 560
MAX_LENGTH = 40

# Invented towns: a first half and a second half.
TOWN_HEADS = [
    "Bramble", "Cobble", "Dunmer", "Fenn", "Gilly", "Hobb", "Kessel", "Lumber", "Marl",
    "Nibble", "Pell", "Quill", "Rudder", "Skell", "Tubb", "Wexel", "Yarrow", "Zell",
    "Thistle", "Puddle", "Crumb", "Muckle", "Grizzle", "Hollow", "Parsnip", "Snood",
    "Wimble", "Frog", "Bunt", "Clatter", "Drizzle", "Goose", "Larch", "Mopp", "Oxley",
    "Pickett", "Rook", "Sorrel", "Tansy", "Umber", "Vetch", "Widdle", "Scrabble",
]
TOWN_TAILS = [
    "wick", "ford", "bury", "ton", "mere", "holt", "stead", "combe", "gate", "by",
    "thorpe", "ridge", "field", "dale", " Hollow", " Junction", " Flats", " Crossing",
    " Falls", " Heights", " County", " Landing", " on Sea",
]
FIRST_NAMES = [
    "Mabel", "Wilbur", "Dolores", "Horace", "Edna", "Clement", "Prudence", "Otis",
    "Beatrix", "Ambrose", "Winifred", "Cyril", "Hattie", "Rufus", "Agatha", "Lyle",
    "Opal", "Thaddeus", "Myrtle", "Desmond", "Ida", "Ferris", "Gertie", "Barnaby",
    "Lavinia", "Osgood", "Pearl", "Lionel", "Nettie", "Virgil", "Rosalind", "Elmer",
]
SURNAMES = [
    "Quimby", "Penhallow", "Grubbins", "Whitloaf", "Pettigrew", "Snodgrass", "Fairweather",
    "Bottlesby", "Crumpet", "Haverstock", "Mudge", "Tillinghast", "Pocklington", "Dimsdale",
    "Ormsby", "Winterbottom", "Fennimore", "Trugg", "Blatherwick", "Puddephat", "Scroggins",
    "Larkspur", "Gribble", "Muncaster", "Oddfellow", "Plunkett", "Sprockett", "Tuppence",
]
THINGS = [
    "Typewriter", "Umbrella", "Lighthouse", "Casserole", "Accordion", "Weathervane",
    "Teapot", "Carousel", "Telegram", "Harmonica", "Scarecrow", "Bicycle", "Gramophone",
    "Pocket Watch", "Chandelier", "Lantern", "Wishbone", "Snow Globe", "Cuckoo Clock",
    "Rowboat", "Jukebox", "Pie Contest", "Mailbag", "Treasure Map", "Top Hat", "Birdcage",
    "Hot Air Balloon", "Pickle Jar", "Bowling Trophy", "Ferris Wheel", "Sea Chest",
]
ADJECTIVES = [
    "Brass", "Velvet", "Crooked", "Midnight", "Forgotten", "Rusty", "Whistling", "Crimson",
    "Lonesome", "Clockwork", "Haunted", "Golden", "Backwards", "Upside-Down", "Borrowed",
    "Ninth", "Secret", "Runaway", "Paper", "Singing", "Last", "Invisible", "Tin",
]
CREATURES = [
    "Werebadger", "Gravy Beast", "Swamp Accountant", "Moth Queen", "Lawn Goblin",
    "Marsh Wraith", "Sewer Heron", "Attic Yeti", "Pudding Monster", "Mole Men",
    "Fog Hounds", "Lagoon Librarian", "Turnip Horror", "Octopus Mayor", "Glowworm Army",
]
EVENTS = [
    "Murder", "Trouble", "Mischief", "A Wedding", "Showdown", "Thunder", "Sunrise",
    "Scandal", "Mayhem", "Romance", "Panic", "High Tide", "Christmas", "Homecoming",
]
SEASONS = ["A Summer", "A Winter", "One Autumn", "A Long Weekend", "Ten Days", "A Week"]
JOBS = [
    "Postmistress", "Lighthouse Keeper", "Dentist", "Night Porter", "Beekeeper", "Mayor",
    "Stationmaster", "Milkman", "Organist", "Ferryman", "Cartographer", "Tailor",
]
SUBTITLES = [
    "The Return", "Second Helpings", "The Reckoning", "Back Again", "The Sequel",
    "Another Round", "Overtime", "The Last Stand", "Family Reunion", "Paid in Full",
]

# Arcade titles: a word and an action, alliterative when the list allows it, with a town,
# an edition or a stage, so that no two plain words make a title somebody already used.
GAME_SUBJECTS = [
    "Turnip", "Walrus", "Pickle", "Radish", "Noodle", "Badger", "Mop", "Teapot", "Yak",
    "Gopher", "Pelican", "Muffin", "Toaster", "Wombat", "Kettle", "Llama", "Sprocket",
    "Bagel", "Tuba", "Goblin", "Marmot", "Walnut", "Hamster", "Lobster", "Pretzel",
    "Dumpling", "Anvil", "Cactus", "Biscuit", "Penguin", "Parsnip", "Sardine", "Doughnut",
    "Beaver", "Moose", "Crumpet", "Pumpkin", "Weasel", "Zucchini", "Ostrich",
]
GAME_ACTIONS = [
    "Tornado", "Wrangler", "Pinball", "Rumble", "Rally", "Dash", "Derby", "Blaster",
    "Brawl", "Stampede", "Tumble", "Juggler", "Jamboree", "Joust", "Patrol", "Pileup",
    "Scramble", "Showdown", "Smash", "Sprint", "Tussle", "Bounce", "Bonanza", "Mayhem",
    "Chase", "Catapult", "Commando", "Climber", "Drop", "Frenzy", "Kart", "Launcher",
]
GAME_PLACES = ["Galaxy", "Mines", "Swamp", "Lagoon", "Volcano", "Castle", "Dungeon",
               "Moonbase", "Jungle", "Highway", "Tundra", "Canyon"]


def town(rng):
    head = rng.choice(TOWN_HEADS)
    tail = rng.choice(TOWN_TAILS)
    if head[-1] == tail[0]:
        head = head[:-1]  # Tubb and bury make Tubbury
    return head + tail


def person(rng):
    return rng.choice(FIRST_NAMES) + " " + rng.choice(SURNAMES)


def movie_title(rng):
    kind = rng.randrange(12)
    if kind == 0:
        return f"The {rng.choice(THINGS)} of {town(rng)}"
    if kind == 1:
        return f"{person(rng)} and the {rng.choice(ADJECTIVES)} {rng.choice(THINGS)}"
    if kind == 2:
        return f"{rng.choice(FIRST_NAMES)} {rng.choice(SURNAMES)}'s {rng.choice(THINGS)}"
    if kind == 3:
        return f"The {rng.choice(CREATURES)} of {town(rng)}"
    if kind == 4:
        return f"{rng.choice(EVENTS)} at {town(rng)}"
    if kind == 5:
        return f"{rng.choice(SEASONS)} in {town(rng)}"
    if kind == 6:
        return f"The {rng.choice(JOBS)} of {town(rng)}"
    if kind == 7:
        return f"The {rng.choice(ADJECTIVES)} {rng.choice(THINGS)} of {town(rng)}"
    if kind == 8:
        return f"Return to {town(rng)}"
    if kind == 9:
        return f"{town(rng)}: {rng.choice(SUBTITLES)}"
    if kind == 10:
        return f"Attack of the {town(rng)} {rng.choice(CREATURES)}"
    first = f"The {rng.choice(CREATURES)} of {town(rng)}"
    return f"{first} {rng.randrange(2, 5)}: {rng.choice(SUBTITLES)}"


def game_title(rng):
    kind = rng.randrange(1, 4)
    subject = rng.choice(GAME_SUBJECTS)
    matching = [a for a in GAME_ACTIONS if a[0] == subject[0]]
    action = rng.choice(matching) if matching and rng.random() < 0.6 else rng.choice(GAME_ACTIONS)
    if kind == 1:
        return f"{subject} {action} {rng.choice(['II', 'III', 'Deluxe', 'Turbo', '2000'])}"
    if kind == 2:
        return f"{rng.choice(TOWN_HEADS)} {subject} {action}"
    return f"{subject} {action}: {rng.choice(GAME_PLACES)}"


def extend(path, by_hand, total, make, rng):
    lines = path.read_text(encoding="utf-8").splitlines()[:by_hand]
    seen = {line.lower() for line in lines}
    while len(lines) < total:
        title = make(rng)
        if len(title) > MAX_LENGTH or title.lower() in seen:
            continue
        seen.add(title.lower())
        lines.append(title)
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    rng = random.Random(SEED)
    extend(DATA / "movies.lst", MOVIES_BY_HAND, MOVIES_TOTAL, movie_title, rng)
    extend(DATA / "games.lst", GAMES_BY_HAND, GAMES_TOTAL, game_title, rng)


if __name__ == "__main__":
    main()
