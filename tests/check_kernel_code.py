#!/usr/bin/env python3
"""Checks the compiled kernels' shape: every kernel's stack frame stays under
2.5 KiB (1.25 KiB for the real and Hartley kernels), and its code has no loop (no cycle in its control flow) and no call
except to its own unaligned twin.  A kernel with forms for several
instruction sets (owng<kernel>_sse2, _avx2, ...) may also ask which set the
process runs and go to one of its forms (or a piece of one that the compiler
split off, <form>.part.N).  No function of the library holds a fused
multiply-add, which rounds once where two roundings are written.  Walsh-Hadamard kernels of orders 8 to 13
are the exception: they loop over the blocks of their passes and may call
vtxMalloc and vtxFree for a work buffer, but nothing else.

usage: check_kernel_code.py <library.so> <directory with .su files> [<compiler id>]
"""
import re
import subprocess
import sys
from pathlib import Path

LIMIT = 2560
# The real and Hartley kernels run single lanes, packed into 16-byte vectors
# where that pays; a packed kernel spills 16-byte values (the float inverse
# real 63 takes 1128 bytes, every single-lane kernel at most 1008).
SCALAR_LIMIT = 1280
# With eight vector registers (32-bit x86) the longest of them spill more:
# the generator fits their statement order to the sixteen of x86-64, and the
# packed float inverse real kernels of 59 take 1808 bytes there (the double
# single-lane ones of 59 1360).
SCALAR_LIMIT_32 = 2048
# The statement order is fitted to GCC, whose allocator keeps it; another
# compiler (clang) reorders and spills more in the scalar kernels, and is
# held to the general limit.
FITTED_COMPILER = "GNU"
SCALAR = re.compile(r"^(vtxg|owng)(DFT(Fwd|Inv)_(R|CCS|Pack|Perm)To|Hartley)")
# Fixed-size kernels and their twins; the size dispatchers (no size in the
# name) are plain table calls and not kernels.
KERNEL = re.compile(r"^(vtxg|owng)(DFT|WHT|Hartley)\w*_\d+_")
BLOCKED = re.compile(r"^(vtxg|owng)WHT_(8|9|1[0-3])_")
BUFFER_CALLS = {"vtxMalloc@plt", "vtxFree@plt"}
FUSED = re.compile(r"^vfn?m(add|sub)")
FORM = re.compile(r"^(owng\w+_\d+_\w+?)_(sse2|avx2|avx512)$")
SETS = ("sse2", "avx2", "avx512")
SET_QUERY = "_ZN3vtx10active_isaEv"


def allowed_targets(name):
    """The functions a kernel may call or jump to: its twin, its forms, and
    the pieces the compiler split off them."""
    form = FORM.match(name)
    stem = form.group(1)[4:] if form else name[4:]
    if not (form or name.startswith("vtxg")):
        return set(), ()
    forms = ["owng" + stem + "_" + s for s in SETS]
    return {"owng" + stem + "_unaligned", *forms}, tuple(f + ".part." for f in forms)


def stack_usage(root):
    usage = {}
    for su in Path(root).rglob("*.su"):
        for line in su.read_text().splitlines():
            parts = line.split("\t")
            if len(parts) < 2:
                continue
            found = re.search(r"\b((?:vtxg|owng)\w+)(?:\(|$)", parts[0])
            name = found.group(1) if found else ""
            if KERNEL.match(name):
                usage[name] = max(usage.get(name, 0), int(parts[1]))
    return usage


def functions(library):
    text = subprocess.run(["objdump", "-d", "--no-show-raw-insn", library],
                          check=True, capture_output=True, text=True).stdout
    current, body = None, []
    for line in text.splitlines():
        head = re.match(r"^([0-9a-f]+) <([^>]+)>:$", line)
        if head:
            if current:
                yield current, body
            current, body = head.group(2), []
            continue
        ins = re.match(r"^\s+([0-9a-f]+):\s+(\S+)\s*(.*)$", line)
        if ins and current:
            body.append((int(ins.group(1), 16), ins.group(2), ins.group(3)))
    if current:
        yield current, body


def has_cycle(successors, start):
    """Depth-first search for a back edge in the control-flow graph."""
    if start is None:
        return False
    state = {}  # 1 on the path, 2 done
    stack = [(start, iter(successors.get(start, [])))]
    state[start] = 1
    while stack:
        node, it = stack[-1]
        advanced = False
        for nxt in it:
            if state.get(nxt) == 1:
                return True
            if nxt not in state:
                state[nxt] = 1
                stack.append((nxt, iter(successors.get(nxt, []))))
                advanced = True
                break
        if not advanced:
            state[node] = 2
            stack.pop()
    return False


def main():
    library, su_root = sys.argv[1], sys.argv[2]
    compiler = sys.argv[3] if len(sys.argv) > 3 else FITTED_COMPILER
    problems = []
    with open(library, "rb") as f:
        elf_class = f.read(5)[4]  # 1: a 32-bit object
    scalar_limit = SCALAR_LIMIT_32 if elf_class == 1 else SCALAR_LIMIT
    if compiler != FITTED_COMPILER:
        scalar_limit = LIMIT
    usage = stack_usage(su_root)
    if not usage:
        problems.append("no stack usage records found under " + su_root)
    for name, size in sorted(usage.items()):
        if size >= (scalar_limit if SCALAR.match(name) else LIMIT):
            problems.append(f"{name}: stack frame of {size} bytes")
    kernels = 0
    for name, body in functions(library):
        problems += [f"{name}: fused multiply-add {op} {args}" for _, op, args in body if FUSED.match(op)]
        if not KERNEL.match(name):
            continue
        kernels += 1
        targets, parts = allowed_targets(name)
        ours = lambda t: t in targets or t.startswith(parts)  # noqa: E731
        blocked = BLOCKED.match(name) is not None
        successors = {}
        for i, (address, op, args) in enumerate(body):
            target = re.search(r"([0-9a-f]+) <([^>+]+)(\+0x[0-9a-f]+)?>", args)
            following = body[i + 1][0] if i + 1 < len(body) else None
            nxt = []
            if op.startswith("call"):
                # 32-bit position-independent code reads its own address
                # through a thunk to reach the constants: no call of substance.
                if target and target.group(2).startswith("__x86.get_pc_thunk"):
                    pass
                elif blocked and target and target.group(2) in BUFFER_CALLS:
                    pass
                elif target and target.group(2) == SET_QUERY and FORM.match(name) is None and targets:
                    pass
                elif not target or not ours(target.group(2)):
                    problems.append(f"{name}: call {args}")
                nxt.append(following)
            elif op.startswith("j"):
                if target and target.group(2) == name:
                    nxt.append(int(target.group(1), 16))
                elif not target or not ours(target.group(2)):
                    problems.append(f"{name}: jump out to {args}")
                if op != "jmp":
                    nxt.append(following)
            elif not op.startswith("ret") and not op.startswith("ud2"):
                nxt.append(following)
            successors[address] = [a for a in nxt if a is not None]
        if not blocked and has_cycle(successors, body[0][0] if body else None):
            problems.append(f"{name}: its code has a loop")
    if kernels == 0:
        problems.append("no kernels found in " + library)
    for p in problems:
        print(p)
    print(f"{kernels} kernel functions, {len(usage)} stack records, largest frame "
          f"{max(usage.values(), default=0)} bytes")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
