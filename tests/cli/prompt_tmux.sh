#!/usr/bin/env bash
# The prompt at a terminal, driven through tmux: a call, history recall with Up (also in the next
# session), Tab completion, help and quit.
set -u
bin=$(realpath "$1")
if ! command -v tmux >/dev/null; then
    echo "SKIP: tmux is not installed (scripts/deps.sh installs it)"
    exit 77
fi

work=$(mktemp -d)
socket="velkor6-prompt-$$-$RANDOM" # a server of our own, not the user's
cleanup() {
    tmux -L "$socket" kill-server 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT
failed=0

start() {
    tmux -L "$socket" -f /dev/null new-session -d -x 150 -y 40 \
        env HOME="$work/home" XDG_STATE_HOME="$work/state" TERM=xterm "$bin"
}
screen() { tmux -L "$socket" capture-pane -p 2>/dev/null; }
keys() { tmux -L "$socket" send-keys "$@"; }

expect() { # name, grep -E pattern the screen must come to match
    for _ in $(seq 50); do
        screen | grep -Eq -- "$2" && return 0
        sleep 0.1
    done
    failed=$((failed + 1))
    printf 'FAIL %s: no /%s/ on the screen\n' "$1" "$2"
    screen | sed 's/^/    /'
    return 1
}

mkdir -p "$work/home"
start
expect prompt "^velkor6> ?$"
keys 'vkrVal("12") + 1' Enter
expect syntax-error 'line 1: syntax error'
keys 'vkrVal("12")' Enter
expect result '^12$'
keys Up
expect recall '^velkor6> vkrVal\("12"\)$'
keys C-u 'vkrFin' Tab
expect common-prefix '^velkor6> vkrFind$'
expect candidates 'vkrFindSubString.*vkrFindLastSubString|vkrFindLastSubString.*vkrFindSubString'
keys 'LastS' Tab
expect one-candidate '^velkor6> vkrFindLastSubString$'
keys C-u 'help vkrVal' Enter
expect help '^Function vkrVal\(.*\) As Double$'
keys 'quit' Enter
for _ in $(seq 50); do
    tmux -L "$socket" has-session 2>/dev/null || break
    sleep 0.1
done
if tmux -L "$socket" has-session 2>/dev/null; then
    failed=$((failed + 1))
    echo "FAIL quit: the program is still running"
fi

# The history outlives the session.
if ! grep -q "help.*vkrVal" "$work/state/velkor6/history" 2>/dev/null; then
    failed=$((failed + 1))
    echo "FAIL history: not saved in \$XDG_STATE_HOME/velkor6/history"
fi
start
expect prompt-again "^velkor6> ?$"
keys Up Up
expect recall-saved '^velkor6> help vkrVal$'
keys C-d

[ "$failed" -eq 0 ] && echo "prompt: all passed"
[ "$failed" -eq 0 ]
