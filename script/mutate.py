"""Changes the portable code in places chosen at random and tells which changes the native tests notice; see script/mutate.

Works in build/mutate: "sources" is the project as it was when the first change of a seed was made, "tree" the same with
one change, "build" what is built of it.
"""

import pathlib
import random
import re
import resource
import subprocess
import sys

FOLDER = pathlib.Path("build/mutate").absolute()
SOURCES, TREE, BUILD = FOLDER / "sources", FOLDER / "tree", FOLDER / "build"
# Enough for any test of the unchanged code; a change that makes a loop endless or takes all memory is noticed by it.
CPU_SECONDS, WALL_SECONDS, MEMORY = 60, 900, 4 << 30
# What takes longest, and finds little that nothing else finds: only changes that all other tests have missed get so far.
SLOW_TESTS = "Shell/*:Powers.OfWholeNumbersBelow*:Bases/*:Finance.*:*.TakesTime*:*.WhatIsNoneOrTooMuch*"

TEXT = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'|//.*')
NO_CODE = re.compile(r"\s*(#|static_assert|using |namespace |template|class |struct |enum |extern |///)")
SWAPS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "+": "-", "-": "+", "*": "/", "/": "*",
         "%": "*", "&&": "||", "||": "&&", "&": "|", "|": "&", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="}
OPERATOR = re.compile(r"(?<= )(" + "|".join(map(re.escape, sorted(SWAPS, key=len, reverse=True))) + r")(?= )")
STEP = re.compile(r"\+\+|--")
NUMBER = re.compile(r"(?<![\w.'])(0[xX][\dA-Fa-f']+|\d[\d']*)(\.\d*)?([eEpP][-+]?\d+)?[uUlLzZfF]*(?![\w.'])")
TRUTH = re.compile(r"\b(true|false)\b")
NEGATION = re.compile(r"(?<=[( ])!(?=[\w(:])")
CONDITION = re.compile(r"\b(if|while) \(")
CALL = re.compile(r"\s+(?!return|throw|co_|delete|break|else|if |for |while )[\w:.\->\[\]<>*()]*[\w>]\(.*\);$")


def changes_of(line):
    """Yields what one line may become, each as (column, before, after)."""
    code = TEXT.sub(lambda match: " " * len(match[0]), line)
    if NO_CODE.match(code):
        return
    for match in OPERATOR.finditer(code):
        yield match.start(), match[0], SWAPS[match[0]]
    for match in STEP.finditer(code):
        yield match.start(), match[0], "--" if match[0] == "++" else "++"
    for match in NUMBER.finditer(code):
        yield match.start(), match[0], f"({match[0]} * 2)" if match[2] or match[3] else f"({match[0]} + 1)"
    for match in TRUTH.finditer(code):
        yield match.start(), match[0], "false" if match[0] == "true" else "true"
    for match in NEGATION.finditer(code):
        yield match.start(), "!", ""
    for match in CONDITION.finditer(code):
        depth, end = 1, match.end()
        while end < len(code) and depth:
            depth += {"(": 1, ")": -1}.get(code[end], 0)
            end += 1
        condition = line[match.end():end - 1]
        if not depth and ";" not in condition:
            yield match.end(), condition, f"!({condition})"
    if CALL.fullmatch(code.rstrip()):
        yield len(line) - len(line.lstrip()), line.strip(), ";"


def all_changes():
    """Every change that may be made, as (file, line number, column, before, after)."""
    for path in sorted(SOURCES.glob("src/**/*")):
        if path.suffix in (".cpp", ".h") and not path.name.endswith("_windows.cpp"):
            for number, line in enumerate(path.read_text().split("\n")):
                for change in changes_of(line):
                    yield (path.relative_to(SOURCES), number, *change)


def copy_tree(source, target, files):
    """Makes the target's files those of the source; what is the same keeps its time."""
    for file in files:
        content = (source / file).read_bytes()
        path = target / file
        if not path.exists() or path.read_bytes() != content:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)
            path.chmod((source / file).stat().st_mode)


def limit():
    resource.setrlimit(resource.RLIMIT_CPU, (CPU_SECONDS, CPU_SECONDS))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))


def run(*command, limited=False):
    """Runs a command in the build folder; returns whether it succeeded, and what it said."""
    try:
        done = subprocess.run([str(word) for word in command], cwd=BUILD, text=True, errors="replace", stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              timeout=WALL_SECONDS if limited else None, preexec_fn=limit if limited else None)
        return done.returncode == 0, done.stdout
    except subprocess.TimeoutExpired:
        return False, "time is up"


def judge():
    """What becomes of the tree as it is: "does not compile", "NOT NOTICED", or the test that fails."""
    built, output = run("ninja", "-j1", "core_tests")
    if not built:
        return "does not compile" if "error: " in output else "noticed by the build of the help"
    steps = [("tests/core_tests", "--gtest_fail_fast", "--gtest_brief=1", "--gtest_filter=-" + SLOW_TESTS),
             ("tests/core_tests", "--gtest_fail_fast", "--gtest_brief=1", "--gtest_filter=" + SLOW_TESTS),
             ("ninja", "-j1"), ("ctest", "--stop-on-failure", "-E", "core_tests|help_search")]
    for step in steps:
        passed, output = run(*step, limited=step[0] != "ninja")
        if not passed:
            failed = re.search(r"\[  FAILED  \] ([^\s,]+)|\d+ - (\S+) \((?:Failed|Timeout|SEGFAULT)", output)
            return "noticed by " + ((failed[1] or failed[2]) if failed else "the end or the time limit of " + step[0])
    return "NOT NOTICED"


def main(count, seed):
    results = FOLDER / f"{seed}.tsv"
    if not results.exists():
        files = subprocess.check_output(["git", "ls-files"], text=True).split("\n")[:-1]
        copy_tree(pathlib.Path("."), SOURCES, files)
    copied = [path.relative_to(SOURCES) for path in SOURCES.rglob("*") if path.is_file()]
    copy_tree(SOURCES, TREE, copied)
    BUILD.mkdir(exist_ok=True)
    configured, output = run("cmake", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O1 -w", TREE)
    outcome = judge() if configured else output
    if outcome != "NOT NOTICED":
        sys.exit(f"the unchanged code does not pass its tests: {outcome}")

    changes = list(all_changes())
    random.Random(seed).shuffle(changes)
    rows = results.read_text().split("\n")[:-1] if results.exists() else []
    with results.open("a") as log:
        for file, number, column, before, after in changes[len(rows):]:
            if sum("does not compile" not in row for row in rows) == count:
                break
            original = (SOURCES / file).read_text()
            lines = original.split("\n")
            lines[number] = lines[number][:column] + after + lines[number][column + len(before):]
            (TREE / file).write_text("\n".join(lines))
            rows.append(f"{judge()}\t{file}:{number + 1}:{column + 1}\t{before}\t{after}")
            (TREE / file).write_text(original)
            print(rows[-1], file=log, flush=True)
            print(rows[-1], flush=True)
    compiled = [row for row in rows if "does not compile" not in row]
    missed = [row for row in compiled if row.startswith("NOT NOTICED")]
    print(*missed, f"{len(compiled) - len(missed)} of {len(compiled)} changes were noticed", sep="\n")


main(int(sys.argv[1]), int(sys.argv[2]))
