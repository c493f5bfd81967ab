"""Shared pieces of the Python tests: the example asset, built the way callers build one."""

import os
import sys

import pytest

sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir, "examples"))

import media_asset_example  # noqa: E402


@pytest.fixture
def asset():
    return media_asset_example.make_asset()
