#!/usr/bin/env bash
# The bash completion of orvik-asset, run as bash-completion runs it, on command lines typed in
# tests/data: each line must complete to exactly the words listed (sorted).
#   check-completion.sh COMPLETION
set -euo pipefail
# shellcheck source=/dev/null
source /usr/share/bash-completion/bash_completion
# shellcheck source=/dev/null
source "$1"

# The completions of the last word of `line`, split into words as bash splits them ("=" apart).
complete_line() {
    local line=$1
    read -ra COMP_WORDS <<<"${line//=/ = }"
    if [[ $line == *' ' ]]; then
        COMP_WORDS+=("")
    fi
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMP_LINE=$line
    COMP_POINT=${#line}
    COMPREPLY=()
    _orvik_asset orvik-asset "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd ' '
}

failed=0
while IFS='|' read -r line expected; do
    actual=$(complete_line "$line")
    if [ "$actual" != "$expected" ]; then
        echo "'$line' completes to '$actual', expected '$expected'" >&2
        failed=1
    fi
done <<'LINES'
orvik-asset s|show
orvik-asset v|validate
orvik-asset --|--help --version
orvik-asset example |--help --kind -h
orvik-asset example --kind |asset group
orvik-asset example --kind=g|group
orvik-asset show --|--help --json --no-color
orvik-asset show --json asset-t|asset-train.json
orvik-asset validate inv|invalid
orvik-asset validate invalid/tim|invalid/time-bounds.json invalid/timecode-text.json
orvik-asset diff asset-media.json asset-m|asset-media.json
LINES
exit $failed
