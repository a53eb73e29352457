"""Runs test programs: under Wine with a display that lasts from one run to the next, or natively."""

import os
import pathlib
import re
import selectors
import subprocess
import time

from mutation.plan import ROOT


class Session:
    """A display and a Wine of its own in which one test program after the other runs: what has begun once is not begun anew
    for each change. Begins anew after a program that did not end by itself, because that may leave keys held down."""

    def __init__(self, number=1):
        self.number = number
        self.display = None

    def begin(self):
        if self.display:
            return
        read, write = os.pipe()
        self.display = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24", "-noreset", "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()
        script = ('quor_name=mutate; source "$0/tools/lib.sh"; set_wine_environment; '
                  'export WINEPREFIX=$("$0/tools/wine-prefix.sh" "$1"); wine_loader; env -0')
        output = subprocess.run(["bash", "-c", script, str(ROOT), f"mutate-{self.number}"],
                                check=True, capture_output=True, text=True).stdout
        self.loader, _, settings = output.partition("\n")
        self.environment = dict(entry.split("=", 1) for entry in settings.split("\0") if "=" in entry)
        self.environment["DISPLAY"] = f":{number}"
        subprocess.run(["wineserver", "-p"], env=self.environment, check=False)

    def end(self):
        if self.display:
            subprocess.run(["wineserver", "-k"], env=self.environment, check=False)
            self.display.terminate()
            self.display.wait()
            self.display = None

    def run(self, program, options, settings, limit=None, silence=240):
        """(whether all tests passed, output, whether the program ended by itself)"""
        native = not str(program).endswith(".exe")
        if native:
            command, environment = [str(program)], dict(os.environ)
        else:
            self.begin()
            # Program, Wine and display answer each other at every step, which costs more on several cores.
            core = str(self.number % (os.cpu_count() or 1))
            command, environment = ["taskset", "-c", core, self.loader, str(program)], dict(self.environment)
        process = subprocess.Popen([*command, *options], env={**environment, **settings}, cwd=program.parent,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        output, ended = watched_output(process, limit, silence)
        code = process.wait()
        if not native and (not ended or code not in (0, 1)):
            self.end()
        # A crash that the debugger of Wine reports may end with the exit code 0.
        passed = ended and code == 0 and "[  PASSED  ]" in output and "Unhandled" not in output
        return passed, output, ended


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def processor_time(process):
    try:
        fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
    except OSError:
        return 0.0


def watched_output(process, limit, silence):
    """What the process writes, and whether it ended by itself: it is ended when it takes more processor time than allowed, or
    stands still."""
    output, heard = b"", time.monotonic()
    with selectors.DefaultSelector() as selector:
        selector.register(process.stdout, selectors.EVENT_READ)
        while True:
            if selector.select(0.5):
                read = os.read(process.stdout.fileno(), 65536)
                if not read:
                    return output.decode(errors="replace"), True
                output, heard = output + read, time.monotonic()
            elif process.poll() is not None:
                # What it has started, such as the desktop of Wine, may hold the pipe open.
                return output.decode(errors="replace"), True
            too_long = limit is not None and processor_time(process) > limit
            if too_long or (limit is not None and time.monotonic() - heard > silence):
                process.kill()
                return output.decode(errors="replace"), False


def failed_test(output):
    """The first test that failed, or that was running when the program ended."""
    failed = re.findall(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    if failed:
        return failed[0]
    started = re.findall(r"^\[ RUN      \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    ended = re.findall(r"^\[       OK \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    return started[-1] if len(started) > len(ended) else None
