"""The form of the line table: every pair joins two stars of one figure."""


def check(catalogue, report):
    stars, pairs = catalogue.by_name, catalogue.pairs
    known = all(a in stars and b in stars for a, b in pairs)
    report(len(pairs) == 162 and known, "line pairs %d, both stars known" % len(pairs))
    report(
        len({frozenset(p) for p in pairs}) == len(pairs) and all(a != b for a, b in pairs),
        "no pair twice",
    )
    if not known:
        return
    report(
        all(stars[a].code == stars[b].code != "" for a, b in pairs),
        "every pair within one constellation",
    )
    report(
        all(hangs_together(code, group, catalogue) for code, group in catalogue.groups.items()),
        "every figure hangs together, no star stands alone",
    )


def hangs_together(code, group, catalogue):
    """Whether every star of a figure can be reached from its first one along the lines."""
    lines = [
        (a, b)
        for a, b in catalogue.pairs
        if catalogue.by_name[a].code == catalogue.by_name[b].code == code
    ]
    reached, todo = set(), [group[0].name]
    while todo:
        name = todo.pop()
        if name not in reached:
            reached.add(name)
            todo += [b if a == name else a for a, b in lines if name in (a, b)]
    return len(reached) == len(group)
