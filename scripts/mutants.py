"""Finds faults that the fast tests do not catch; see scripts/mutants.sh."""

import concurrent.futures
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import threading
import time
from pathlib import Path

ROOT = Path("build/mutants").resolve()
SOURCE = ROOT / "source"
BUILD = ROOT / "build"
FOLDERS = ["code/gdm", "standins"]
JOBS = os.cpu_count() or 1
# No debug information and no optimisation. Programs are not relinked when a shared library changes.
OPTIONS = [
    "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O0 -w", "-DZUDUNMAF_QT_MAJOR=6",
    "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
]  # fmt: skip

# Binary operators have spaces around them in this tree; template brackets and pointers have not.
SWAPS = {
    " == ": [" != "], " != ": [" == "], " < ": [" <= ", " >= "], " <= ": [" < ", " > "], " > ": [" >= ", " <= "],
    " >= ": [" > ", " < "], " && ": [" || "], " || ": [" && "], " + ": [" - "], " - ": [" + "], " * ": [" / "],
    " / ": [" * "], " += ": [" -= "], " -= ": [" += "], " & ": [" | "], " | ": [" & "],
}  # fmt: skip
WORDS = {"true": "false", "false": "true"}
NUMBER = re.compile(r"(?<![\w.])(\d+)(\.\d+)?f?(?![\w.])")
CONDITION = re.compile(r"^(\s*(?:\} else )?(?:if|while) \()(.+)(\)(?: \{)?)$")
NEGATION = re.compile(r"(?<![\w)\]])!(?=[\w(])")
STATEMENT = re.compile(r"^\s+[\w:*(+\-].*;$")
NO_STATEMENT = re.compile(r"^\s*(return\b.|using\b|typedef\b|friend\b|public\b|static_assert\b|for\b|if\b|else\b|case\b|default\b)")
DECLARATION = re.compile(r"^\s*(?!delete\b|emit\b|Q_EMIT\b)((const|static|constexpr) )*[\w:]+(<.*>)? +[*&]*\w+( = |;|\(|\{|\[)")
SKIPPED_LINE = re.compile(r"^\s*(#|//|\*|/\*|using\b|template\b|static_assert\b|Q_ASSERT|namespace\b)|\boperator\b|= 0;")


def masked(line):
    """Returns the line with strings, characters and comments blanked out; columns stay the same."""
    line = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'', lambda m: m[0][0] + "_" * (len(m[0]) - 2) + m[0][0], line)
    return re.sub(r"//.*", lambda m: " " * len(m[0]), line)


def changes_in_line(line):
    """Yields each mutation of one line."""
    code = masked(line)
    for before, afters in SWAPS.items():
        for match in re.finditer(re.escape(before), code):
            for after in afters:
                yield line[: match.start()] + after + line[match.end() :]
    for before, after in WORDS.items():
        for match in re.finditer(rf"\b{before}\b", code):
            yield line[: match.start()] + after + line[match.end() :]
    for match in NUMBER.finditer(code):
        number = str(int(match[1]) + 1)
        yield line[: match.start(1)] + number + line[match.end(1) :]
    for match in NEGATION.finditer(code):
        yield line[: match.start()] + line[match.end() :]
    condition = CONDITION.match(code)
    if condition:
        yield line[: condition.start(2)] + "!(" + line[condition.start(2) : condition.end(2)] + ")" + line[condition.end(2) :]


def mutants_of(name):
    """Yields (file, first line, number of lines, replacement) for each mutant of a file."""
    lines = Path(name).read_text(encoding="utf-8").split("\n")
    commented = False
    for number, line in enumerate(lines):
        commented = commented and "*/" not in line or line.lstrip().startswith("/*") and "*/" not in line
        if commented or SKIPPED_LINE.search(line) or not line.strip():
            continue
        for changed in changes_in_line(line):
            yield name, number, 1, changed
        before = lines[number - 1].rstrip()
        if not name.endswith(".cpp") or not re.search(r"[{};:]$|\)$|\belse$|^\s*//", before):
            continue
        if NO_STATEMENT.match(line) or DECLARATION.match(line):
            continue
        # A statement of up to four lines, inside a function.
        for count in range(1, 5):
            text = " ".join(part.strip() for part in lines[number : number + count])
            if text.endswith(";"):
                if STATEMENT.match(line if count == 1 else "    " + text) and "{" not in masked(text):
                    yield name, number, count, re.match(r"\s*", line)[0] + ";"
                break


def run(command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.DEVNULL, **options)


