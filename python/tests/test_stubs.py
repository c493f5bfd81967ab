"""The stub writer (python/generate_stubs.py) stops at what it cannot type, naming the place, so
that no binding goes missing from the stubs; test_typing checks what it writes."""

import os
import sys

import pytest

import orvik_media_assets as orvik

sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir))

import generate_stubs  # noqa: E402


@pytest.mark.parametrize("written, message", [
    # What pybind11 writes for a class bound after the function that names it.
    ("Orvik::DataModel::MediaAssets::MediaAsset",
     "here: 'Orvik::DataModel::MediaAssets::MediaAsset' is no Python type (is its class bound after this function?)"),
    ("handle", "here: cannot type 'handle'"),
    ("orvik_media_assets.NoSuchClass", "here: cannot type 'orvik_media_assets.NoSuchClass'"),
    ("Deque[int]", "here: cannot type 'Deque'"),
])
def test_a_type_it_cannot_write_stops_it(written, message):
    with pytest.raises(generate_stubs.StubError) as raised:
        generate_stubs.Stub(orvik).type_of(written, "here")
    assert str(raised.value) == message


def test_types_are_written_relative_to_the_stub():
    stub = generate_stubs.Stub(orvik)
    assert stub.type_of("Tuple[orvik_media_assets.time_points.TimePoint, List[str[5]]]", "here") == \
        "tuple[time_points.TimePoint, list[str]]"
    assert stub.type_of("Optional[orvik_media_assets.Essence.Type]", "here") == "Essence.Type | None"
    assert stub.parameter_type("orvik_media_assets.StreamReference", "here") == "StreamReference | Stream | str"
