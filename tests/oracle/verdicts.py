#!/usr/bin/env python3
"""Judges conditions on a market a second time, by other means, and compares.

    python3 tests/oracle/verdicts.py DIR

DIR holds the market's daily.csv.gz and symbols.csv, and verdicts.txt with a line for each condition: the six
characters of its key, its values as in a saved set, and what was found, a sign for each stock in order of code:
1 true, 0 false, ? unknown. Prints each difference; exits with 1 if there is one.
"""

import pathlib
import sys

import conditions
from market_data import read_market
from saved_sets import read_roles

SIGNS = {True: "1", False: "0", None: "?"}


def main(folder):
    market = read_market(folder)
    lines = (pathlib.Path(folder) / "verdicts.txt").read_text(encoding="ascii").splitlines()
    differences = 0
    for line in lines:
        key, values, found = line.split(" ")
        expected = "".join(SIGNS[verdict] for verdict in conditions.judge(market, key, read_roles(values)))
        if expected != found:
            differences += 1
            print("%s %s\n  found    %s\n  expected %s" % (key, values, found, expected))
    print("%d conditions, %d of them judged otherwise" % (len(lines), differences))
    return 1 if differences or not lines else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
