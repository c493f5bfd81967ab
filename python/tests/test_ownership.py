"""Who owns what between Python and C++: shared children stay shared, owned children are handed
over, and nothing dangles when Python drops its last reference to a parent."""

import copy
import gc

import pytest

import orvik_media_assets as orvik


def test_shared_children_are_the_same_object_from_python_and_cpp():
    asset = orvik.MediaAsset("asset")
    track = orvik.Track("track")
    asset.tracks.insert(track)
    assert asset.tracks[0] is track
    track.name = "renamed"
    assert asset.tracks[0].name == "renamed"


def test_children_outlive_their_parent():
    asset = orvik.MediaAsset("asset")
    asset.tracks.insert(orvik.Track("track", "Program"))
    stream = orvik.Stream("stream")
    stream.locations.append(orvik.ZanLocation(orvik.ZanServerId(120), "A7F3"))
    tracks, metadata, location = asset.tracks, asset.metadata, stream.locations[0]
    del asset, stream
    gc.collect()
    assert [track.name for track in tracks] == ["Program"]
    assert len(metadata) == 0
    assert location.uri == "120/A7F3"


def test_essence_is_handed_over_and_keeps_its_python_name():
    stream = orvik.Stream("stream")
    video = orvik.VideoEssence()
    stream.essences.append(video)
    video.width = 1920
    assert stream.essences[0] is video and stream.essences[0].width == 1920
    with pytest.raises(ValueError) as error:
        orvik.Stream("other").essences.append(video)
    assert str(error.value) == "the object already belongs to an array; remove it from there first or add a clone"


def test_removed_elements_go_back_to_their_python_names():
    stream = orvik.Stream("stream")
    audio, data = orvik.AudioEssence(), orvik.DataEssence()
    stream.essences.append(audio)
    stream.essences.insert(0, data)
    location = orvik.FileLocation()
    stream.locations.append(location)
    del stream.essences[0]
    stream.locations.clear()
    stream.essences.clear()
    del stream
    gc.collect()
    audio.bit_rate, location.uri = 5, "file:///clip.mxf"
    assert (audio.bit_rate, data.type, location.uri) == (5, orvik.Essence.Data, "file:///clip.mxf")
    orvik.Stream("again").essences.append(audio)


def test_failed_insert_leaves_the_essence_with_python():
    stream = orvik.Stream("stream")
    audio = orvik.AudioEssence()
    with pytest.raises(IndexError) as error:
        stream.essences.insert(3, audio)
    assert str(error.value) == "Orvik::BusinessEntityModel::BaseTypes::Array::Insert: index 3 out of range for size 0"
    assert len(stream.essences) == 0
    stream.essences.append(audio)


def test_essence_clone_empties_the_shared_metadata_by_design():
    essence = orvik.AudioEssence()
    essence.metadata.set(orvik.PelkOperatorMetadataProfile())
    table = orvik.TimeCodeTable()
    essence.timecodes.insert(table)
    clone = essence.clone()
    assert len(essence.metadata) == 0 and clone.metadata.clone() == essence.metadata
    assert clone.timecodes[0] is table
    shallow = copy.copy(essence)
    assert shallow.timecodes[0] is table and shallow == essence


def test_stream_copy_is_a_clone_that_keeps_object_id():
    stream = orvik.Stream("stream")
    stream.object_id = 3
    stream.essences.append(orvik.VideoEssence())
    shallow, deep = copy.copy(stream), copy.deepcopy(stream)
    assert (shallow.object_id, deep.object_id) == (3, -1)
    assert shallow.essences[0] is not stream.essences[0] and shallow == stream == deep


def test_resource_copy_shares_streams_and_clone_copies_them():
    resource = orvik.MediaResource("resource")
    stream = orvik.Stream("stream")
    resource.adopt(stream)
    resource.add("by-id")
    assert copy.copy(resource).streams[0].pointer is stream
    clone = resource.clone()
    assert clone.streams[0].pointer is not stream and clone.streams[0].pointer == stream
    assert (clone.streams[1].id, clone.streams[1].pointer) == ("by-id", None)


def test_dictionary_copy_shares_profiles_and_clone_copies_them():
    dictionary = orvik.MetadataProfileDictionary()
    profile = orvik.PelkOperatorMetadataProfile()
    dictionary.set(profile)
    assert copy.copy(dictionary)["orvik.pelkoperator"] is profile
    clone = copy.deepcopy(dictionary)
    assert clone["orvik.pelkoperator"] is not profile and clone == dictionary


def test_layout_item_tracks_are_weak():
    item = orvik.TrackLayoutItem("item")
    track = orvik.Track("track")
    item.tracks.insert(track)
    del track
    gc.collect()
    assert list(item.tracks) == [None]


def test_group_items_share_their_assets():
    asset = orvik.MediaAsset("asset")
    group = orvik.AnglesMediaAssetGroup("group")
    group.items.append(orvik.AnglesMediaAssetGroupItem("left", asset))
    assert group.item("asset").media_asset.pointer is asset
    assert copy.copy(group).items[0] is group.items[0]
