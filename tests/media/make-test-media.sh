#!/usr/bin/env bash
# Writes into OUTDIR the media files that the probe's tests read: one small file per row of the
# probe's mapping tables that Debian's ffmpeg can write, and the bad files beside them.
#   make-test-media.sh OUTDIR
# FFMPEG names the ffmpeg to run (default: ffmpeg on PATH). Every file has the same modification
# time, 2024-01-02T03:04:05Z, so that what the probe reports of it is the same on every run.
set -euo pipefail

if [ $# -ne 1 ]; then
    echo "usage: $0 OUTDIR" >&2
    exit 2
fi
ffmpeg=${FFMPEG:-ffmpeg}
mkdir -p "$1"
cd "$1"

# encode FILE ARGUMENT...: one ffmpeg run writing FILE, reproducible byte for byte.
encode() {
    local file=$1
    shift
    "$ffmpeg" -nostdin -hide_banner -loglevel error -y "$@" -fflags +bitexact -flags +bitexact "$file"
}
# Sources: a test picture of the given size and rate, a 1 kHz tone at 48 kHz.
picture() { echo "testsrc=size=$1:rate=$2"; }
tone="sine=frequency=1000:sample_rate=48000"

# Wrappers and video codings. ProRes by profile (prores_ks -profile:v 0..5), 4:4:4 from 4444 on.
profiles=(proxy lt standard hq 4444 4444xq)
for i in "${!profiles[@]}"; do
    sampling=422
    if [ "$i" -ge 4 ]; then
        sampling=444
    fi
    encode "prores-${profiles[i]}.mov" -f lavfi -i "$(picture 64x64 25)" -t 0.2 \
        -c:v prores_ks -profile:v "$i" -pix_fmt "yuv${sampling}p10le"
done

# DNxHD: its classes fix frame size, rate and bit rate; two frames each.
encode dnxhd-low.mxf -f lavfi -i "$(picture 1920x1080 25)" -f lavfi -i "$tone" -t 0.08 \
    -c:v dnxhd -b:v 36M -pix_fmt yuv422p -c:a pcm_s24le -ac 2
encode dnxhd-high.mov -f lavfi -i "$(picture 1920x1080 25)" -t 0.08 -c:v dnxhd -b:v 120M -pix_fmt yuv422p
encode dnxhd-high10.mxf -f lavfi -i "$(picture 1920x1080 25)" -t 0.08 \
    -c:v dnxhd -b:v 185M -pix_fmt yuv422p10le
encode dnxhr-lb.mov -f lavfi -i "$(picture 256x144 25)" -t 0.08 \
    -c:v dnxhd -profile:v dnxhr_lb -pix_fmt yuv422p

# MPEG-2 4:2:2 intra in D-10 MXF (IMX): constant bit rate, one frame per GOP, four or eight
# channels of PCM.
imx() {
    local file=$1 size=$2 rate=$3 mbps=$4
    shift 4
    encode "$file" -f lavfi -i "$(picture "$size" "$rate")" -f lavfi -i "$tone" -t 0.2 \
        -c:v mpeg2video -pix_fmt yuv422p -g 1 -flags +ildct+low_delay -dc 10 -non_linear_quant 1 \
        -intra_vlc 1 -qmin 1 -qmax 28 -ps 1 -rc_max_vbv_use 1 -rc_min_vbv_use 1 -top 1 \
        -b:v "${mbps}M" -minrate "${mbps}M" -maxrate "${mbps}M" -bufsize "$((mbps * 40000))" \
        -rc_init_occupancy "$((mbps * 40000))" -c:a pcm_s16le "$@" -f mxf_d10
}
imx imx30.mxf 720x512 30000/1001 30 -ac 4 -aspect 4:3 -timecode 01:00:00:00
imx imx40.mxf 720x608 25 40 -ac 4 -aspect 4:3
imx imx50.mxf 720x608 25 50 -ac 8 -aspect 16:9
# MPEG-2 4:2:2 long GOP at 50 Mb/s, 1080i25 top field first, in OP1a MXF.
encode xdcamhd.mxf -f lavfi -i "$(picture 1920x1080 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v mpeg2video -profile:v 0 -level:v 2 -pix_fmt yuv422p -g 12 -flags +ildct+ilme -top 1 -aspect 16:9 \
    -b:v 50M -minrate 50M -maxrate 50M -bufsize 17825792 -c:a pcm_s24le -timecode 10:00:00:00
# Plain MPEG-2 with MPEG-1 layer II sound in a transport stream; an elementary MPEG-2 stream,
# interlaced bottom field first; MPEG-1 with AC-3 sound in a program stream.
encode mpeg2.ts -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v mpeg2video -c:a mp2 -ac 2 -b:a 192k
encode mpeg2.m2v -f lavfi -i "$(picture 720x576 25)" -t 0.2 \
    -c:v mpeg2video -flags +ildct+ilme -top 0 -aspect 4:3
encode mpeg1.mpg -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v mpeg1video -c:a ac3 -f mpeg

# H.264: AVC-Intra (libx264 fixes size, rate and pixel format per class), plain H.264 in MP4 and
# raw, H.265.
encode avc-intra50.mxf -f lavfi -i "$(picture 1440x1080 25)" -t 0.08 \
    -c:v libx264 -avcintra-class 50 -pix_fmt yuv420p10le -flags +ildct+ilme \
    -x264-params interlaced=1:tff=1
encode avc-intra100.mov -f lavfi -i "$(picture 1280x720 50)" -t 0.04 \
    -c:v libx264 -avcintra-class 100 -pix_fmt yuv422p10le -timecode 10:00:00:00
x264=(-c:v libx264 -preset ultrafast -pix_fmt yuv420p)
encode h264.mp4 -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    "${x264[@]}" -colorspace bt709 -color_primaries bt709 -color_trc bt709 -c:a aac -ac 2
encode h264.h264 -f lavfi -i "$(picture 64x64 25)" -t 0.2 "${x264[@]}"
encode hevc.mp4 -f lavfi -i "$(picture 64x64 25)" -t 0.2 \
    -c:v libx265 -preset ultrafast -pix_fmt yuv420p -x265-params log-level=error -tag:v hvc1

# DV: 4:2:0 at 576 lines is DV25 (raw DV, with its stereo sound), 4:1:1 at 576 lines DVCPRO, 4:2:2
# DVCPRO50, 960 wide DVCPRO HD; 4:1:1 at 480 lines is DV25 or DVCPRO alike.
encode dv25.dv -f lavfi -i "$(picture 720x576 25)" -f lavfi -i "$tone" -t 0.12 \
    -vf setfield=bff -flags +ildct -c:v dvvideo -pix_fmt yuv420p -aspect 4:3 -c:a pcm_s16le -ac 2 -f dv
encode dvcpro.mov -f lavfi -i "$(picture 720x576 25)" -t 0.12 \
    -vf setfield=bff -flags +ildct -c:v dvvideo -pix_fmt yuv411p -aspect 16:9
encode dvcpro50.mxf -f lavfi -i "$(picture 720x576 25)" -t 0.12 \
    -vf setfield=bff -flags +ildct -c:v dvvideo -pix_fmt yuv422p -aspect 16:9
encode dvcprohd.mov -f lavfi -i "$(picture 960x720 50)" -t 0.06 -c:v dvvideo -pix_fmt yuv422p
encode dv-ntsc.avi -f lavfi -i "$(picture 720x480 30000/1001)" -t 0.1 \
    -vf setfield=bff -flags +ildct -c:v dvvideo -pix_fmt yuv411p -aspect 4:3

# Intra codings and images: JPEG 2000 in MXF, MJPEG in AVI (with 8-bit PCM), single images,
# Targa, QuickTime RLE and raw 4:1:0 video in movies.
encode jpeg2000.mxf -f lavfi -i "$(picture 64x64 25)" -t 0.2 -c:v jpeg2000 -pix_fmt yuv422p
encode mjpeg.avi -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v mjpeg -pix_fmt yuvj422p -c:a pcm_u8
for image in image.jpg image.png image.bmp image.tif image.dpx image.sgi image.j2k; do
    encode "$image" -f lavfi -i "$(picture 64x64 25)" -frames:v 1 -update 1
done
encode targa.mov -f lavfi -i "$(picture 64x64 25)" -t 0.2 -c:v targa
encode qtrle.mov -f lavfi -i "$(picture 64x64 25)" -t 0.2 -c:v qtrle
encode rawvideo.avi -f lavfi -i "$(picture 64x64 25)" -t 0.2 -c:v rawvideo -pix_fmt yuv410p
encode ffv1.avi -f lavfi -i "$(picture 64x64 25)" -t 0.2 -c:v ffv1

# Web and other wrappers: VP8 with Vorbis and VP9 with Opus in WebM, H.264 with FLAC in plain
# Matroska (its start timecode a tag of the video stream), MPEG-4 part 2 with AAC in 3GP (an ISO
# brand that is not MP4's), AAC in an iTunes audio file (M4A), Windows Media Audio in ASF.
encode vp8.webm -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v libvpx -deadline realtime -c:a libvorbis -ac 2
encode vp9.webm -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v libvpx-vp9 -deadline realtime -pix_fmt yuv420p -cpu-used 8 -c:a libopus -ac 2
encode matroska.mkv -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    "${x264[@]}" -c:a flac -metadata:s:v:0 timecode=00:59:59:00
encode mpeg4.3gp -f lavfi -i "$(picture 64x64 25)" -f lavfi -i "$tone" -t 0.2 \
    -c:v mpeg4 -c:a aac -ac 1
encode aac.m4a -f lavfi -i "$tone" -t 0.2 -c:a aac -ac 2 -f ipod
encode wma.asf -f lavfi -i "$tone" -t 0.2 -c:a wmav2 -ac 2

# Colour spaces, each signalled in the H.264 stream; libx264rgb codes RGB.
for space in bt470bg smpte170m bt2020nc fcc smpte240m; do
    encode "color-$space.mp4" -f lavfi -i "$(picture 64x64 25)" -t 0.2 "${x264[@]}" -colorspace "$space"
done
encode color-rgb.mp4 -f lavfi -i "$(picture 64x64 25)" -t 0.2 \
    -c:v libx264rgb -preset ultrafast -colorspace rgb

# Sound alone: PCM of every sample size and both byte orders, A-law and mu-law in WAVE (one with a
# bext chunk), AIFF, raw MP3 and AAC, PCM in OP-Atom MXF.
encode pcm16.wav -f lavfi -i "$tone" -t 0.2 -c:a pcm_s16le -ac 2
encode pcm24-bext.wav -f lavfi -i "$tone" -t 0.2 -c:a pcm_s24le -write_bext 1
encode pcm32.wav -f lavfi -i "$tone" -t 0.2 -c:a pcm_s32le -ac 4
encode pcm24.aif -f lavfi -i "$tone" -t 0.2 -c:a pcm_s24be -ac 2
encode alaw.wav -f lavfi -i "$tone" -t 0.2 -c:a pcm_alaw
encode mulaw.wav -f lavfi -i "$tone" -t 0.2 -c:a pcm_mulaw
encode mp3.mp3 -f lavfi -i "$tone" -t 0.2 -c:a libmp3lame -b:a 128k -write_xing 0 -id3v2_version 0
encode aac.aac -f lavfi -i "$tone" -t 0.2 -c:a aac -ac 2 -f adts
encode opatom.mxf -f lavfi -i "$tone" -t 0.2 -c:a pcm_s24le -f mxf_opatom

# Start timecodes in QuickTime timecode tracks: drop-frame at 30000/1001 (interlaced H.264, top
# field first) and at 60000/1001, and at a rate that has no timecode standard (24).
encode timecode-drop.mov -f lavfi -i "$(picture 64x64 30000/1001)" -t 0.2 \
    "${x264[@]}" -flags +ildct+ilme -x264-params interlaced=1:tff=1 -timecode "01:00:00;00"
encode timecode-5994.mov -f lavfi -i "$(picture 64x64 60000/1001)" -t 0.1 -c:v mjpeg -timecode "01:00:00;00"
encode timecode-24.mov -f lavfi -i "$(picture 64x64 24)" -t 0.2 -c:v mjpeg -timecode 00:59:50:00

# Copies: a movie whose ftyp box is renamed to "free", so that it has none, and a sound file whose
# name its URI must percent-encode.
cp prores-hq.mov no-ftyp.mov
printf 'free' | dd of=no-ftyp.mov bs=1 seek=4 conv=notrunc status=none
cp pcm16.wav "sound 100% ü.wav"

# Bad files: a text, a directory named like a movie, copies of an MXF and a movie cut at 0, 100 and
# 4096 bytes and at half their size, an MXF with every bit of its header metadata flipped (bytes
# 2048 to 6143), and files that name other files (an HLS playlist, a concat list).
echo "Not a media file." >text.txt
mkdir -p directory.mov
for source in dnxhd-low.mxf dnxhd-high.mov; do
    size=$(stat -c %s "$source")
    for length in 0 100 4096 half; do
        if [ $length = half ]; then
            head -c "$((size / 2))" "$source" >"cut-half.${source##*.}"
        else
            head -c "$length" "$source" >"cut-$length.${source##*.}"
        fi
    done
done
cp dnxhd-low.mxf flipped.mxf
dd if=dnxhd-low.mxf bs=1024 skip=2 count=4 status=none | perl -0777 -pe '$_ = ~$_' \
    | dd of=flipped.mxf bs=1024 seek=2 conv=notrunc status=none
printf '#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:0.2,\nmpeg2.ts\n#EXT-X-ENDLIST\n' >playlist.m3u8
printf 'ffconcat version 1.0\nfile h264.mp4\n' >concat.ffconcat

touch -h -d 2024-01-02T03:04:05Z -- *
