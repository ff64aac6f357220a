# Sourced by the start scripts: named steps that say what failed and what to do about it.

# step "What happens" "What to do if it fails" command…
step() {
    local name=$1 advice=$2
    shift 2
    printf '\n== %s\n' "$name"
    "$@" && return 0
    local code=$?
    printf '\nFAILED (%s): %s\n  command: %s\n  what to do: %s\n' "$code" "$name" "$*" "$advice" >&2
    exit 1
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
