#!/bin/sh
# System calls per question, for each kind of sample: the rules read word for word ("literal") beside the
# library's detectFormats ("all"), hasDetectableFormat ("any"), nearestFormat and detection by name.
#
#     benchmarks/syscalls.sh build/bench/bin/formats_probe
#
# What a question costs is the difference between asking it four times and once, a third of it each, which
# leaves out what the program does by itself. Needs strace. All calls count, memory's too.

set -eu

probe=$(realpath "${1:?the path of formats_probe}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

total() { # how times path
    strace -f -c -o "$work/count" "$probe" ask "$1" "$2" "$3" 2>/dev/null
    awk '$NF == "total" { print $4 }' "$work/count"
}

per_question() { # how path
    once=$(total "$1" 1 "$2")
    often=$(total "$1" 4 "$2")
    awk -v a="$once" -v b="$often" 'BEGIN { printf "%.1f", (b - a) / 3 }'
}

row() { # name path
    printf '| %s |' "$1"
    for how in literal all any nearest name; do
        printf ' %s |' "$(per_question "$how" "$2")"
    done
    echo
}

echo '| sample | literal | all | any | nearest | by name |'
echo '|---|---|---|---|---|---|'
"$probe" names | while read -r number name; do
    mkdir "$work/$number"
    row "$name" "$("$probe" make "$number" "$work/$number")"
done
for large in 'tdf 20000' 'fid 2000' 'agilent 2000'; do
    folder="$work/large ${large}"
    mkdir "$folder"
    # shellcheck disable=SC2086
    row "$large files" "$("$probe" large $large "$folder")"
done
