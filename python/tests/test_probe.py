"""The probe from Python: a media file gives its asset and the warnings beside it, and a file that
cannot be described raises ProbeError naming the file and the reason."""

import shutil
import subprocess

import pytest

import orvik_media_assets as orvik

pytestmark = pytest.mark.skipif(shutil.which("ffmpeg") is None, reason="Debian's ffmpeg makes the media file")


def test_probe_returns_the_asset_and_the_warnings(tmp_path):
    clip = tmp_path / "clip.mkv"
    subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "testsrc=size=32x32:rate=25:duration=0.2",
                    "-c:v", "mpeg4", str(clip)], check=True)
    asset, warnings = orvik.probe(str(clip))
    assert asset.id == "clip.mkv"
    assert [track.id for track in asset.tracks] == ["V1"]
    assert len(warnings) == 1
    assert warnings[0].kind == orvik.ProbeWarning.Kind.Unmapped
    assert warnings[0].message == "no wrapper format for Matroska DocType matroska"


def test_a_file_that_cannot_be_described_raises_probe_error(tmp_path):
    missing = str(tmp_path / "missing.mxf")
    with pytest.raises(orvik.ProbeError) as raised:
        orvik.probe(missing)
    assert isinstance(raised.value, ValueError)
    assert str(raised.value) == missing + ": cannot open: No such file or directory"
    assert raised.value.source == missing
    assert raised.value.reason == "cannot open: No such file or directory"
