"""The module as a type checker sees it through its stubs: mypy --strict checks this file (the
CTest test Python.typing) and pytest runs it, so each use is both well typed and true at run time.
assert_type pins what the stubs say; a binding renamed or retyped in C++ fails here."""

from typing import assert_type

import pytest

import orvik_media_assets as orvik
from orvik_media_assets.time_points import Duration, TimePoint

pytestmark = pytest.mark.skipif(not hasattr(orvik, "tree_text"), reason="built without the orvik-asset tool")


def test_properties_and_methods_have_the_model_types() -> None:
    asset = orvik.MediaAsset("asset-1")
    asset.name = "Goal"
    asset.asset_type = orvik.AssetType.media
    assert_type(asset.name, str)
    assert_type(asset.asset_type, orvik.AssetType)
    assert_type(asset.clone(), orvik.MediaAsset)
    assert_type(asset.get_duration(), Duration)
    assert_type(orvik.AssetType.from_string("train"), orvik.AssetType)
    assert_type(orvik.time_points.TimePoint(0), TimePoint)
    assert asset.clone() == asset and str(asset.asset_type) == "media"


def test_what_may_be_missing_is_optional() -> None:
    asset = orvik.MediaAsset("asset-1")
    difference = orvik.first_difference(asset, orvik.MediaAsset("asset-2"))
    assert_type(difference, orvik.Difference | None)
    assert difference is not None and difference.path == "id"
    reference = orvik.StreamReference("stream-1")
    assert_type(reference.pointer, orvik.Stream | None)
    assert reference.pointer is None
    assert_type(orvik.ZanServerId.try_parse("12"), orvik.ZanServerId | None)
    assert orvik.ZanServerId.try_parse("12") is None


def test_implicit_conversions_are_accepted_where_they_apply() -> None:
    stream = orvik.Stream("stream-1")
    channel = orvik.TrackChannelToRemove()
    channel.stream = stream  # a Stream where a StreamReference is expected
    assert_type(channel.stream, orvik.StreamReference)
    channel.stream = "stream-2"  # an id
    asset = orvik.MediaAsset("asset-1")
    asset.tracks = [orvik.Track("track-1")]  # an iterable where a TrackVector is expected
    location = orvik.ZanLocation(120, "A7F3")  # a serial number where a ZanServerId is expected
    jump = orvik.TimeCodeJump(TimePoint(0), "10:00:00:00", 25)  # a text where a TimeCodeString is
    assert (channel.stream.id, len(asset.tracks), location.uri, str(jump.time_code)) == (
        "stream-2", 1, "120/A7F3", "10:00:00:00")


def test_sequences_yield_their_elements() -> None:
    asset = orvik.MediaAsset("asset-1")
    asset.tracks.insert(orvik.Track("track-1", "Program"))
    names = [track.name for track in asset.tracks]
    assert_type(names, list[str])
    stream = orvik.Stream("stream-1")
    stream.essences.append(orvik.VideoEssence())
    kinds = [essence.type for essence in stream.essences]
    assert_type(kinds, list[orvik.Essence.Type])
    assert (names, kinds) == (["Program"], [orvik.Essence.Video])


def test_json_and_the_tree() -> None:
    document = orvik.to_json(orvik.MediaAsset("asset-1"))
    assert_type(document, str)
    read = orvik.from_json(document)
    assert_type(read, object)
    assert isinstance(read, orvik.MediaAsset)
    assert_type(orvik.tree_text(read), str)
    with pytest.raises(orvik.JsonError) as raised:
        orvik.from_json('{"schema": {"name": "MediaAsset", "version": 1}, "id": 7}')
    assert_type(raised.value.path, str)
    assert raised.value.path == "/id"
