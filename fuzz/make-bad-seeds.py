#!/usr/bin/env python3
"""Writes the hand-made bad files of the seed corpora (fuzz/corpus/<target>/bad-*).

Each loader gets the usual ways a file goes wrong: empty, truncated, CR-only and LF-only
lines, binary junk, numbers far out of range, duplicate and unknown tags or keys, and the
format's own traps. The good files they start from are the shipped data and the simulator's
saves (fuzz/make-corpus.sh), so run that first.
Usage: fuzz/make-bad-seeds.py
"""
import os
import random

HERE = os.path.dirname(os.path.abspath(__file__))
CORPUS = os.path.join(HERE, "corpus")
DATA = os.path.join(HERE, "..", "data")


def read(path):
    with open(path, "rb") as f:
        return f.read()


def write(target, name, content):
    if isinstance(content, str):
        content = content.encode("latin-1")
    with open(os.path.join(CORPUS, target, "bad-" + name), "wb") as f:
        f.write(content)


def crlf(text):
    return text.replace("\n", "\r\n")


def junk(seed, size):
    rnd = random.Random(seed)
    return bytes(rnd.randrange(256) for _ in range(size))


def common(target, good):
    """The bad files every format gets, made from one good file."""
    lf = good.replace(b"\r\n", b"\n")
    write(target, "empty", b"")
    write(target, "truncated-half", good[: len(good) // 2])
    write(target, "truncated-mid-line", good[: len(good) // 3 + 7])
    write(target, "cr-only", lf.replace(b"\n", b"\r"))
    write(target, "lf-only", lf)
    write(target, "binary-junk", junk(len(target), 700))
    write(target, "nul-bytes", lf[:400].replace(b"e", b"\0"))
    write(target, "no-final-newline", good.rstrip(b"\r\n"))


def zvn():
    year = read(os.path.join(CORPUS, "zvn", "sim-year.zvn")).decode("latin-1")
    month = read(os.path.join(CORPUS, "zvn", "sim-first-month.zvn")).decode("latin-1")
    common("zvn", month.encode("latin-1"))
    write("zvn", "wrong-version", month.replace("programVersion=2.0.1", "programVersion=1.9.9"))
    write("zvn", "no-version", month.split("</version>\r\n", 1)[1])
    write("zvn", "upper-case-tags", month.replace("<calendar>", "<CALENDAR>").replace(
        "<movies>", "<Movies>").replace("<version>", "<VERSION>"))
    write("zvn", "tag-trailing-blank", month.replace("<finances>", "<finances> "))
    sections = month.split("\r\n<")
    write("zvn", "reverse-order", "\r\n<".join([sections[0]] + sections[1:][::-1]))
    write("zvn", "duplicate-sections", month + year)
    write("zvn", "unknown-tags", month.replace("<calendar>", "<weather>\r\nrain=1\r\n</weather>\r\n"
                                                "<calendar>\r\n<unknown>\r\nfoo=bar"))
    write("zvn", "math-section", month.replace("<calendar>", "<math>\r\ngamespeed1=5\r\n<calendar>"))
    write("zvn", "emps-unclosed", month.replace("</emps>\r\n", ""))
    write("zvn", "huge-numbers", month.replace("funds=", "funds=1e400").replace(
        "currentday=", "currentday=99999").replace("wage= ", "wage= 1e308").replace(
        "anger= ", "anger= 40000").replace("Pop= ", "Pop= 1e20"))
    write("zvn", "negative-numbers", month.replace("= ", "= -").replace("=1", "=-1"))
    write("zvn", "bad-indexes",
          month.replace("<showtime num=3>", "<showtime num=9>")
          .replace("<showtime num=4>", "<showtime num=-1>")
          .replace("<concession num=2>", "<concession num=7>")
          .replace("histfunds(5)", "histfunds(13)")
          .replace("histfunds(6)", "histfunds(-1)")
          .replace("job= 3", "job= 9")
          .replace("movie= 1", "movie= 40")
          .replace("PricePerPlay=2", "PricePerPlay=9")
          .replace("CabinetImageFileNumber=", "CabinetImageFileNumber=999"))
    write("zvn", "nine-positions", month.replace("</positions>",
                                                 "<position>\r\nwage= 1\r\n</position>\r\n" * 2
                                                 + "</positions>"))
    write("zvn", "arcade-num-gap", month.replace("<arcade_my>\r\nNum=1", "<arcade_my>\r\nNum=5"))
    write("zvn", "keys-without-values", "".join(
        line.split("=")[0] + "=\r\n" if "=" in line else line + "\r\n"
        for line in month.split("\r\n")))
    write("zvn", "equals-first", month.replace("\r\nfunds=", "\r\n=funds="))
    write("zvn", "only-tags", "".join(line + "\r\n" for line in month.split("\r\n")
                                      if line.startswith("<")))
    write("zvn", "closing-tags-only", "</calendar>\r\n</emps>\r\n</movies>\r\n")
    write("zvn", "long-line", month.replace("name=", "name=" + "x" * 5000, 1))


def math():
    good = read(os.path.join(DATA, "math.txt")).decode("latin-1")
    common("math", good.encode("latin-1"))
    write("math", "wrong-version", good.replace("mathver=2.0.1", "mathver=1.0"))
    write("math", "upper-case-keys", good.upper())
    write("math", "comment-with-equals", good.replace("\ngamespeed1=", "\n# a=b\ngamespeed1="))
    extra = {
        "huge-int16": "gamespeed1=99999",
        "huge-double": "initfunds=1e400",
        "showtimes-nine": "showtimes=9",
        "showtimes-negative": "showtimes=-3",
        "playprice-default-out": "arcadeplaypricedefault=7",
        "concess-buy-not-number": "concess0buy=lots",
        "pop-min-above-max": "movieminpop=90\nmoviemaxpop=10",
        "arcade-pop-min-above-max": "arcadepopmin=80\narcadepopmax=10",
        "zero-everything": "\n".join(line.split("=")[0] + "=0" for line in good.split("\n")
                                     if "=" in line and not line.startswith("#")),
        "blank-before-equals": "gamespeed1 =5\nfundsmin =x",
        "duplicate-keys": "initfunds=1\ninitfunds=2\ninitfunds=3",
    }
    for name, lines in extra.items():
        write("math", name, good + "\n" + lines + "\n")
    write("math", "keys-only", "\n".join(line.split("=")[0] for line in good.split("\n")))


def employees():
    good = read(os.path.join(DATA, "employees.cfg")).decode("latin-1")
    common("employees_cfg", good.encode("latin-1"))
    names = ["Ann Lee|2|5|5", "Bo Kim|3|6|4", "Cy Ng|1|7|8", "Di Po|4|5|6", "Ed Wu|5|4|5",
             "Flo Ma|6|6|6", "Gus Yi|7|8|2", "Hal Xu|8|5|5", "Ivy Ro|2|9|9", "Jo Bu|3|3|3"]
    write("employees_cfg", "ten-names", "\n".join(names) + "\n")
    write("employees_cfg", "nine-names", "\n".join(names[:9]) + "\n")
    write("employees_cfg", "one-name-ten-times", "\n".join(["Ann Lee|2|5|5"] * 10) + "\n")
    write("employees_cfg", "comments-only", "# nobody\n#\n# at all\n")
    write("employees_cfg", "huge-numbers", "\n".join(n.replace("|5", "|99999") for n in names))
    write("employees_cfg", "big-experience", "\n".join(
        n.split("|")[0] + "|" + str(20 + i * 3000) + "|5|5" for i, n in enumerate(names)))
    write("employees_cfg", "fractions-and-comments", "\n".join(
        n.replace("|5", "|3.9 # comment") for n in names))
    write("employees_cfg", "extra-fields", "\n".join(n + "|1|2|zzz" for n in names))
    write("employees_cfg", "zeros-and-negatives", "\n".join(
        names + ["Zed Zero|0|5|5", "Neg Ative|-3|5|5", "|3|3|3", "No Amb|3|3|0"]))
    write("employees_cfg", "number-like-names", "\n".join(
        "%de999 %s|%d|5|5" % (i + 1, n.split("|")[0], i % 8 + 1) for i, n in enumerate(names)))
    write("employees_cfg", "tricky-names", "\n".join(
        ["</emps>|3|3|3", "<employee>|2|2|2", "name=x|4|4|4", "  blank  |5|5|5"] + names))


def goals():
    good = read(os.path.join(DATA, "goals.cfg")).decode("latin-1")
    common("goals_cfg", good.encode("latin-1"))
    write("goals_cfg", "unclosed-goal", "<goal>\nname=Never ends\ntype=funds\nvalue=5\n")
    write("goals_cfg", "upper-case", good.replace("<goal>", "<GOAL>").replace("type=", "TYPE="))
    write("goals_cfg", "huge-numbers", "<goal>\nname=Huge\ntype=debt\nvalue=1e400\n"
          "deadline=99999\ndebt=1e300\ncs=1e308\npayplan=99999\nfunds=1e400\n</goal>\n")
    write("goals_cfg", "negative-numbers", "<goal>\nname=Neg\ntype=creditscore\nvalue=-5\n"
          "deadline=-2\ndebt=-100\ncs=-50\npayplan=-7\nfunds=-1\n</goal>\n")
    write("goals_cfg", "empty-values", "<goal>\nname=\ntype=\nvalue=\ndeadline=\ndebt=\ncs=\n"
          "payplan=\nfunds=\n</goal>\n")
    write("goals_cfg", "zero-values", "<goal>\nname=Zero\ntype=purchase\nvalue=0\ndeadline=0\n"
          "debt=0\ncs=0\npayplan=0\nfunds=0\n</goal>\n")
    write("goals_cfg", "unknown-type-and-keys", "<goal>\nname=Odd\ntype=happiness\nmood=9\n"
          "=7\nvalue\n</other>\n")
    write("goals_cfg", "many-goals", "".join(
        "<goal>\nname=G%d\ntype=funds\nvalue=%d\ndeadline=%d\n</goal>\n" % (i, i * 1000, i % 5)
        for i in range(300)))


def lists(target, filename):
    good = read(os.path.join(DATA, filename)).decode("latin-1")
    common(target, good.encode("latin-1"))
    lines = good.split("\n")
    write(target, "one-line", lines[0] + "\n")
    write(target, "blank-lines", "\n\n\n\n")
    write(target, "five-lines", "\n".join(lines[:5]) + "\n")
    write(target, "same-title", "\n".join([lines[0]] * 40) + "\n")
    write(target, "long-titles", "\n".join(l * 40 for l in lines[:20]) + "\n")
    write(target, "tricky-titles", "\n".join(
        ["</movies>", "<movie_buy>", "9e999 Nights", "1d400", "-1e309 Below", "</arcades>", "<arcade_my>", "Title=x", "Name=y", "=",
         "  leading blanks", "trailing blanks  ", "#hash", "a|b|c"] + lines[:30]) + "\n")


if __name__ == "__main__":
    zvn()
    math()
    employees()
    goals()
    lists("movies_lst", "movies.lst")
    lists("games_lst", "games.lst")
