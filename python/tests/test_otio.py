"""The OpenTimelineIO form from Python: a timeline an editor reads, and its edits read back."""

import json

import pytest

import orvik_media_assets as orvik

pytestmark = pytest.mark.skipif(not hasattr(orvik, "to_otio"), reason="built without the JSON library")


def test_timeline_of_the_asset_comes_back_equal(asset):
    timeline = json.loads(orvik.to_otio(asset))
    assert (timeline["OTIO_SCHEMA"], timeline["name"]) == ("Timeline.1", asset.name)
    assert [track["kind"] for track in timeline["tracks"]["children"]] == ["Video"]
    assert orvik.first_difference(asset, orvik.from_otio(orvik.to_otio(asset, orvik.JsonLayout.Compact))) is None


def test_edited_source_range_gives_new_in_and_out_points(asset):
    timeline = json.loads(orvik.to_otio(asset))
    clip = timeline["tracks"]["children"][0]["children"][0]
    rate = clip["source_range"]["start_time"]["rate"]
    clip["source_range"]["start_time"]["value"] += rate  # one second later
    clip["source_range"]["duration"]["value"] = rate * 2
    timeline["name"] = "Trimmed"
    read = orvik.from_otio(json.dumps(timeline))
    assert read.name == "Trimmed"
    assert read.in_boundary.time_point.nanoseconds == asset.in_boundary.time_point.nanoseconds + 1_000_000_000
    assert read.out_boundary.time_point.nanoseconds == read.in_boundary.time_point.nanoseconds + 2_000_000_000


def test_timeline_without_the_asset_is_a_json_error():
    with pytest.raises(orvik.JsonError) as error:
        orvik.from_otio('{"OTIO_SCHEMA": "Timeline.1", "metadata": {}, "name": "cut"}')
    assert isinstance(error.value, ValueError)
    assert (error.value.path, str(error.value)) == (
        "/metadata",
        '/metadata: expected member "orvik" with the asset the timeline was written from',
    )
