#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""debian_test.py BUILD TREE WORK: packs the build and looks at the packages; nothing is installed on the machine."""
import fnmatch
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

BUILD, TREE, WORK = (Path(argument) for argument in sys.argv[1:4])
HERE = Path(__file__).parent
LIBDIR = os.environ["LIBDIR"]


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def pack():
    shutil.rmtree(WORK, ignore_errors=True)
    WORK.mkdir(parents=True)
    cpack = Path(os.environ["CMAKE"]).with_name("cpack")
    run(cpack, "-G", "DEB", "--config", BUILD / "CPackConfig.cmake", "-B", WORK / "out", cwd=WORK)
    return {deb.name.split("_")[0]: deb for deb in (WORK / "out").glob("*.deb")}


def files_of(deb):
    lines = run("dpkg-deb", "-c", deb).splitlines()
    assert all(line.split()[1] == "root/root" for line in lines), f"{deb.name}: not all is root's"
    return {line.split()[5][1:] for line in lines if not line.startswith("d")}


def expected():
    """The packages and the patterns of their files, from the list."""
    packages = {}
    for line in (HERE / "debian_files.txt").read_text().replace("@LIBDIR@", LIBDIR).splitlines():
        if line.startswith("/"):
            package.append(line)
        elif line and not line.startswith("#"):
            package = packages.setdefault(line, [])
    return packages


def check_files(debs):
    owners = {}
    for name, patterns in expected().items():
        files = files_of(debs[name])
        strays = {file for file in files if not any(fnmatch.fnmatchcase(file, pattern) for pattern in patterns)}
        missing = {pattern for pattern in patterns if not fnmatch.filter(files, pattern)}
        assert not strays and not missing, f"{name}: unexpected {strays}, missing {missing}"
        for file in files:
            assert file not in owners, f"{file} is in {owners[file]} and in {name}"
            owners[file] = name
    installed = {"/usr/" + str(file.relative_to(TREE)) for file in TREE.rglob("*") if not file.is_dir()}
    assert set(owners) == installed, f"packed and installed differ: {set(owners) ^ installed}"


def check_fields(debs):
    wanted = {
        "libcaltofal1": r"caltofal-sandbox \(= (\S+)\) \| caltofal-platform, libc6 \(.*\)$",  # no C++ run-time library
        "libcaltofal-dev": r"libcaltofal1 \(= (\S+)\)$",
        "caltofal": r"libcaltofal1 \(= (\S+)\), .*libsmartcols1 .*libstdc\+\+6 ",
        "caltofal-web": r"libcaltofal1 \(= (\S+)\), .*libmicrohttpd12 .*libstdc\+\+6 ",
        "caltofal-sandbox": r"(?=.*libsqlite3-0 )(?!.*libcaltofal)",
    }
    for name, pattern in wanted.items():
        depends = run("dpkg-deb", "-f", debs[name], "Depends").strip()
        match = re.match(pattern, depends)
        assert match, f"{name} depends on {depends}"
        version = run("dpkg-deb", "-f", debs[name], "Version").strip()
        assert match.group(1) == version if match.groups() else True, f"{name} {version} depends on {depends}"
        summary, _, text = run("dpkg-deb", "-f", debs[name], "Description").partition("\n")
        assert len(summary) <= 80 and text.strip(), f"{name}: {summary}"
    shlibs = run("dpkg-deb", "-I", debs["libcaltofal1"], "shlibs")
    assert re.fullmatch(r"libcaltofal 1 libcaltofal1 \(>= \S+\)\n", shlibs), shlibs


def check_use(debs):
    """The unpacked packages work together, from wherever they lie."""
    root = WORK / "root"
    for deb in debs.values():
        run("dpkg-deb", "-x", deb, root)
    environment = {"PATH": f"{root}/usr/bin:/usr/bin:/bin", "HOME": str(WORK),
                   "CALTOFAL_SANDBOX_DIR": str(WORK / "gateways")}
    assert run("caltofal", "wan", "--if-name", env=environment, executable=root / "usr/bin/caltofal").strip()
    radio = ("get", "Device.WiFi.Radio.1.Channel", "--values")
    run("caltofal", "set", "Device.WiFi.Radio.1.Channel=11", env=environment)
    assert run("caltofal", *radio, env=environment) == "11\n"
    assert "* home" in run("caltofal-sandbox", "list", env=environment)
    gateway = root / "usr/share/caltofal/gateways/dhcp.tr181"
    run("caltofal-sandbox", "new", "lab", "--from", gateway, env=environment)
    assert run("caltofal-sandbox", "diff", "lab", "dhcp", env=environment) == ""


packages = pack()
assert set(packages) == set(expected()), f"packages: {sorted(packages)}"
check_files(packages)
check_fields(packages)
check_use(packages)
