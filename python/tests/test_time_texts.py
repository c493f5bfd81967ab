"""Timecode labels and time-point texts from Python: the parsers, the formatters, and the values'
own to_string and parse; a failed try_parse is None and a refusal a ValueError with the library's
text (the texts themselves are the C++ tests' concern)."""

import pytest

import orvik_media_assets as orvik

tp = orvik.time_points
NTSC = tp.Rate(30000, 1001)


def test_a_drop_frame_label_reads_and_writes_back():
    parser = tp.SmpteTimeCodeParser(NTSC)
    code = parser.parse("00:01:00;02")
    assert (code.total_sample, code.is_drop) == (1800, True)
    assert code == tp.TimeCode.parse("00:01:00;02", parser) == tp.TimeCode.from_parts(NTSC, 0, 1, 0, 2, is_drop=True)
    assert code.to_string(tp.SmpteTimeCodeFormatter()) == "00:01:00;02"
    assert tp.SmpteTimeCodeFormatter().format(code + 1) == "00:01:00;03"
    assert parser.try_parse("00:01:00;00") is None
    assert not parser.is_string_format_valid("00:01:00;00")
    with pytest.raises(ValueError) as raised:
        parser.parse("00:01:00;00")
    assert str(raised.value) == "Invalid timecode '00:01:00;00': drop-frame counting skips this label"


def test_a_time_point_text_reads_and_writes_back():
    parser = tp.Iso8601TimePointParser()
    point = parser.parse("2000-02-29T13:00:00.04+01:00")
    assert point.nanoseconds == 951825600 * 10**9 + 40000000
    assert point.to_string(tp.Iso8601TimePointFormatter()) == "2000-02-29T12:00:00.040000000Z"
    assert tp.TimePoint.parse("unset", parser) == tp.TimePoint.empty()
    assert parser.try_parse("2026-02-29T00:00:00Z") is None


def test_durations_as_clock_and_as_timecode():
    duration = tp.Duration.from_seconds(3661) + tp.Duration.from_milliseconds(40)
    assert duration.to_string(tp.ClockDurationFormatter()) == "01:01:01.040000000"
    assert tp.TimeCodeDurationFormatter(tp.Rate(25, 1)).format(duration) == "01:01:01:01"
    assert tp.TimeCodeDurationFormatter(NTSC, True).format(tp.Duration.from_milliseconds(60060)) == "00:01:00;02"
