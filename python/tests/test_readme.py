"""The README's Python example runs as printed and prints what its comments say."""

import contextlib
import io
import pathlib
import re

README = pathlib.Path(__file__).resolve().parents[2] / "README.md"


def test_readme_example():
    block = re.search(r"```python\n(.*?)```", README.read_text(encoding="utf-8"), re.S).group(1)
    out = io.StringIO()
    with contextlib.redirect_stdout(out):
        exec(compile(block, str(README), "exec"), {})
    dtype, error = out.getvalue().splitlines()[0].split()
    assert dtype == "complex64" and float(error) < 1e-5
    assert out.getvalue().splitlines()[1] == "0.0"  # the backend ran the package's own kernel
