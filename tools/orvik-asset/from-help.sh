#!/usr/bin/env bash
# Writes what is installed beside orvik-asset from the tool's own --help texts, so that neither
# can drift from the tool:
#   from-help.sh manpage TOOL INCLUDE OUTPUT   the manual page orvik-asset(1), made by help2man:
#       the tool's help, a COMMANDS section with each command's help, EXIT STATUS from the help's
#       "Exit status:" paragraph, and the sections of the help2man include file INCLUDE
#   from-help.sh completion TOOL OUTPUT        the bash completion of the commands, their options
#       and the choices of an option's value; files where a command takes them
set -euo pipefail

mode=$1
tool=$2

# The commands, in the order that --help lists them.
commands() { "$tool" --help | sed -n '/^Subcommands:$/,/^$/s/^  \([^ ]*\) .*/\1/p'; }

# The options of a help text's "Options:" section, one per line: the names, comma-separated,
# then what the option's value is, if it takes one ("--kind TEXT:{asset,group}=asset").
options() { awk '/^Options:$/ { inside = 1; next } /^$/ { inside = 0 } inside && /^  -/ { split($0, f, /  +/); print f[2] }'; }

# The names of those options, separated by blanks.
option_names() { options | cut -d ' ' -f 1 | tr ',' '\n' | paste -sd ' '; }

# Text made safe for roff: backslashes, hyphens and a leading control character.
roff() { sed -e 's/\\/\\e/g' -e 's/-/\\-/g' -e "s/^[.']/\\\\\\&&/"; }

# help2man's page for `orvik-asset COMMAND` from its DESCRIPTION on (the command's description,
# positionals, options and footer), without section headings, to sit under a subsection.
command_page() {
    help2man --no-info --help-option="$1 --help" "$tool" |
        sed -n '/^\.SH DESCRIPTION$/,$p' | sed -e '/^\.SH /d' -e '/^\.SS "Positionals:"$/d'
}

# Deletes the paragraph that starts "Exit status:" from help2man's page: it has a section of its
# own. A paragraph ends at the next roff request.
without_exit_status() {
    awk '/^\./ { skip = 0 }
         held != "" { if (/^Exit status:/) { skip = 1; held = ""; next } print held; held = "" }
         /^\.PP$/ { held = $0; next }
         !skip { print }
         END { if (held != "") print held }'
}

manpage() {
    local include=$1 output=$2 help name command
    help=$("$tool" --help)
    name=$(head -n 1 <<<"$help" | sed -e 's/^\(.\)/\L\1/' -e 's/\.$//')
    {
        echo '[COMMANDS]'
        for command in $(commands); do
            echo ".SS \"$("$tool" "$command" --help | sed -n 's/^Usage: //p' | roff)\""
            command_page "$command" | without_exit_status
        done
        echo '[EXIT STATUS]'
        sed -n '/^Exit status: /,/^$/p' <<<"$help" | sed 's/^Exit status: //' | roff
    } >"$output.h2m"
    help2man --no-info --name="$name" --include="$output.h2m" --include="$include" "$tool" |
        without_exit_status >"$output"
    rm "$output.h2m"
}

# The completion function: the command is the first word that is not an option; then the
# command's options, files where it takes them, and the choices after an option that has some.
completion() {
    local output=$1 command help names value
    {
        echo '# bash completion for orvik-asset, written from its --help texts by from-help.sh.'
        echo '_orvik_asset()'
        echo '{'
        echo '    local cur prev words cword split'
        echo '    _init_completion -s || return'
        echo '    local command="" word options files=""'
        echo '    for word in "${words[@]:1:cword-1}"; do'
        echo '        [[ $word == -* ]] || { command=$word; break; }'
        echo '    done'
        echo '    case $command in'
        printf "    \"\") [[ \$cur == -* ]] && options='%s' || options='%s' ;;\n" \
            "$("$tool" --help | option_names)" "$(commands | paste -sd ' ')"
        for command in $(commands); do
            help=$("$tool" "$command" --help)
            printf '    %s)\n' "$command"
            while read -r names value; do
                if [ -n "$value" ]; then
                    printf "        case \$prev in %s) COMPREPLY=(\$(compgen -W '%s' -- \"\$cur\")); return ;; esac\n" \
                        "${names//,/|}" "$(sed -n 's/.*:{\([^}]*\)}.*/\1/p' <<<"$value" | tr ',' ' ')"
                fi
            done < <(options <<<"$help")
            printf "        options='%s'\n" "$(option_names <<<"$help")"
            if grep -q '^Positionals:$' <<<"$help"; then
                echo '        files=yes'
            fi
            echo '        ;;'
        done
        echo '    esac'
        echo '    if [[ $files && $cur != -* ]]; then'
        echo '        _filedir'
        echo '    else'
        echo '        COMPREPLY=($(compgen -W "$options" -- "$cur"))'
        echo '    fi'
        echo '}'
        echo 'complete -F _orvik_asset orvik-asset'
    } >"$output"
}

case $mode in
manpage) manpage "$3" "$4" ;;
completion) completion "$3" ;;
*)
    echo "usage: from-help.sh manpage TOOL INCLUDE OUTPUT | completion TOOL OUTPUT" >&2
    exit 2
    ;;
esac
