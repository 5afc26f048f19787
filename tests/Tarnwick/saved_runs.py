"""History files for tests, pictures and benchmarks, written before a window starts."""

import json
import math
import os
import pathlib
import uuid

GB = 10**9
VOLUMES = [("Samsung SSD 990 PRO", "Internal", "internalDrive", "ext4", 6_400_000_000, 7_100_000_000),
           ("Backup", "External", "external", "exfat", 412_000_000, 431_500_000),
           ("media", "Network", "network", "nfs", 104_200_000, 112_700_000),
           ("SD card", "Removable", "external", "vfat", 24_300_000, 88_900_000)]


def curve(rate, seconds, points, seed):
    """A jagged curve that falls at the end, like that of a drive with a full cache."""
    return [{"t": seconds * (i + 1) / points,
             "v": rate * (1 + 0.12 * math.sin(1.7 * i + seed) + 0.08 * math.sin(0.31 * i * seed + 2)) * (0.55 if i > 0.8 * points else 1)}
            for i in range(points)]


def run(index, **fields):
    """A complete record; `fields` replace its fields, None removes one."""
    name, connection, kind, file_system, write, read = VOLUMES[index % len(VOLUMES)]
    seconds = 5 * GB / write
    record = {
        "id": str(uuid.UUID(int=0x5EED0000000040008000000000000000 + index)).upper(),
        "volumeName": name, "connection": connection, "date": f"2026-{12 - index // 28:02}-{28 - index % 28:02}T08:{index:02}:00Z",
        "duration": round(2.2 * seconds, 2), "writeBps": write, "writePeakBps": write * 1.19, "writeMinBps": write * 0.44,
        "readBps": read, "readPeakBps": read * 1.19, "readMinBps": read * 0.44, "randomReadBps": read * 0.02,
        "randomWriteBps": write * 0.02, "randomReadIOPS": read * 0.02 // 4096, "randomWriteIOPS": write * 0.02 // 4096,
        "fileOpsPerSec": 18_400 + 311 * index, "writeSamples": curve(write, seconds, 159, 1 + index),
        "readSamples": curve(read, seconds * write / read, 159, 3 + index), "fsType": file_system, "optimalIO": 1048576,
        "blockSize": 4096, "maxName": 255, "capacityBytes": 2000 * GB, "freeBytes": 871 * GB, "sizeLabel": "5 GiB",
        "writeBlock": 1048576, "readBlock": 1048576, "randomBlock": 4096, "bypassCache": True,
        "deviceModel": name, "deviceProtocol": "NVMe", "kind": kind}
    return {key: value for key, value in (record | fields).items() if value is not None}


FIGURES = ("writeBps", "writePeakBps", "writeMinBps", "readBps", "readPeakBps", "readMinBps", "randomReadBps", "randomWriteBps",
           "randomReadIOPS", "randomWriteIOPS", "fileOpsPerSec")
FACTS = ("fsType", "optimalIO", "blockSize", "maxName", "capacityBytes", "freeBytes", "sizeLabel", "writeBlock", "readBlock",
         "randomBlock", "bypassCache", "deviceModel", "deviceProtocol")


def odd_runs():
    """Extreme runs and names."""
    nothing = dict.fromkeys(FIGURES) | {"writeSamples": [], "readSamples": []}
    one = {"writeSamples": [{"t": 0.4, "v": 9e8}], "readSamples": [{"t": 0.2, "v": 1e9}]}
    still = {"writeSamples": [{"t": 2, "v": 1e8 * i} for i in range(159)], "readSamples": [{"t": 0, "v": 5e8}] * 159}
    zero = dict.fromkeys(FIGURES, 0) | {"writeSamples": [{"t": i, "v": 0} for i in range(9)], "readSamples": [{"t": 0, "v": 0}] * 3}
    huge = dict.fromkeys(FIGURES, 9.9e15) | {"writeSamples": [{"t": i * 1e6, "v": 9.9e15} for i in range(20)]}
    return [run(0, customTitle="No figures at all", **nothing),
            run(1, customTitle="No facts of the volume", **dict.fromkeys(FACTS)),
            run(2, customTitle="One sample", **one),
            run(3, customTitle="A curve in no time", **still),
            run(4, customTitle="Zero rates", duration=0, **zero),
            run(5, customTitle="Rates beyond everything", duration=1e9, capacityBytes=2**62, freeBytes=0, **huge),
            run(6, customTitle="W" * 60),
            run(7, customTitle="The drive from the attic that makes that noise, third try ok"),
            run(8, customTitle="كرص النسخ الاحتياطي القديم الذي وجدته في العلية أمس"),
            run(9, customTitle="דיסק הגיבוי הישן שמצאתי בעליית הגג אתמול"),
            run(10, customTitle="屋根裏で見つけた古いバックアップ用ディスクの三回目の測定結果です念のため"),
            run(11, customTitle="💾🚀 fast 👩‍🔧🏳️‍🌈 <b>bold</b> & co\u202e dlrow"),
            run(12, volumeName=""),
            run(13, volumeName="V" * 255, sizeLabel="Fill disk", fsType="fuse.something-rather-long")]


