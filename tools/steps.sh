# shellcheck shell=bash
# To be sourced by a command: shows one line for each step, and keeps what the step prints in a log.

# start_log NAME: starts build/NAME.log, once no other command has it.
start_log() {
    local error
    export quillet_log=build/$1.log
    if ! error=$( { mkdir -p build && : >>"$quillet_log"; } 2>&1); then
        echo "Nothing can be written to $PWD/build: ${error##*: }." >&2
        exit 1
    fi
    exec 9>>"$quillet_log"
    # Not every system has flock; without it, nothing waits.
    if command -v flock >/dev/null && ! flock -n 9; then
        echo "Another ./$1 is at work in this checkout. This one waits for it."
        flock 9
    fi
    : >"$quillet_log"
    trap stop INT
    trap end_log EXIT
}

stop() {
    echo
    echo "Stopped. It can be started again at any time."
    exit 130
}

# A program that a step has left behind would hold the lock, too.
end_log() {
    ! command -v flock >/dev/null || flock -u 9
}

# step WHAT COMMAND...: runs the command; if it fails, shows the last lines that it printed.
step() {
    local what=$1 start=$SECONDS
    shift
    printf '%s ... ' "$what"
    echo "== $what" >>"$quillet_log"
    if ! "$@" </dev/null 2>&1 | keep "$what"; then
        echo "failed"
        echo "The last lines of $PWD/$quillet_log:" >&2
        tail -n 15 "$quillet_log" | sed 's/^/    /' >&2
        exit 1
    fi
    echo "done ($((SECONDS - start)) s)"
}

# On a terminal, how far the build is follows the name of the step.
keep() {
    local line
    while IFS= read -r line; do
        echo "$line" >>"$quillet_log"
        if [ -t 1 ] && [[ $line =~ ^\[[0-9]+/[0-9]+\] ]]; then
            printf '\r%s ... %s ' "$1" "${BASH_REMATCH[0]}"
        fi
    done
}
