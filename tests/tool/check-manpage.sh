#!/usr/bin/env bash
# The manual page of orvik-asset against the tool's --help: every command has its section and an
# example, each example uses only options that its command's --help lists, and man renders the
# page without a warning (as lintian runs it).
#   check-manpage.sh TOOL MANPAGE
set -euo pipefail
tool=$1
page=$2

failed=0
fail() {
    echo "$*" >&2
    failed=1
}

# The example command lines (".B" lines of EXAMPLES), one pipeline stage per line, unescaped.
examples=$(zcat "$page" | sed -n '/^\.SH EXAMPLES$/,/^\.SH /s/^\.B //p' | sed 's/\\-/-/g' | tr '|' '\n')
for command in $("$tool" --help | sed -n '/^Subcommands:$/,/^$/s/^  \([^ ]*\) .*/\1/p'); do
    zcat "$page" | grep -q "^\.SS \"orvik\\\\-asset $command " || fail "no section for orvik-asset $command"
    grep -Eq "^ *orvik-asset $command( |$)" <<<"$examples" || fail "no example of orvik-asset $command"
done
while read -r program command arguments; do
    for argument in $arguments; do
        if [[ $argument == -?* ]] && ! "$tool" "$command" --help | grep -Eq "^  ([^ ]*,)?$argument( |,|$)"; then
            fail "the example '$program $command $arguments' uses $argument, which orvik-asset $command --help does not list"
        fi
    done
done <<<"$examples"

warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
[ -z "$warnings" ] || fail "man: $warnings"
exit $failed
