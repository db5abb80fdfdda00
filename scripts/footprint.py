#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""footprint.py TITLE LIBRARY TOOL-PREFIX [CALLGRAPH-DIRECTORY]: what a build of the library takes, as a page of text.

For the stack the library must have been built with -fcallgraph-info=su, which leaves .ci files in CALLGRAPH-DIRECTORY.
Exit code: 0 all limits hold, 1 one is missed.
"""
import collections
import pathlib
import re
import subprocess
import sys

DEEP = 8192
READ_ONLY_LIMIT = 64000
ALIGNMENT = 32  # of an array
POINTER_ARRAYS = ("DEF_DSL_MODE", "ZINTU_DEF_IP_INTERFACE")


def run(*command):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout


class Library:
    def __init__(self, path, prefix):
        self.readelf = f"{prefix}readelf"
        self.path = path
        self.sections = {}
        for name, size, flags in re.findall(
                r"^ *\[ *\d+\] (\.\S+) +\S+ +[0-9a-f]+ [0-9a-f]+ ([0-9a-f]+) \S+ +(\w*) ", run(self.readelf, "-SW", path), re.M):
            self.sections[name] = (int(size, 16), flags)
        header = run(self.readelf, "-hW", path)
        self.mips = "MIPS" in header
        self.pointer = 8 if "ELF64" in header else 4
        self.dynamic = run(self.readelf, "-dW", path)
        self.symbols = run(f"{prefix}nm", "-DSP", "--defined-only", path).splitlines()

    def size(self, *names):
        return sum(self.sections.get(name, (0, ""))[0] for name in names)

    def needed(self):
        return re.findall(r"\(NEEDED\).*\[(.*)\]", self.dynamic)

    def object_size(self, name):
        """Bytes of an exported object."""
        return next(int(line.split()[3], 16) for line in self.symbols if line.split()[0].split("@")[0] == name)

    def exported(self):
        """Name -> kind letter."""
        return {line.split()[0].split("@")[0]: line.split()[1] for line in self.symbols if line.split()[1] != "A"}

    def relocations(self):
        return len(re.findall(r"^[0-9a-f]+ +[0-9a-f]+ +R_(?!MIPS_NONE)", run(self.readelf, "-rW", self.path), re.M))

    def constructors(self):
        return self.size(".init_array", ".ctors") // self.pointer + (1 if "(INIT)" in self.dynamic else 0)

    def global_offset_table(self):
        """Bytes of the table that the loader writes beside the relocations: MIPS relocates it as a whole."""
        return self.size(".got") if self.mips else 0


class Calls:
    """Who calls whom, and each function's own frame, out of GCC's call graphs."""

    def __init__(self, directory):
        self.frames, self.callees, self.names = {}, collections.defaultdict(set), {}
        for path in pathlib.Path(directory).rglob("*.ci"):
            text = path.read_text()
            for title, label in re.findall(r'^node: \{ title: "([^"]+)" label: "([^"]*)"', text, re.M):
                own = re.search(r"\\n(\d+) bytes \(([^)]*)\)", label)
                if own:
                    self.frames[title] = int(own[1])
                    if own[2] not in ("static", "dynamic,bounded"):
                        print(f"footprint: the frame of {title} is {own[2]}", file=sys.stderr)
            for source, target in re.findall(r'^edge: \{ sourcename: "([^"]+)" targetname: "([^"]+)"', text, re.M):
                self.callees[source].add(target)
        if not self.frames:
            sys.exit(f"footprint: no call graphs in {directory} (a compiler cache keeps none)")
        # A call across files names the function alone.
        self.full = {title.rsplit(":", 1)[-1]: title for title in self.frames}

    def deepest(self, name, path=()):
        title = name if name in self.frames else self.full.get(name.rsplit(":", 1)[-1])
        if title is None or title in path:
            return 0, ()
        below = max((self.deepest(callee, (*path, title)) for callee in self.callees[title]), default=(0, ()))
        return self.frames[title] + below[0], (title.rsplit(":", 1)[-1], *below[1])


def main():
    title, path, prefix, *directories = sys.argv[1:]
    library = Library(path, prefix)
    exported = library.exported()
    functions = [name for name, kind in exported.items() if kind == "T"]
    text = library.size(".text", ".MIPS.stubs", ".plt", ".plt.got", ".plt.sec", ".init", ".fini")
    read_only = library.size(".rodata")
    relocations = library.relocations()
    got = library.global_offset_table()
    rows = [
        ("text", text, "bytes"),
        ("read-only data", read_only, "bytes"),
        ("text and read-only data", text + read_only, f"bytes; at most {READ_ONLY_LIMIT} on MIPS"),
        ("names and relocations", library.size(".dynsym", ".dynstr", ".gnu.version", ".gnu.version_d", ".gnu.version_r",
                                               ".hash", ".gnu.hash", ".rel.dyn", ".rela.dyn", ".rela.plt"), "bytes"),
        ("relocated data", library.size(".data.rel.ro"), "bytes"),
        ("data", library.size(".data", ".sdata", ".bss", ".sbss"), "bytes"),
        ("relocations", relocations, ""),
        ("written at load", relocations * library.pointer + got, "bytes"),
        ("static constructors", library.constructors(), ""),
        ("exported names", len(exported), f"{len(functions)} functions"),
    ]
    print(f"{title}\n")
    for name, value, unit in rows:
        print(f"  {name:<24}{value:>8}  {unit}".rstrip())
    print(f"  {'needs':<24}{', '.join(library.needed())}\n")
    pointers = sum(map(library.object_size, POINTER_ARRAYS))
    missed = [what for held, what in (
        (not library.mips or text + read_only <= READ_ONLY_LIMIT, "text and read-only data"),
        (library.size(".data.rel.ro") < pointers + ALIGNMENT, "relocated data beside the exported arrays"),
        (library.constructors() == 0, "static constructors"),
        (not directories or show_stacks(Calls(directories[0]), functions), "stack"),
    ) if not held]
    if missed:
        sys.exit(f"footprint: over the limit: {', '.join(missed)}")


def show_stacks(calls, functions):
    """Whether none is too deep."""
    print("  deepest stack of an exported function, without what libc and the platform libraries take below it")
    stacks = sorted(((*calls.deepest(name), name) for name in functions), reverse=True)
    for depth, chain, name in stacks[:12]:
        print(f"  {depth:>8}  {' > '.join(demangled(chain))}")
    deep = sum(1 for depth, _, _ in stacks if depth > DEEP)
    print(f"  {deep} of {len(stacks)} take more than {DEEP} bytes\n")
    return deep == 0


def demangled(names):
    return [re.sub(r"\(.*|^.*anonymous namespace\)::", "", name) or name
            for name in run("c++filt", *names).splitlines()] if names else []


if __name__ == "__main__":
    main()
