# Sourced by the start scripts: named steps that say what failed and what to do about it.

# step "What happens" "What to do if it fails" command…
# Ends with the seconds that it took.
step() {
    local name=$1 advice=$2 begin=$SECONDS
    shift 2
    printf '\n== %s\n' "$name"
    "$@" && printf -- '-- %s: %d s\n' "$name" $((SECONDS - begin)) && return 0
    local code=$?
    printf '\nFAILED (%s): %s\n  command: %s\n  what to do: %s\n' "$code" "$name" "$*" "$advice" >&2
    exit 1
}

# in_background LOG command…; later: await_background
#
# Runs one command beside others that wait more than they compute, and gives way to these. Its
# output and its result are those of await_background. It ends with the script, whatever else fails.
in_background() {
    background_log=$1
    shift
    set -m # In a process group of its own.
    (renice -n 19 "$BASHPID" >/dev/null && "$@") >"$background_log" 2>&1 </dev/null &
    background_group=$!
    set +m
    trap 'kill -- "-$background_group" 2>/dev/null' EXIT
}
await_background() {
    local code=0
    wait "$background_group" || code=$?
    trap - EXIT
    cat "$background_log"
    return "$code"
}

# How many compilers may run at once: one a core, but each with a gibibyte and a half of memory.
jobs_here() {
    local cores memory
    cores=$(nproc 2>/dev/null || echo 2)
    memory=$(awk '/MemAvailable/ {print int($2 / 1572864)}' /proc/meminfo 2>/dev/null)
    [ "${memory:-0}" -ge 1 ] || memory=1
    [ "$cores" -lt "$memory" ] && echo "$cores" || echo "$memory"
}

# Has the compiler cache, if it is there, keep what was compiled. Its depend mode preprocesses
# nothing twice, and precompiled headers need the two laxities. Folders with the same sources share
# it.
use_compiler_cache() {
    command -v ccache >/dev/null || return 0
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DEPEND=1 CCACHE_SLOPPINESS=pch_defines,time_macros
}
