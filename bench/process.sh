#!/bin/sh
# What the running program takes with 10,900 contacts, which leaves room for those of the keys: from its start to its first window, memory, the processor's
# time while only the clocks run, and from a key to its pixels.
#
#     bench/process.sh [PROGRAM]
set -eu
here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
program=$(realpath "${1:-$here/../build/bench/src/tallyhut}")
work=$(mktemp -d)
screen=""
logger=""
finish() {
    [ -n "$logger" ] && kill "$logger" 2>/dev/null
    [ -n "$screen" ] && kill "$screen" 2>/dev/null
    wait
    rm -rf "$work"
}
trap finish EXIT

mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset -r 3>"$work/number" >/dev/null 2>&1 &
screen=$!
read -r number <"$work/number"
export DISPLAY=":$number"

awk 'BEGIN {
    for (n = 1; n <= 10900; ++n) {
        printf "\"%d\",\"%d\",\"A\",\"K%d%c%c%c\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n", n, n % 999 + 1, n % 10,
            65 + n / 2600, 65 + n / 100 % 26, 65 + n / 10 % 26
    }
}' >"$work/Log.txt"

answer() {
    until window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) && [ -n "$window" ]; do
        sleep 0.002
    done
    xdotool windowfocus --sync "$window"
    shift
    [ $# -eq 0 ] || xdotool key "$@"
}

begin=$(date +%s%N)
HOME=$work XDG_CONFIG_HOME=$work/.config XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb "$program" --directory "$work" \
    >"$work/output" 2>&1 &
logger=$!
until [ -n "$(xdotool search --onlyvisible --name 'Amateur Station' 2>/dev/null)" ]; do sleep 0.002; done
end=$(date +%s%N)
echo "start to first window: $(((end - begin) / 1000000)) ms"
answer "Amateur Station" Return
answer "Open existing log" alt+y
answer "Q7ZZQ" alt+l
sleep 5

# Nanoseconds: the process's own count is in hundredths of a second.
spent() { cat /proc/"$logger"/task/*/schedstat | awk '{ sum += $1 } END { printf "%.0f", sum }'; }
before=$(spent)
sleep 20
awk -v spent=$(($(spent) - before)) 'BEGIN { printf "idle: %.3f %% of a core\n", spent / 1e9 / 20 * 100 }'
awk '/VmRSS/ { printf "resident: %d MB\n", $2 / 1024 }' "/proc/$logger/status"

pixels=$(dirname "$program")/../bench/tallyhut_pixels
[ ! -x "$pixels" ] || "$pixels"
