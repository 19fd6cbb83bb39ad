#!/bin/sh
# How exactly the program keys: marks, gaps between elements and gaps between letters at 30 WPM, seen by a shim in front of
# the system's calls on a pseudo terminal. The window is open, the clocks run, the log has 11,000 contacts, a radio is polled
# at the fastest rate, and the message is shown as it is sent. Once with the machine as it is and once with four programs
# that spin, each with real-time scheduling, where the caller may have it, and without. Beside it the platform alone, and
# cwdaemon where it is installed, with the same text and the same shim.
#
#     bench/keying.sh [FOLDER OF THE BUILD [LETTERS R OF A MESSAGE]]
set -eu
here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
build=$(realpath "${1:-$here/../build/bench}")
letters=${2:-400}
work=$(mktemp -d)
pids=""
finish() {
    # shellcheck disable=SC2086 # one word a process
    [ -z "$pids" ] || kill $pids 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap finish EXIT

export HOME="$work" XDG_CONFIG_HOME="$work/.config" XDG_RUNTIME_DIR="$work"
shim="$build/bench/libkey_shim.so"
without_real_time="setpriv --bounding-set -sys_nice --inh-caps -sys_nice"
[ "$(id -u)" = 0 ] || without_real_time="prlimit --rtprio=0:0"
text=$(awk -v n="$letters" 'BEGIN { for (i = 0; i < n; ++i) printf "R" }')
seconds=$((letters * 10 * 40 / 1000 + 4))

socat "pty,raw,echo=0,link=$work/key" "pty,raw,echo=0,link=$work/far" &
pids="$pids $!"
mkfifo "$work/radio-input"
"$build/bench/tallyhut_radio_on_a_wire" <"$work/radio-input" >"$work/radio" &
pids="$pids $!"
exec 4>"$work/radio-input"
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset 3>"$work/number" >/dev/null 2>&1 &
pids="$pids $!"
read -r number <"$work/number"
export DISPLAY=":$number"
until [ -s "$work/radio" ] && [ -e "$work/key" ]; do sleep 0.1; done

mkdir "$work/contest"
awk 'BEGIN {
    for (n = 1; n <= 11000; ++n) {
        printf "\"%d\",\"%d\",\"A\",\"K%d%c%c%c\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n", n, n % 999 + 1, n % 10,
            65 + n / 2600, 65 + n / 100 % 26, 65 + n / 10 % 26
    }
}' >"$work/contest/Log.txt"
# Messages, F1 first; port 1, 30 WPM; the line DTR; what is sent is shown.
awk -v text="$text" 'BEGIN {
    printf "\"%s\"\r\n", text
    for (i = 2; i <= 9; ++i) printf "\"\"\r\n"
    printf "\"1\"\r\n\"30\"\r\n\"\"\r\n\"\"\r\n\"0\"\r\n2\r\n\"&H378\"\r\n1\r\n\"0\"\r\n"
}' >"$work/contest/CW.txt"
ports="--port 1=$work/key --port 2=$(cat "$work/radio")"

# shellcheck disable=SC2086 # several words
"$build/src/tallyhut" --console --directory "$work/contest" $ports >"$work/output" <<END
click Command1
answer Yes
menu mnuRig
pick List1 4
click optComm(1)
click optPollFast
click cmdDone
settle 1000
END

loaded() {
    spinners=""
    for _ in 1 2 3 4; do
        sh -c 'while :; do :; done' &
        spinners="$spinners $!"
    done
    pids="$pids $spinners"
    "$@"
    # shellcheck disable=SC2086
    kill $spinners
}

report() {
    echo "$1"
    "$build/bench/tallyhut_keying_bench" report "$work/log" 30
    rm -f "$work/log"
}

platform() {
    title=$1
    shift
    KEY_LOG="$work/log" LD_PRELOAD="$shim" "$@" "$build/bench/tallyhut_keying_bench" key "$work/key" 30 "$letters"
    report "platform, $title"
}

answer() {
    until window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) && [ -n "$window" ]; do
        sleep 0.05
    done
    xdotool windowfocus --sync "$window"
    shift
    [ $# -eq 0 ] || xdotool key "$@"
}

program() {
    title=$1
    shift
    # shellcheck disable=SC2086
    KEY_LOG="$work/log" LD_PRELOAD="$shim" QT_QPA_PLATFORM=xcb "$@" "$build/src/tallyhut" --directory "$work/contest" $ports \
        >"$work/output" 2>&1 &
    logger=$!
    pids="$pids $logger"
    answer "Amateur Station" Return
    answer "Open existing log" alt+y
    answer "Q7ZZQ" alt+l
    sleep 2
    xdotool key F1
    sleep "$seconds"
    kill "$logger"
    wait "$logger" || true
    report "program, $title"
}

peer() {
    title=$1
    KEY_LOG="$work/log" LD_PRELOAD="$shim" cwdaemon -n -d "$(realpath --relative-to=/dev "$work/key")" -x n -s 30 -p 6790 \
        >"$work/output" 2>&1 &
    daemon=$!
    pids="$pids $daemon"
    sleep 1
    # It takes some hundred characters at a time.
    sent=0
    while [ "$sent" -lt "$letters" ]; do
        part=$((letters - sent < 200 ? letters - sent : 200))
        printf '%.*s' "$part" "$text" | socat - UDP-SENDTO:127.0.0.1:6790
        sent=$((sent + part))
        sleep $((part * 10 * 40 / 1000 * 2 + 3))
    done
    kill "$daemon"
    wait "$daemon" || true
    report "cwdaemon, $title"
}

platform "machine as it is"
loaded platform "loaded"
# shellcheck disable=SC2086
platform "machine as it is, no real time" $without_real_time
# shellcheck disable=SC2086
loaded platform "loaded, no real time" $without_real_time
program "machine as it is" env
loaded program "loaded" env
# shellcheck disable=SC2086
program "machine as it is, no real time" $without_real_time
# shellcheck disable=SC2086
loaded program "loaded, no real time" $without_real_time
if command -v cwdaemon >/dev/null; then
    peer "machine as it is"
    loaded peer "loaded"
fi
