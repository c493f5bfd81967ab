#!/usr/bin/env python3
"""A media asset handed from one component to another, as in examples/MediaAssetExample.cpp.

The sender builds it, clones it for the hand-over, and the receiver compares the clone with its
own copy, prints the video codec and the clip's location, and checks the asset's time bounds.
Its output is the C++ example's, line for line; with the JSON form available it also shows that
the asset survives a round trip through JSON.
"""

import orvik_media_assets as orvik

SECOND = 1_000_000_000


def make_high_resolution_stream() -> orvik.Stream:
    stream = orvik.Stream("stream-hires")
    stream.format = orvik.WrapperFormat.MXFOP1a

    video = orvik.VideoEssence()
    video.nr = 0
    video.video_codec = orvik.VideoCodingFormat.AvidDNxHDHigh
    video.width = 1920
    video.height = 1080
    video.frame_rate = orvik.Rate(50, 1)
    video.scan_mode = orvik.ScanMode.progressive
    stream.essences.append(video)

    stream.locations.append(orvik.ZanLocation(orvik.ZanServerId(120), "A7F3"))
    return stream


def make_asset() -> orvik.MediaAsset:
    asset = orvik.MediaAsset("asset-goal-0815")
    asset.name = "Goal, 81st minute"
    asset.asset_type = orvik.AssetType.media

    resource = orvik.MediaResource("resource-hires")
    resource.adopt(make_high_resolution_stream())
    asset.media_resources.insert(resource)

    track = orvik.Track("track-video", "Program")
    channel = orvik.TrackChannelToRemove()
    channel.stream = resource.streams[0].value
    channel.essence_nr = 0
    track.channels.append(channel)
    asset.tracks.insert(track)

    asset.physical_timebounds.insert(
        orvik.TimeBounds(orvik.TimeBoundary(orvik.TimePoint(0)), orvik.TimeBoundary(orvik.TimePoint(20 * SECOND))))
    asset.in_boundary = orvik.TimeBoundary(orvik.TimePoint(2 * SECOND))
    asset.out_boundary = orvik.TimeBoundary(orvik.TimePoint(12 * SECOND))
    return asset


def main() -> None:
    asset = make_asset()
    print(f"Built asset {asset.id} ({asset.asset_type}) with {len(asset.tracks)} track "
          f"and {len(asset.media_resources)} resource")

    try:
        again = make_asset()
        again.tracks.insert(orvik.Track("track-video", "Program"))
    except RuntimeError as error:
        print(f"A second track-video is refused: {error}")

    handed_over = asset.clone()
    difference = orvik.first_difference(handed_over, asset)
    if difference:
        print(f"The clone differs from the source at {difference.path}")
    else:
        print(f"The clone equals the source; its objectId is {handed_over.object_id}")

    edited = handed_over.clone()
    edited.tracks[0].name = "Replay"
    difference = orvik.first_difference(handed_over, edited)
    if difference:
        print(f"Renamed, it differs at {difference.path}: {difference.left} against {difference.right}")

    stream = handed_over.media_resources[0].value.streams[0].value
    video = stream.essences[0]
    assert isinstance(video, orvik.VideoEssence)  # an essence comes back as its own class
    print(f"Video codec: {video.video_codec}, wrapped as {stream.format}")
    print(f"Stored at video-server location {stream.locations[0].uri}")

    bounds = handed_over.physical_timebounds
    print(f"In/out from 2 s to 12 s lasts {handed_over.get_duration().nanoseconds // SECOND} s; "
          f"the time bounds are {'valid' if bounds.is_valid() else 'not valid'}")


if __name__ == "__main__":
    main()
