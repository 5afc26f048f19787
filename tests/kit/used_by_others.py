"""The examples as built from the installed libraries, and the C interface from another language.
Usage: used_by_others.py FOLDER LIBRARIES: the examples' folders with their builds, and where libondel.so is."""

import ctypes
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import threading
import time

import _ctypes


def check(is_right, message):
    if not is_right:
        sys.exit(f"used_by_others: {message}")


def fields(*rows):
    return [(name, kind) for kind, names in rows for name in names.split()]


class Plan(ctypes.Structure):
    _fields_ = fields((ctypes.c_size_t, "struct_size"), (ctypes.c_uint32, "tests bypass_cache"),
                      (ctypes.c_int64, "file_bytes leave_free write_block_bytes read_block_bytes random_block_bytes random_ops file_ops"),
                      (ctypes.c_double, "sample_seconds"))


class Progress(ctypes.Structure):
    _fields_ = fields((ctypes.c_size_t, "struct_size"), (ctypes.c_uint32, "test"), (ctypes.c_int64, "completed total"),
                      (ctypes.c_double, "bytes_per_second elapsed_seconds"))


class Remark(ctypes.Structure):
    _fields_ = fields((ctypes.c_char_p, "code"), (ctypes.c_uint32, "test"), (ctypes.c_int32, "weight"))


class Result(ctypes.Structure):
    _fields_ = fields((ctypes.c_size_t, "struct_size"), (ctypes.c_uint32, "tests remark_count"),
                      (ctypes.c_double, "write write_sustained write_peak read read_sustained read_peak random_read random_write "
                                        "random_read_p99 random_write_p99 created looked_up renamed deleted"),
                      (Remark * 32, "remarks"), (ctypes.c_char * 256, "message"))


class LargerResult(ctypes.Structure):
    """What a program that was built with a later header has."""
    _fields_ = [("known", Result), ("later", ctypes.c_double)]


HEARS = ctypes.CFUNCTYPE(None, ctypes.POINTER(Progress), ctypes.c_void_p)
OK, CANCELLED, BAD_ARGUMENT, NOT_WRITABLE = 0, 1, 2, 4
SILENT = ctypes.cast(None, HEARS)


def loaded(path):
    library = ctypes.CDLL(str(path))
    library.ondel_stop_new.restype = ctypes.c_void_p
    library.ondel_version.restype = ctypes.c_char_p
    library.ondel_run.argtypes = [ctypes.c_void_p, ctypes.c_char_p, HEARS, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p]
    for take in (library.ondel_cancel, library.ondel_stop_free):
        take.argtypes = [ctypes.c_void_p]
    return library


def small_plan(library, **changes):
    plan = Plan()
    library.ondel_plan_init(ctypes.byref(plan), ctypes.c_size_t(ctypes.sizeof(plan)))
    check(plan.file_bytes == 5368709120 and plan.tests == 31, "the default plan is another one")
    for name, value in ({"file_bytes": 4194304, "random_ops": 50, "file_ops": 20} | changes).items():
        setattr(plan, name, value)
    return plan


def empty_result(library, kind=Result):
    result = kind()
    library.ondel_result_init(ctypes.byref(result), ctypes.c_size_t(ctypes.sizeof(result)))
    return result


def run(library, folder, plan, hears=SILENT, stop=None, result=None):
    result = result or empty_result(library)
    status = library.ondel_run(ctypes.byref(plan), os.fsencode(folder), hears, None, stop, ctypes.byref(result))
    check(not os.listdir(folder), f"left behind: {os.listdir(folder)}")
    return status, result


def measures(library, folder):
    status, result = run(library, folder, small_plan(library))
    check(status == OK and result.tests == 31 and result.message == b"", f"a run ends with {status}: {result.message}")
    figures = [getattr(result, name) for name, kind in Result._fields_ if kind is ctypes.c_double]
    check(all(figure > 0 for figure in figures), f"a figure is missing: {figures}")
    codes = [result.remarks[index].code for index in range(result.remark_count)]
    check(result.remark_count <= 32 and all(code.isalpha() for code in codes), f"the remarks are {codes}")

    larger = empty_result(library, LargerResult)
    larger.later = 7.5
    status, _ = run(library, folder, small_plan(library), result=larger)
    check(status == OK and larger.known.write > 0 and larger.later == 7.5, "a larger struct is not left alone")


