# What the scripts share; each reads this file first.

script=$(realpath "$0")
project=${script%/*/*}

# The heading comment of the script is its help.
help() {
    sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$script"
}

# usage [COMPLAINT...]: ends the script after wrong options.
usage() {
    [ $# -eq 0 ] || echo "$(basename "$0"): $*" >&2
    help >&2
    exit 2
}

# Every script calls this with its arguments before it does anything.
answer_help() {
    case ${1:-} in
    -h | --help)
        help
        exit 0
        ;;
    esac
}

# The version that CMakeLists.txt names.
project_version() {
    sed -n 's/^  VERSION \([0-9.]*\)$/\1/p' "$project/CMakeLists.txt"
}

# Options are no Wine prefixes.
demand_prefix() {
    case $1 in
    '' | -*) usage "'$1' is not a folder for a Wine prefix" ;;
    esac
}

# with_progress WHAT LOG COMMAND [ARGUMENT...]: runs a long command with its output in a file, and
# says every few seconds how far it is: the last percentage that it printed, or else the seconds.
# Shows the output when the command failed. A function may be the command, but goes on behind what fails in
# it, as everything does whose status is asked for: let it return by itself.
with_progress() {
    what=$1
    log=$2
    shift 2
    : >"$log"
    (
        seconds=0
        while sleep 5 >/dev/null 2>&1 && kill -0 $$; do
            seconds=$((seconds + 5))
            percent=$(tail -c 4000 "$log" | sed -n 's/^\[ *\([0-9]*%\)\].*/, \1/p' | tail -n 1)
            echo "$what: $seconds s$percent"
        done
    ) >&2 &
    reporter=$!
    trap 'kill $reporter 2>/dev/null || true' EXIT
    result=0
    "$@" >"$log" 2>&1 </dev/null || result=$?
    kill $reporter 2>/dev/null || true
    wait $reporter 2>/dev/null || true
    trap - EXIT
    [ $result -eq 0 ] || cat "$log" >&2
    return $result
}
