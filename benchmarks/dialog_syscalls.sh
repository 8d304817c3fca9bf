#!/bin/sh
# System calls per opening of the spectrum dialog and of a plain toolkit dialog, on a folder of acquisitions.
#
#     benchmarks/dialog_syscalls.sh build/bench/bin/files_probe [acquisitions]
#
# What an opening costs is the difference between opening five times and once, a quarter of it each. The
# calls of the thread that draws are counted; those of the thread that lists the folder depend on how far it
# gets before the dialog is closed again. Needs strace.
set -eu
probe=$(realpath "${1:?the path of files_probe}")
count=${2:-10000}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
mkdir "$work/data"
"$probe" make "$work/data" "$count"

total() { # kind times
    strace -c -o "$work/count" "$probe" "$1" "$work/data" "$2" >/dev/null 2>&1
    awk '$NF == "total" { print $4 }' "$work/count"
}

echo '| dialog | system calls |'
echo '|---|---|'
for kind in plain spectrum; do
    once=$(total "$kind" 1)
    often=$(total "$kind" 5)
    awk -v kind="$kind" -v a="$once" -v b="$often" 'BEGIN { printf "| %s | %.1f |\n", kind, (b - a) / 4 }'
done
