#!/usr/bin/env python3
"""Start-up against the floor: from exec until the year view is on the screen.

    bench/start.py BUILD DATA [PAIRS]

BUILD is a release build with the benches, DATA a data folder (it is copied). Both programs are started in turn under
Xvfb with a window manager and a session bus; printed are the medians of the pairs' ratios.

2026-11-23, Debian 12, four virtual cores, a run of 151 pairs (and three of 31): 1.05 of the floor (1.01 to 1.05; 47
against 44 ms; aim: 1.10); processor time until the view is there 1.145 (1.12 to 1.16; 36 against 32 ms; aim: 1.15), with
the panels that follow it 1.32 (1.28 to 1.34); peak memory 1.15 (aim: 1.25). With the scan of the fonts begun at once
1.03 and 1.165, without one beside the rest 1.08 and 1.14.
"""
import ctypes
import os
import pathlib
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

REGION = (100, 160, 500, 200)  # of the screen: both programs have white paper there once they are painted
SCREEN = "1280x1024x24"


class Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.POINTER(ctypes.c_uint32)), ("byte_order", ctypes.c_int), ("unit", ctypes.c_int),
                ("bit_order", ctypes.c_int), ("pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int)]


class Screen:
    """Looks at the virtual screen's pixels."""

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XGetImage.restype = ctypes.POINTER(Image)
        self.x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                                       ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        self.x11.XDestroyImage.argtypes = [ctypes.POINTER(Image)]
        self.display = self.x11.XOpenDisplay(display.encode())
        self.root = self.x11.XDefaultRootWindow(self.display)

    def white(self):
        """The share of white among some points of the region, 0..1."""
        image = self.x11.XGetImage(self.display, self.root, *REGION, 0xFFFFFFFF, 2)
        points = range(0, REGION[2] * REGION[3], 97)
        share = sum(image.contents.data[i] & 0xFFFFFF == 0xFFFFFF for i in points) / len(points)
        self.x11.XDestroyImage(image)
        return share


def started(screen, program, environment):
    """Seconds until the program's paper is on the screen, its processor seconds until then and a quarter of a second
    later, its peak memory in KiB."""
    while screen.white() > 0.1:
        time.sleep(0.01)
    begin = time.perf_counter()
    process = subprocess.Popen([program], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while screen.white() < 0.4:
        if time.perf_counter() - begin > 20:
            sys.exit(f"{program} does not appear")
        time.sleep(0.0005)
    seconds = time.perf_counter() - begin
    busy = time.clock_gettime((~process.pid << 3) | 2)  # the process's own clock, threads that have ended included
    time.sleep(0.25)
    process.send_signal(signal.SIGKILL)
    _, _, usage = os.wait4(process.pid, 0)
    return seconds, busy, usage.ru_utime + usage.ru_stime, usage.ru_maxrss


def measure(build, data, pairs, display):
    environment = dict(os.environ, DISPLAY=display)
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["cmake", "--install", build, "--prefix", folder], check=True, stdout=subprocess.DEVNULL)
        shutil.copytree(data, folder, dirs_exist_ok=True)
        programs = [str(pathlib.Path(folder) / "tasmoro"), str(pathlib.Path(build).resolve() / "bench" / "floor")]
        screen = Screen(display)
        for program in programs:
            started(screen, program, environment)
        rows = [[started(screen, program, environment) for program in programs] for _ in range(pairs)]
    for at, what in enumerate(["exec to the year view", "user and system time until then",
                              "user and system time 0.25 s later", "peak memory"]):
        ratio = statistics.median(ours[at] / floor[at] for ours, floor in rows)
        middle = [statistics.median(row[who][at] for row in rows) for who in (0, 1)]
        unit = (1 / 1024, "MiB") if at == 3 else (1000, "ms")
        print(f"{what}: {ratio:.3f} of the floor ({middle[0] * unit[0]:.1f} against {middle[1] * unit[0]:.1f} {unit[1]})")


def main():
    if "DBUS_SESSION_BUS_ADDRESS" not in os.environ:
        sys.exit(subprocess.call(["dbus-run-session", "--", sys.executable, *sys.argv]))
    build, data = sys.argv[1:3]
    pairs = int(sys.argv[3]) if len(sys.argv) > 3 else 15
    display = f":{70 + os.getpid() % 9}"
    server = subprocess.Popen(["Xvfb", display, "-screen", "0", SCREEN], stderr=subprocess.DEVNULL)
    time.sleep(1)
    manager = subprocess.Popen(["openbox"], env=dict(os.environ, DISPLAY=display), stderr=subprocess.DEVNULL)
    time.sleep(1)
    try:
        measure(build, data, pairs, display)
    finally:
        manager.kill()
        server.kill()


main()