def history(data_home=None):
    return pathlib.Path(data_home or os.environ["XDG_DATA_HOME"], "tools.ondel.tarnwick", "history.json")


def lay_down(runs, data_home=None):
    """Writes them as the history of programs that start afterwards."""
    file = history(data_home)
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(json.dumps(runs, ensure_ascii=False), encoding="utf-8")


def stored():
    return json.loads(history().read_text(encoding="utf-8"))


GIB = 2**30


def capacity_check(sentence_of, planned=118 * GIB, **fields):
    """A stored capacity check of a stick of 128 GB. `sentence_of`: "good", "false" (a quarter is real), "changed" or "sampled"."""
    count = 4096
    cells = {"false": "v" * (count // 4) + "x" * (count * 3 // 4), "changed": "v" * 1430 + "x" + "v" * 2000 + "u" + "v" * 664,
             "sampled": ("v" + "-" * 63) * 64}.get(sentence_of, "v" * count)
    rates = [{"offset": planned * i // 300, "bytesPerSecond": 8e7 - 1e5 * i + 3e6 * math.sin(i)} for i in range(300)]
    faster = [{"offset": rate["offset"], "bytesPerSecond": rate["bytesPerSecond"] * 1.3} for rate in rates]
    wrong = planned * 3 // 4
    found = {"good": {}, "sampled": {"quick": {"isSpread": True, "samples": 64, "spacing": planned // 64, "reserved": planned}},
             "false": {"verified": planned - wrong, "wrong": wrong, "bytesByKind": {"otherBlock": wrong},
                       "defects": [{"kind": "otherBlock", "offset": planned - wrong, "length": wrong, "holds": 0}],
                       "realSize": {"reason": "wrapsAround", "bytes": 31_400_000_000, "isExact": True}},
             "changed": {"verified": planned - 16384, "wrong": 12288, "unreadable": 4096, "bytesByKind": {"bitFlips": 12288, "unreadable": 4096},
                         "defects": [{"kind": "bitFlips", "offset": int(41.2 * GIB) // 4096 * 4096, "length": 12288, "flippedBits": 5},
                                     {"kind": "unreadable", "offset": 98 * GIB, "length": 4096, "errno": 5}]}}[sentence_of]
    record = {
        "id": str(uuid.uuid4()).upper(), "volumeName": "STICK", "connection": "Removable", "date": "2026-03-14T09:26:53Z", "duration": 2702.5,
        "leaveFree": 2**26, "planned": planned, "written": planned, "verified": planned,
        "write": {"bytes": planned, "duration": 1500.0, "rates": rates, "shareAtDisk": 1.0},
        "read": {"bytes": planned, "duration": 1200.0, "rates": faster, "shareAtDisk": 1.0},
        "cells": {"cellBytes": planned // count, "states": cells}, "volumeTotal": 128 * GB, "volumeFree": planned + 2**26,
        "fsType": "exfat", "deviceModel": "ACME Flash", "deviceProtocol": "USB", "version": "1.0.0"}
    return record | found | fields


def lay_down_checks(checks):
    """Writes them as the former checks of programs that start afterwards."""
    file = history().with_name("checks.json")
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(json.dumps(checks, ensure_ascii=False), encoding="utf-8")