def refuses_nonsense(library, folder):
    library.ondel_plan_init(None, ctypes.c_size_t(200))
    library.ondel_result_init(None, ctypes.c_size_t(2000))
    library.ondel_cancel(None)
    library.ondel_stop_free(None)
    plan, result = small_plan(library), empty_result(library)
    words = [ctypes.byref(plan), os.fsencode(folder), SILENT, None, None, ctypes.byref(result)]
    for missing in (0, 1, 5):
        given = [None if index == missing else word for index, word in enumerate(words)]
        check(library.ondel_run(*given) == BAD_ARGUMENT, f"without argument {missing} it runs")
    for name, value in (("random_ops", -1), ("file_ops", -5), ("file_bytes", -2), ("leave_free", -1), ("tests", 32),
                        ("sample_seconds", float("nan")), ("struct_size", 8), ("struct_size", 0)):
        status, _ = run(library, folder, small_plan(library, **{name: value}))
        check(status == BAD_ARGUMENT, f"a plan with {name} {value} ends with {status}")
    status = library.ondel_run(ctypes.byref(plan), b"/proc/self", *words[2:])
    check(status == NOT_WRITABLE and result.message, f"a folder that is not writable ends with {status}")
    record = (ctypes.c_int32 * 128)(*[-1] * 128)
    check(library.ondel_read_smart(b"no-such-device", record) == 0 and record[0] == 0, "a drive that is not there has health")
    check(library.ondel_read_smart(None, record) == 0 and library.ondel_read_smart(b"x", None) == 0, "null has health")


def is_cancelled_from_its_callback(library, folder):
    stop = library.ondel_stop_new()
    status, result = run(library, folder, small_plan(library, file_bytes=1073741824), HEARS(lambda *_: library.ondel_cancel(stop)), stop)
    check(status == CANCELLED and result.tests == 0, f"a run that its callback cancels ends with {status}")
    library.ondel_stop_free(stop)


def runs_twice_at_once(library, folder):
    """From threads without an event loop, each in a folder of its own."""
    ends = []

    def measure(name):
        own = pathlib.Path(folder, name)
        own.mkdir()
        ends.append(run(library, own, small_plan(library))[0])
        own.rmdir()

    threads = [threading.Thread(target=measure, args=(name,)) for name in "ab"]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    check(ends == [OK, OK], f"two runs at once end with {ends}")


def survives_being_unloaded(path, folder):
    library = loaded(path)
    stop, begun, ends = library.ondel_stop_new(), threading.Event(), []
    hears = HEARS(lambda *_: begun.set())
    result = empty_result(library)
    thread = threading.Thread(target=lambda: ends.append(library.ondel_run(
        ctypes.byref(small_plan(library, file_bytes=268435456)), os.fsencode(folder), hears, None, stop, ctypes.byref(result))))
    cancel = library.ondel_cancel
    thread.start()
    begun.wait()
    for _ in range(3):  # whoever has loaded it before
        _ctypes.dlclose(library._handle)
    cancel(stop)
    thread.join()
    check(ends == [CANCELLED] and not os.listdir(folder), f"an unloaded library ends with {ends} and {os.listdir(folder)}")


def tells(program, *arguments, **variables):
    done = subprocess.run([program, *arguments], capture_output=True, text=True, env=os.environ | variables)
    return done.returncode, done.stdout, done.stderr


if __name__ == "__main__":
    examples, libraries = map(pathlib.Path, sys.argv[1:])
    os.environ["LD_LIBRARY_PATH"] = str(libraries)
    with tempfile.TemporaryDirectory(prefix="ondel-test-") as name:
        comma = {"LC_ALL": "de_DE.UTF-8", "HOME": name, "XDG_RUNTIME_DIR": name, "DBUS_SESSION_BUS_ADDRESS": "disabled:", "PATH": "/nowhere"}
        folder = pathlib.Path(name, "measured")
        folder.mkdir()
        begun = time.monotonic()
        status, words, errors = tells(examples / "terminal/build/measure-folder", folder, **comma)
        check(status == 0 and re.search(r"^Write  [0-9.,]+ [MG]B/s\nRead   [0-9.,]+ [MG]B/s$", words, re.M), f"measure-folder: {words}{errors}")
        print(f"measure-folder, {time.monotonic() - begun:.1f} s:\n{words.rstrip()}")
        status, _, errors = tells(examples / "terminal/build/measure-folder", folder, "--open", **comma)
        check(status == 0 and errors == "Ondel Tarnwick did not open the run.\n", f"nobody opens a run: {errors}")
        status, words, errors = tells(examples / "c/build/measure-in-c", folder)
        check(status == 0 and words.startswith("Write  "), f"measure-in-c: {words}{errors}")
        print(f"measure-in-c:\n{words.rstrip()}")
        status, _, errors = tells("timeout", "3", examples / "window/build/live-chart", folder, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", XDG_RUNTIME_DIR=name)
        check((status, errors) == (124, ""), f"live-chart ends with {status}: {errors}")
        check(not os.listdir(folder), "an example leaves something behind")

        library = loaded(libraries / "libondel.so")
        measures(library, folder)
        refuses_nonsense(library, folder)
        is_cancelled_from_its_callback(library, folder)
        runs_twice_at_once(library, folder)
        survives_being_unloaded(libraries / "libondel.so", folder)
        print(f"libondel {library.ondel_version().decode()} from Python: in order")
