"""The JSON form from Python: round trips and the error that names where a document is wrong."""

import pytest

import orvik_media_assets as orvik

pytestmark = pytest.mark.skipif(not hasattr(orvik, "to_json"), reason="built without the JSON library")


def test_round_trip_gives_an_equal_asset_and_the_same_document(asset):
    document = orvik.to_json(asset)
    assert orvik.schema_name(document) == "MediaAsset"
    read = orvik.from_json(document)
    assert type(read) is orvik.MediaAsset and orvik.first_difference(asset, read) is None
    assert orvik.to_json(read) == document
    assert orvik.from_json(orvik.to_json(asset, orvik.JsonLayout.Indented), orvik.MediaAsset) == asset


def test_round_trip_restores_the_sharing_of_channels_and_resources(asset):
    read = orvik.from_json(orvik.to_json(asset))
    assert read.tracks[0].channels[0].stream.pointer is read.media_resources[0].value.streams[0].pointer


def test_groups_and_profiles_come_back_as_their_class():
    group = orvik.AnglesMediaAssetGroup("group")
    group.items.append(orvik.AnglesMediaAssetGroupItem("left", orvik.MediaAssetReference("asset")))
    read = orvik.from_json(orvik.to_json(group))
    assert type(read) is orvik.AnglesMediaAssetGroup and read == group
    profile = orvik.PelkOperatorMetadataProfile(orvik.PelkId("123B/120"))
    assert orvik.from_json(orvik.to_json(profile)) == profile


def test_error_is_a_value_error_with_the_json_pointer(asset):
    document = orvik.to_json(asset).replace('"name":"Goal, 81st minute"', '"name":17')
    with pytest.raises(orvik.JsonError) as error:
        orvik.from_json(document)
    assert isinstance(error.value, ValueError)
    assert (error.value.path, str(error.value)) == ("/name", "/name: expected a string, found 17")
