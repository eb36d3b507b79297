#!/usr/bin/env python3
"""Searches a real market a second time, by other means, and compares.

Every ready-made set is evaluated stock by stock with the formulas of docs/catalogue.md and compared with what
`jogeond search` finds in the market file that was imported from the same tables. Exits with 1 on any
difference, with 0 if all sets agree. Without --jogeond it only prints what it finds.

    python3 tests/oracle/oracle.py --data DIR --jogeond PATH --market FILE --home DIR [--sets N]
"""

import argparse
import csv
import io
import pathlib
import subprocess
import sys

import conditions
from market_data import read_market
from saved_sets import Expression, read_sets

SOURCES = pathlib.Path(__file__).resolve().parents[2] / "data" / "home" / "System"


def find(market, saved, remembered):
    """Codes of the stocks for which the set is true. `remembered` holds the verdicts of earlier conditions."""
    verdicts = {}
    for letter, (key, role) in saved.conditions.items():
        known = key, tuple(sorted(role.items()))
        if known not in remembered:
            remembered[known] = conditions.judge(market, key, role)
        verdicts[letter] = remembered[known]
    evaluate = Expression(saved.expression).evaluate
    return [stock.code for i, stock in enumerate(market.stocks)
            if evaluate({letter: verdict[i] for letter, verdict in verdicts.items()}) is True]


def search(options, name):
    """Codes that jogeond finds."""
    command = [options.jogeond, "search", "--market", options.market, "--set", name, "--format", "csv"]
    if options.home:
        command += ["--home", options.home]
    done = subprocess.run(command, capture_output=True, check=False)
    if done.returncode not in (0, 1):  # 1: none matches
        sys.exit("%s: %s" % (name, done.stderr.decode("utf-8", "replace").strip()))
    rows = [row for row in csv.reader(io.StringIO(done.stdout.decode("utf-8"))) if row]
    return [row[0] for row in rows if len(row[0]) == 6 and row[0].isascii()]


def report(name, expected, found):
    """Prints the line of one set; True if both agree."""
    missing, surplus = sorted(set(expected) - set(found)), sorted(set(found) - set(expected))
    twice = len(found) - len(set(found))
    agree = not missing and not surplus and not twice
    print("%-5s %5d %s" % ("same" if agree else "DIFF", len(expected), name))
    for what, codes in (("not found", missing), ("found wrongly", surplus)):
        if codes:
            print("      %s: %d: %s" % (what, len(codes), " ".join(codes[:20])))
    if twice:
        print("      found more than once: %d" % twice)
    return agree


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("--data", required=True, help="folder with daily.csv.gz and symbols.csv")
    parser.add_argument("--jogeond", help="the program to compare with")
    parser.add_argument("--market", help="market file imported from the same tables")
    parser.add_argument("--home", help="home folder for jogeond")
    parser.add_argument("--sets", type=int, help="only the first N sets")
    parser.add_argument("--sources", default=str(SOURCES), help="folder with NorvikSaveIndex.dat in UTF-8")
    options = parser.parse_args()
    if options.jogeond and not options.market:
        parser.error("--jogeond needs --market")

    market = read_market(options.data)
    sets = read_sets(pathlib.Path(options.sources) / "NorvikSaveIndex.dat")[:options.sets]
    if not sets:
        sys.exit("no sets in " + options.sources)
    agree, remembered = True, {}
    for saved in sets:
        expected = find(market, saved, remembered)
        if options.jogeond:
            agree = report(saved.name, expected, search(options, saved.name)) and agree
        else:
            print("%5d of %d  %s" % (len(expected), len(market.stocks), saved.name))
    return 0 if agree else 1


if __name__ == "__main__":
    sys.exit(main())