def prepare():
    """Copies the changed files of the tree, so that a second run builds little."""
    files = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard"], check=True, capture_output=True, text=True
    ).stdout.splitlines()
    for name in files:
        source, copy = Path(name), SOURCE / name
        if source.is_file() and not (copy.exists() and copy.read_bytes() == source.read_bytes()):
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)
    for copy in [path for path in SOURCE.rglob("*") if path.is_file()]:
        if str(copy.relative_to(SOURCE)) not in files:
            copy.unlink()
    run(["cmake", "-S", SOURCE, "-B", BUILD, "-G", "Ninja", *OPTIONS])


def build():
    done = subprocess.run(["cmake", "--build", BUILD], capture_output=True, text=True)
    return done.returncode == 0, done.stdout


class Test:
    def __init__(self, described):
        properties = {entry["name"]: entry["value"] for entry in described.get("properties", [])}
        self.name = described["name"]
        self.command = described["command"]
        self.folder = properties.get("WORKING_DIRECTORY", str(BUILD))
        self.environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
        self.seconds = 60.0
        self.limit = 60.0

    def passes(self, stop):
        """Returns whether the test passes within its time limit, or None if `stop` is set first."""
        start = time.monotonic()
        process = subprocess.Popen(
            self.command, cwd=self.folder, env={**os.environ, **self.environment},
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
        )  # fmt: skip
        try:
            while process.poll() is None:
                if stop.is_set():
                    return None
                if time.monotonic() - start > self.limit:
                    return False
                time.sleep(0.01)
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        self.seconds = time.monotonic() - start
        return process.returncode == 0


def fast_tests():
    shown = subprocess.run(
        ["ctest", "--test-dir", BUILD, "-L", "fast", "--show-only=json-v1"], check=True, capture_output=True, text=True
    )
    return [Test(described) for described in json.loads(shown.stdout)["tests"] if "command" in described]


def first_failure(tests):
    """Returns the name of the first test that fails, or None. Runs the quickest tests first."""
    stop = threading.Event()

    def check(test):
        result = None if stop.is_set() else test.passes(stop)
        if result is False:
            stop.set()
            return test.name
        return None

    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        failures = list(pool.map(check, tests))
    return next((name for name in failures if name), None)


def measure(tests):
    failed = first_failure(tests)
    if failed:
        sys.exit(f"{failed} fails without a mutant")
    tests.sort(key=lambda test: test.seconds)
    for test in tests:
        test.limit = 10 * test.seconds + 10


def catching_test(mutant, tests):
    """Returns the name of the test that catches a mutant, "" for none, None if it does not compile."""
    name, number, count, instead = mutant
    path = SOURCE / name
    original = path.read_text(encoding="utf-8")
    lines = original.split("\n")
    path.write_text("\n".join(lines[:number] + [instead] + lines[number + count :]), encoding="utf-8")
    try:
        compiled, _ = build()
        return (first_failure(tests) or "") if compiled else None
    finally:
        path.write_text(original, encoding="utf-8")


def summary(mutant):
    name, number, count, instead = mutant
    lines = Path(name).read_text(encoding="utf-8").split("\n")[number : number + count]
    before = " ".join(line.strip() for line in lines)
    after = "(deleted)" if instead.strip() == ";" else instead.strip()
    return f"{name}:{number + 1}: {before} -> {after}"


def main():
    arguments = sys.argv[1:]
    numbers = [int(arguments.pop(0)) for _ in range(2) if arguments and arguments[0].isdigit()]
    seed, count = (numbers + [1, 50][len(numbers) :])[:2]
    folders = arguments or FOLDERS
    files = sorted(
        str(path) for folder in folders for path in Path(folder).rglob("*") if path.suffix in (".cpp", ".h")
    )
    candidates = [mutant for name in files for mutant in mutants_of(name)]
    if not candidates:
        sys.exit(f"No mutant is possible in {' '.join(folders)}")
    random.Random(seed).shuffle(candidates)
    print(f"Seed {seed}: {count} of {len(candidates)} mutants in {' '.join(folders)}", flush=True)

    prepare()
    compiled, said = build()
    if not compiled:
        sys.exit(f"The build fails without a mutant:\n{said}")
    tests = fast_tests()
    measure(tests)

    start = time.monotonic()
    survivors, caught, discarded = [], 0, 0
    for mutant in candidates:
        if caught + len(survivors) == count:
            break
        by = catching_test(mutant, tests)
        if by is None:
            discarded += 1
        elif by:
            caught += 1
            print(f"caught by {by}: {summary(mutant)}", flush=True)
        else:
            survivors.append(mutant)
            print(f"SURVIVED {summary(mutant)}", flush=True)
    print(f"\n{caught} caught, {len(survivors)} survived, {discarded} did not compile, {time.monotonic() - start:.0f} s")
    for mutant in survivors:
        print(summary(mutant))


main()
