"""Sends random events to both dialogs in a separate process. A crash, a hang, a leak and a broken invariant are faults. A
fault prints the seed, the shortest stream of events that shows it, and the message.

    monkey.py PROGRAM --seed N [--events N]    random events, by default 2,000
    monkey.py PROGRAM --soak N                 opens, uses and closes so many dialogs, and compares the memory
    monkey.py PROGRAM --stream FILE            the events of a file, such as those printed for a fault

With --under COMMAND the program runs under another one, such as valgrind.
"""

import argparse
import random
import shlex
import subprocess
import sys

RENEW = 100  # the kind of event that opens a new dialog; random events are below
WARM_UP = 200
ALLOWED_GROWTH = 256 * 1024
MOST_RERUNS = 300


def random_events(seed, length):
    bits = random.Random(seed).getrandbits
    return [f"{bits(32) % RENEW} {bits(32)} {bits(32)}" for _ in range(length)]


def play(command, events):
    """Returns the line of each event that was sent, and the message of a fault, empty if there is none."""
    run = subprocess.run(command, input="\n".join(events), capture_output=True, text=True, errors="replace")
    said = f"{run.stderr.strip()}\nexit status {run.returncode}".strip()
    return run.stdout.splitlines(), said if run.returncode else ""


def gist(fault):
    """Returns the summary line of a sanitizer, or the last message of the program, which is the line before the status."""
    lines = fault.splitlines()
    return next((line for line in lines if line.startswith("SUMMARY:")), lines[max(-2, -len(lines))])


def shrink(command, events):
    """Removes smaller and smaller pieces while the rest still shows a fault."""
    reruns = 0
    piece = len(events) // 2
    while piece > 0:
        at = 0
        while at < len(events) and reruns < MOST_RERUNS:
            rest = events[:at] + events[at + piece :]
            told, fault = play(command, rest)
            reruns += 1
            if fault:
                events = rest[: len(told)]
            else:
                at += piece
        piece //= 2
    return events


def work(command, events, title):
    told, fault = play(command, events)
    if not fault:
        print(f"{title}: {len(told)} events, nothing found")
        return told, 0
    print(f"{title}: event {len(told)}: {gist(fault)}", flush=True)
    shortest = shrink(command, events[: len(told)])
    print(f"The shortest stream, {len(shortest)} events:", *shortest, play(command, shortest)[1], sep="\n")
    return told, 1


def soak(command, dialogs):
    events = []
    for dialog in range(dialogs + 1):
        # The same new dialog each time, so that the memory can be compared. Few streams, again and again: what they put
        # into caches is there after the first ones.
        events += [f"{RENEW} 0 0", f"{RENEW} 0 {dialog}"] + random_events(dialog // 2 % 20, 10)
    told, status = work(command, events, f"soak of {dialogs} dialogs")
    if status:
        return status
    # Each line has the bytes and open files before the event. They are 0 under the address sanitizer, which checks for
    # leaks at the end.
    held = [[int(number) for number in line.split()[3:]] for line in told]
    each = len(events) // (dialogs + 1)
    memory, files = (last - first for first, last in zip(held[WARM_UP * each + 1], held[dialogs * each + 1]))
    print(f"{memory} bytes and {files} files more than after {WARM_UP} dialogs")
    return memory > ALLOWED_GROWTH or files > 0


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--events", type=int, default=2000)
    parser.add_argument("--soak", type=int)
    parser.add_argument("--stream", type=argparse.FileType())
    parser.add_argument("--under", default="")
    options = parser.parse_args()
    command = [*shlex.split(options.under), options.program]
    if options.soak is not None:
        return soak(command, max(options.soak, WARM_UP + 1))
    if options.stream:
        return work(command, options.stream.read().splitlines(), options.stream.name)[1]
    return work(command, random_events(options.seed, options.events), f"seed {options.seed}")[1]


sys.exit(main())
