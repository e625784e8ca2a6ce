"""The package installed: by `cmake --install` under a temporary prefix and
by pip from the source tree (offline, no build isolation), each imported
from there by a fresh interpreter that finds the library through the
extension's RPATH alone and transforms with the bits of the build tree."""

import os
import pathlib
import subprocess
import sys

import numpy as np
import pytest

import vtxgen

SOURCE = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(vtxgen.__file__).resolve().parents[2]  # <build>/python/vtxgen/__init__.py

# Run in the installed tree: where the package and the library were loaded
# from, then the bits of a transform.
PROBE = """
import sys, numpy as np, vtxgen
library = next(line.split()[-1] for line in open("/proc/self/maps") if "libvtxgenp8" in line)
print(vtxgen.__file__)
print(library)
print(vtxgen.fft2(np.arange(48.0).reshape(6, 8)).tobytes().hex())
"""


def install_cmake(prefix):
    subprocess.run(["cmake", "--install", str(BUILD), "--prefix", str(prefix)], check=True,
                   stdout=subprocess.DEVNULL)
    cache = (BUILD / "CMakeCache.txt").read_text()
    return prefix / next(line.split("=", 1)[1] for line in cache.splitlines()
                         if line.startswith("CMAKE_INSTALL_LIBDIR:"))


def install_pip(prefix):
    env = dict(os.environ, VTX_CMAKE_BUILD_DIR=str(BUILD))
    subprocess.run([sys.executable, "-m", "pip", "install", "--no-build-isolation", "--no-index", "--no-deps",
                    "--no-cache-dir", "--disable-pip-version-check", "--prefix", str(prefix), str(SOURCE)],
                   check=True, env=env, stdout=subprocess.DEVNULL)
    return None  # the libraries travel inside the package


@pytest.mark.parametrize("install", [install_cmake, install_pip])
def test_installed_package_imports_from_its_prefix_and_transforms(install, tmp_path):
    assert (BUILD / "CMakeCache.txt").exists(), f"the package under test is not in a build tree: {BUILD}"
    prefix = tmp_path / "prefix"
    library_dir = install(prefix)
    packages = list(prefix.rglob("vtxgen/__init__.py"))
    assert len(packages) == 1, packages
    site = packages[0].parents[1]
    bundled = list(packages[0].parent.glob("libvtxgenp8*"))
    assert bool(bundled) == (library_dir is None), bundled
    env = {"PATH": os.environ["PATH"], "PYTHONPATH": str(site), "PYTHONDONTWRITEBYTECODE": "1"}
    probe = subprocess.run([sys.executable, "-c", PROBE], env=env, cwd=tmp_path, check=True,
                           capture_output=True, text=True).stdout.split()
    assert probe[0] == str(packages[0])
    assert pathlib.Path(probe[1]).parent == (library_dir or packages[0].parent)
    assert probe[2] == vtxgen.fft2(np.arange(48.0).reshape(6, 8)).tobytes().hex()
