"""The Python example gives the C++ example's answers, line for line."""

import os
import subprocess
import sys

import pytest

EXAMPLE = os.path.join(os.path.dirname(__file__), os.pardir, "examples", "media_asset_example.py")


def test_python_example_prints_what_the_cpp_example_prints():
    cpp_example = os.environ.get("ORVIK_CPP_EXAMPLE")
    if not cpp_example:
        pytest.skip("the C++ example is not built")
    python_output = subprocess.run([sys.executable, EXAMPLE], check=True, capture_output=True, text=True).stdout
    # A sanitizer runtime preloaded for the interpreter must not be loaded twice into the C++ program.
    cpp_environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}
    cpp_output = subprocess.run([cpp_example], check=True, capture_output=True, text=True, env=cpp_environment).stdout
    assert python_output == cpp_output
