"""Enumerations: canonical texts, the tolerant parse, and Python names."""

import pytest

import orvik_media_assets as orvik

ENUMERATIONS = [
    orvik.AnnotationType, orvik.ArchiveStatus, orvik.AssetType, orvik.AudioCodingFormat, orvik.BitRateMode,
    orvik.Boxing, orvik.ChromaSubSampling, orvik.ColorSpace, orvik.FieldOrdering, orvik.FillAndKeyType,
    orvik.ResourceFormat, orvik.ScanMode, orvik.TimecodePrimary, orvik.UserTimecodeType, orvik.VideoCodingFormat,
    orvik.WrapperFormat, orvik.TimeCodeStandard, orvik.Essence.Type, orvik.Location.Type,
]


@pytest.mark.parametrize("enumeration", ENUMERATIONS, ids=lambda e: e.__name__)
def test_every_value_round_trips_through_its_text(enumeration):
    members = list(enumeration.__members__.values())
    assert [int(member) for member in members] == list(range(len(members)))
    for member in members:  # str() gives the library's text, which only the strict parse accepts
        assert enumeration.from_string(str(member), strict=True) == member
    past_the_end = enumeration(len(members))
    assert str(past_the_end) == str(enumeration(0))


def test_unknown_text_gives_value_zero_unless_strict():
    # The strict parse's ValueError is among the errors of test_errors.py.
    assert orvik.AssetType.from_string("Media") == orvik.AssetType.unknown
    assert orvik.Essence.Type.from_string("Picture") == orvik.Essence.Audio
