#!/usr/bin/env bash
# `orvik-asset probe` on 500 small media files in one process, against ffprobe run once per file
# (-show_format -show_streams -of json), one process after another as services run it today, and
# against the same ffprobe processes run on every core at once (xargs -P). The files are made by
# ffmpeg in a temporary folder: five one-second clips (ProRes 422 HQ in MOV, XDCAM HD MPEG-2 in
# MXF, H.264 with AAC in MP4, MP2 in MPEG-TS, PCM in WAV), each copied 100 times under other names.
# Prints, for each way, the wall time, the CPU time (user and system, children included) and the
# cores kept busy (CPU time over wall time): the medians of ROUNDS rounds (default 5), the three
# ways taken in turn within a round.
#
#   benchmarks/probe-vs-ffprobe.sh ORVIK_ASSET [ROUNDS]
set -euo pipefail

tool=$(realpath "${1:?usage: probe-vs-ffprobe.sh ORVIK_ASSET [ROUNDS]}")
rounds=${2:-5}
copies=100

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

picture=(-f lavfi -i testsrc2=size=1920x1080:rate=25:duration=1)
sound=(-f lavfi -i sine=sample_rate=48000:duration=1)
make() {
    ffmpeg -nostdin -v error -y "$@"
}
make "${picture[@]}" "${sound[@]}" -c:v prores_ks -profile:v 3 -c:a pcm_s24le -timecode 10:00:00:00 clip.mov
make "${picture[@]}" "${sound[@]}" -c:v mpeg2video -pix_fmt yuv422p -b:v 50M -minrate 50M -maxrate 50M \
    -bufsize 17825792 -g 12 -c:a pcm_s24le -timecode 10:00:00:00 clip.mxf
make "${picture[@]}" "${sound[@]}" -c:v libx264 -preset veryfast -pix_fmt yuv420p -c:a aac clip.mp4
make "${picture[@]}" "${sound[@]}" -c:v mpeg2video -b:v 15M -c:a mp2 clip.ts
make "${sound[@]}" -ac 2 -c:a pcm_s24le clip.wav

mkdir files
for clip in clip.*; do
    for ((i = 1; i <= copies; i++)); do
        cp "$clip" "files/${clip%.*}-$i.${clip##*.}"
    done
done
mapfile -t files < <(find files -type f | sort)
echo "${#files[@]} files, $(du -sh files | cut -f1), $(nproc) cores"

# Each way must describe every file; its output is checked once, before the timing.
lines=$("$tool" probe "${files[@]}" | wc -l)
[ "$lines" -eq "${#files[@]}" ] || { echo "orvik-asset probe wrote $lines lines" >&2; exit 1; }
for file in "${files[@]:0:5}"; do
    [[ $(ffprobe -v error -show_format -show_streams -of json "$file") == *'"streams"'* ]]
done

tool_probe() {
    "$tool" probe "${files[@]}" >/dev/null
}
ffprobe_each() {
    for file in "${files[@]}"; do
        ffprobe -v error -show_format -show_streams -of json "$file" >/dev/null
    done
}
ffprobe_parallel() {
    printf '%s\0' "${files[@]}" |
        xargs -0 -n 1 -P "$(nproc)" ffprobe -v error -show_format -show_streams -of json >/dev/null
}

# One timing: "WALL CPU" in seconds, CPU being the user and system time of the way's processes.
measure() {
    local TIMEFORMAT='%R %U %S'
    { time "$1" 2>&3; } 3>&2 2>&1 | awk '{ printf "%.3f %.3f\n", $1, $2 + $3 }'
}

ways=(tool_probe ffprobe_each ffprobe_parallel)
for ((round = 1; round <= rounds; round++)); do
    for way in "${ways[@]}"; do
        measure "$way" >>"$way.times"
    done
done

ratio() {
    awk -v a="$1" -v b="$2" 'BEGIN { print a / b }'
}
median() {
    sort -n | awk '{ v[NR] = $1 } END { print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2) }'
}
printf '%-18s %10s %10s %7s\n' way wall cpu cores
for way in "${ways[@]}"; do
    wall=$(cut -d' ' -f1 "$way.times" | median)
    cpu=$(cut -d' ' -f2 "$way.times" | median)
    printf '%-18s %9.2fs %9.2fs %7.2f\n' "$way" "$wall" "$cpu" "$(ratio "$cpu" "$wall")"
done
each=$(cut -d' ' -f1 ffprobe_each.times | median)
parallel=$(cut -d' ' -f1 ffprobe_parallel.times | median)
tool_wall=$(cut -d' ' -f1 tool_probe.times | median)
printf 'orvik-asset probe is %.1f times as fast as ffprobe per file, %.1f times as fast as ffprobe on every core\n' \
    "$(ratio "$each" "$tool_wall")" "$(ratio "$parallel" "$tool_wall")"
