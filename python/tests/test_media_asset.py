"""Building, cloning, comparing and changing an asset from Python."""

import copy

import pytest

import orvik_media_assets as orvik


def test_clone_is_equal_but_new_and_deep(asset):
    clone = asset.clone()
    assert clone == asset and not clone != asset
    assert (clone.object_id, repr(clone)) == (-1, "<MediaAsset 'asset-goal-0815' media>")
    assert clone.tracks[0] is not asset.tracks[0]
    assert clone.media_resources[0].value is not asset.media_resources[0].value
    assert copy.deepcopy(asset) == asset


def test_clone_keeps_only_the_ids_of_the_lineage(asset):
    parent = orvik.MediaAsset("parent-asset")
    asset.parent = parent
    asset.ancestor = "ancestor-asset"
    clone = asset.clone()
    assert (clone.parent.id, clone.parent.pointer) == ("parent-asset", None)
    assert asset.parent.pointer is parent
    assert (clone.ancestor.id, bool(clone.ancestor)) == ("ancestor-asset", True)


def test_first_difference_names_the_field_and_both_values(asset):
    clone = asset.clone()
    assert orvik.first_difference(asset, clone) is None
    clone.tracks[0].name = "Replay"
    clone.media_resources[0].value.streams[0].value.essences[0].width = 1280
    assert orvik.first_difference(asset, clone) == orvik.Difference("tracks[0].name", '"Program"', '"Replay"')
    difference = orvik.first_difference(asset.media_resources[0].value.streams[0].value,
                                        clone.media_resources[0].value.streams[0].value)
    assert (difference.path, difference.left, difference.right) == (
        "essences[0].(VideoEssence).width", "1920", "1280")


def test_plain_copy_shares_children_and_keeps_object_id(asset):
    asset.object_id = 7
    shallow = copy.copy(asset)
    assert shallow.object_id == 7
    assert shallow.tracks[0] is asset.tracks[0]
    asset.tracks[0].name = "Renamed"
    assert shallow.tracks[0].name == "Renamed" and shallow == asset


def test_values_read_from_an_object_are_copies(asset):
    boundary = asset.in_boundary
    boundary.is_moving = True
    assert asset.in_boundary.is_moving is False
    asset.in_boundary = boundary
    assert asset.in_boundary == boundary


def test_members_read_from_an_object_are_the_members(asset):
    bounds = asset.physical_timebounds
    bounds.out_boundary = orvik.TimeBoundary(orvik.TimePoint(3))
    assert asset.physical_timebounds.out_boundary.time_point == orvik.TimePoint(3)
    asset.metadata.set(orvik.PelkOperatorMetadataProfile(orvik.PelkId("123B/120")))
    assert asset.has_pelk_operator_metadata()
    asset.pelk_operator_metadata.rating = 4
    assert asset.metadata["orvik.pelkoperator"].rating == 4


def test_cameras_read_back_as_set_up_to_u00ff():
    profile = orvik.PelkOperatorMetadataProfile()
    for camera in ["", "A", "M", "\x7f", "\xe9", "\xff"]:
        profile.camera = camera
        assert (profile.camera, profile.has_camera) == (camera, camera != "")
    assert orvik.PelkId(123, "\xe9").camera == "\xe9"


def test_sorted_vectors_keep_order_and_refuse_equal_elements():
    tracks = orvik.TrackVector([orvik.Track("b"), orvik.Track("a")])
    assert [track.id for track in tracks] == ["a", "b"]
    assert orvik.Track("a") in tracks and orvik.Track("a", "other name") not in tracks
    tracks.insert(orvik.Track("a", "other name"))
    assert [track.name for track in tracks] == ["other name", "", ""]
    with pytest.raises(RuntimeError):
        tracks.extend([orvik.Track("c"), orvik.Track("b"), orvik.Track("d")])
    assert [track.id for track in tracks] == ["a", "a", "b", "c"]
    del tracks[-1]
    assert len(tracks) == 3 and tracks[-1].id == "b"


def test_resources_are_referenced_by_id_or_by_pointer():
    asset = orvik.MediaAsset("asset")
    asset.media_resources.insert("by-id")
    asset.media_resources.insert(orvik.MediaResource("loaded"))
    assert [(reference.id, reference.pointer is None) for reference in asset.media_resources] == [
        ("by-id", True), ("loaded", False)]
    assert asset.clone().media_resources[0].pointer is None
