"""The ready-made condition sets, and the expression that joins their conditions."""

import pathlib


def read_sections(path):
    """Section name -> {key: value}, in the order of the file."""
    sections, current = {}, None
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        line = line.strip()
        if not line or line.startswith(";"):
            continue
        if line.startswith("["):
            current = sections.setdefault(line[1:-1], {})
        else:
            key, _, value = line.partition("=")
            current[key] = value
    return sections


def read_roles(values):
    """Role -> value text, of the values of one condition: "10^0|60^5"."""
    pairs = (entry.split("^") for entry in values.split("|"))
    return {int(role): value for role, value in pairs}


class SavedSet:
    def __init__(self, section):
        self.name, self.expression = section["Name"], section["Exp"]
        self.conditions = {}  # letter -> (six characters of the key, role -> value text)
        for index in range(int(section["Count"])):
            key, letter, _, _, values = section["%02d" % index].split(";")[:5]
            self.conditions[letter] = key[:6], read_roles(values)


def read_sets(path):
    return [SavedSet(section) for section in read_sections(path).values()]


def both(a, b):
    return False if a is False or b is False else None if a is None or b is None else True


def negation(a):
    return None if a is None else not a


class Expression:
    """or <- and ('|' and)*, and <- not ('&' not)*, not <- '!' not | letter | '(' or ')'."""

    def __init__(self, text):
        self.text, self.place = text, 0
        self.evaluate = self.alternatives()
        if self.place != len(text):
            raise ValueError("no expression: " + text)

    def next(self):
        return self.text[self.place] if self.place < len(self.text) else ""

    def take(self, character):
        if self.next() != character:
            return False
        self.place += 1
        return True

    def alternatives(self):
        parts = [self.conjunction()]
        while self.take("|"):
            parts.append(self.conjunction())

        def evaluate(values):  # a | b is !(!a & !b)
            result = parts[0](values)
            for part in parts[1:]:
                result = negation(both(negation(result), negation(part(values))))
            return result
        return evaluate

    def conjunction(self):
        parts = [self.term()]
        while self.take("&"):
            parts.append(self.term())

        def evaluate(values):
            result = parts[0](values)
            for part in parts[1:]:
                result = both(result, part(values))
            return result
        return evaluate

    def term(self):
        if self.take("!"):
            inner = self.term()
            return lambda values: negation(inner(values))
        if self.take("("):
            inner = self.alternatives()
            if not self.take(")"):
                raise ValueError("no expression: " + self.text)
            return inner
        letter = self.next()
        if not ("A" <= letter <= "Z"):
            raise ValueError("no expression: " + self.text)
        self.place += 1
        return lambda values: values[letter]
