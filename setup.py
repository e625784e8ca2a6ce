"""The build step pip runs (pyproject.toml holds the metadata): CMake builds
the library and the extension, installs the package with the libraries
beside the extension (the components Python and PythonBundle), and that
directory becomes the package in the wheel.

The CMake build tree is build/pip in the source tree, kept between runs, or
the configured tree that VTX_CMAKE_BUILD_DIR names (a release tree, say,
which then only installs): it must have been configured for this
interpreter.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import sysconfig

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = pathlib.Path(__file__).resolve().parent


def version():
    """The library's version, from the project() line of CMakeLists.txt."""
    text = (ROOT / "CMakeLists.txt").read_text()
    return re.search(r"project\(vtxgen VERSION ([0-9.]+)", text).group(1)


class CMakeBuild(build_ext):
    def build_extension(self, ext):
        tree = pathlib.Path(os.environ.get("VTX_CMAKE_BUILD_DIR") or ROOT / "build" / "pip")
        if not (tree / "CMakeCache.txt").exists():
            generator = ["-G", "Ninja"] if shutil.which("ninja") else []
            self.spawn(["cmake", "-S", str(ROOT), "-B", str(tree), *generator, "-DCMAKE_BUILD_TYPE=Release",
                        "-DVTX_BUILD_TESTS=OFF", "-DVTX_BUILD_BENCH=OFF", f"-DPython3_EXECUTABLE={sys.executable}"])
        self.spawn(["cmake", "--build", str(tree), "--target", "_vtxgen"])
        stage = tree / "pip-stage"
        shutil.rmtree(stage, ignore_errors=True)
        for component in ("Python", "PythonBundle"):
            self.spawn(["cmake", "--install", str(tree), "--component", component, "--prefix", str(stage)])
        package = next(stage.rglob("vtxgen/__init__.py")).parent
        suffix = sysconfig.get_config_var("EXT_SUFFIX")
        if not (package / f"_vtxgen{suffix}").exists():
            raise RuntimeError(f"{tree} holds no extension _vtxgen{suffix} for {sys.executable}: "
                               "configure it with -DPython3_EXECUTABLE naming this interpreter")
        target = pathlib.Path(self.get_ext_fullpath(ext.name)).parent
        target.mkdir(parents=True, exist_ok=True)
        for item in package.iterdir():
            shutil.copy2(item, target / item.name)


# setuptools' own files go into the build directory, none into the sources.
(ROOT / "build" / "pip-setuptools").mkdir(parents=True, exist_ok=True)
setup(
    version=version(),
    options={"build": {"build_base": "build/pip-setuptools"},
             "egg_info": {"egg_base": "build/pip-setuptools"}},
    ext_modules=[Extension("vtxgen._vtxgen", sources=[])],
    cmdclass={"build_ext": CMakeBuild},
)
