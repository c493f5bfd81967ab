"""Every error reaches Python with the library's exact text, as the documented exception type: one
case for each translation of a library exception, and every error that the bindings raise or
translate themselves."""

import pytest

import orvik_media_assets as orvik


def null_annotation_clone():
    asset = orvik.MediaAsset("asset")
    asset.annotations.append(None)
    asset.clone()


def no_group_item():
    orvik.MediaAssetGroup("group", "type").item_reference("missing")


def not_an_angles_item():
    group = orvik.AnglesMediaAssetGroup("group")
    group.items.append(orvik.MediaAssetGroupItem(orvik.MediaAssetReference("plain")))
    group.item("plain")


ERRORS = [
    # (what is done, exception type, the library's text)
    (lambda: orvik.PelkId.from_uri("103A"), ValueError, "Invalid uri '103A'."),
    # A camera is one code point up to U+00FF, the byte that the model stores.
    (lambda: orvik.PelkId(123, "AB"), ValueError, "a camera is one character, or '' for none; got 'AB'"),
    (lambda: orvik.PelkOperatorMetadataProfile().__setattr__("camera", "\u0100"), ValueError,
     "a camera is one character, or '' for none; got '\u0100'"),
    # 2**31 reaches the library as it is, not cut to 32 bits.
    (lambda: orvik.PelkOperatorMetadataProfile().set_keyword(2**31, "x"), ValueError,
     "Negative keyword index 2147483648."),
    # None goes in as a null pointer where the model holds pointers that may be null.
    (lambda: orvik.MetadataProfileDictionary().set(None), ValueError,
     "Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::Set: null profile"),
    (null_annotation_clone, ValueError, "Orvik::DataModel::MediaAssets::MediaAsset::Clone: null annotation"),
    (lambda: orvik.TrackVector([orvik.Track("a"), orvik.Track("a")]), RuntimeError,
     "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection"),
    (lambda: orvik.TrackVector()[0], IndexError,
     "Orvik::DataModel::MediaAssets::SortedVector::CheckIndex: index 0 out of range for size 0"),
    (lambda: orvik.Stream("stream").essences[2], IndexError,
     "Orvik::BusinessEntityModel::BaseTypes::Array::At: index 2 out of range for size 0"),
    (lambda: orvik.TrackVector()[-1], IndexError, "index -1 out of range for size 0"),
    (lambda: orvik.MetadataProfileDictionary()["orvik.pelkoperator"], KeyError,
     "Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::At: no profile named orvik.pelkoperator"),
    (no_group_item, KeyError,
     "Orvik::DataModel::MediaAssets::MediaAssetGroup::ItemReference: no item for asset missing"),
    # The asset is in the group, so this is no KeyError.
    (not_an_angles_item, RuntimeError,
     "Orvik::DataModel::MediaAssets::AnglesMediaAssetGroup::Item: not an angles item for asset plain"),
    (lambda: orvik.AssetType.from_string("Media", strict=True), ValueError, "Unknown value : Media"),
]


@pytest.mark.parametrize("action, error_type, text", ERRORS)
def test_error_has_the_library_type_and_text(action, error_type, text):
    with pytest.raises(error_type) as error:
        action()
    assert type(error.value) is error_type
    assert error.value.args[0] == text


def test_null_is_refused_where_the_model_cannot_hold_it():
    with pytest.raises(TypeError):
        orvik.TrackVector().insert(None)
    with pytest.raises(TypeError):
        orvik.Track("track").channels.append(None)
