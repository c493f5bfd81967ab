"""python3 -m orvik_media_assets FILE shows a document as `orvik-asset show` does: the same tree,
checked against the tool's own expected output, and one line and status 2 for what it cannot show."""

import os
import subprocess
import sys

import pytest

import orvik_media_assets as orvik

pytestmark = pytest.mark.skipif(not hasattr(orvik, "tree_text"), reason="built without the orvik-asset tool")

DATA = os.path.join(os.path.dirname(__file__), os.pardir, os.pardir, "tests", "data")
TOOL_EXPECTED = os.path.join(os.path.dirname(__file__), os.pardir, os.pardir, "tests", "tool", "expected")


def show(*arguments, stdin=None):
    return subprocess.run([sys.executable, "-m", "orvik_media_assets", *arguments], cwd=DATA, input=stdin,
                          capture_output=True, text=True)


def tool_output(name):
    with open(os.path.join(TOOL_EXPECTED, name), encoding="utf-8") as expected:
        return expected.read()


@pytest.mark.parametrize("document, expected", [
    ("asset-full.json", "show-full-asset.out"),
    ("group.json", "show-group.out"),
    ("invalid/clip-identifiers.json", "show-invalid.out"),  # what validation refuses still shows
])
def test_prints_the_tree_that_the_tool_prints(document, expected):
    result = show(document)
    assert (result.returncode, result.stdout, result.stderr) == (0, tool_output(expected), "")


def test_reads_standard_input():
    with open(os.path.join(DATA, "group.json"), encoding="utf-8") as document:
        result = show("-", stdin=document.read())
    assert (result.returncode, result.stdout) == (0, tool_output("show-group.out"))


@pytest.mark.parametrize("document, message", [
    ("no-such-file.json", "no-such-file.json: No such file or directory"),
    ("invalid", "invalid: Is a directory"),
    # The tool's own messages, as orvik-asset show writes them.
    ("stream.json", tool_output("show-stream-document.err").removeprefix("orvik-asset: ").rstrip("\n")),
    ("invalid/truncated.json", tool_output("show-truncated.err").removeprefix("orvik-asset: ").rstrip("\n")),
])
def test_what_cannot_be_shown_is_one_line_and_status_2(document, message):
    result = show(document)
    assert (result.returncode, result.stdout, result.stderr) == (2, "", f"python3 -m orvik_media_assets: {message}\n")
