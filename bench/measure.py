"""What the benchmarks share: where things are, workbooks to work on, and programs measured from outside."""
import json
import os
import pathlib
import statistics
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
TOP = HERE.parent
DATA = TOP / "build" / "bench-data"  # workbooks and results
KESTRUNE = TOP / "build" / "bench" / "kestrune"
FLOOR = TOP / "build" / "bench" / "floor"

os.environ["XDG_CONFIG_HOME"] = str(DATA / "config")  # the settings of a fresh installation, whoever runs this


def require(*programs):
    for program in programs:
        if not program.exists():
            sys.exit(f"{program.relative_to(TOP)} is missing: scripts/bench builds it")
    DATA.mkdir(parents=True, exist_ok=True)


def workbook(cells, shape="ledger"):
    """A workbook of that shape and size, made once."""
    book = DATA / f"{shape}-{cells}.xlsx"
    if not book.exists():
        subprocess.run([HERE / "make-workbook", "--shape", shape, str(cells), str(book)], check=True)
    return book


def measured(command, limit=900):
    """Seconds and peak memory (MiB) of a program; None when it takes longer than limit, in seconds, or fails."""
    start = time.perf_counter()
    process = subprocess.Popen([str(part) for part in command], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    deadline = subprocess.Popen(["sh", "-c", f"sleep {limit}; kill -9 {process.pid}"], stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL, start_new_session=True)
    error = process.stderr.read().decode(errors="replace")
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    os.killpg(deadline.pid, 9)
    deadline.wait()
    if status != 0:
        reason = "took too long" if seconds >= limit else (error.strip().splitlines() or ["no message"])[-1]
        print(f"    {pathlib.Path(str(command[-3])).name}: failed: {reason[:200]}", file=sys.stderr)
        return None
    return seconds, usage.ru_maxrss / 1024


def best(command, times):
    """The fastest of some runs, with the largest peak among them."""
    runs = [measured(command) for _ in range(times)]
    if None in runs:
        return None
    return min(run[0] for run in runs), max(run[1] for run in runs)


def steps(book, *arguments, times=3):
    """The steps of a session as `kestrune run` tells them, each with the median of its seconds."""
    command = [str(KESTRUNE), "run", str(book), "--json", "--timing", "--answer", "yes", *arguments]
    runs = []
    for _ in range(times):
        done = subprocess.run(command, text=True, capture_output=True, check=False)
        if done.returncode != 0:
            sys.exit(f"{' '.join(command)}: {done.stderr.strip()}")
        runs.append(json.loads(done.stdout))
    out = runs[0]
    for i, step in enumerate(out):
        step["seconds"] = statistics.median(run[i]["seconds"] for run in runs)
    return out


def keep(name, figures):
    """Puts figures where bench/page finds them."""
    (DATA / f"{name}.json").write_text(json.dumps(figures, indent=1) + "\n")
