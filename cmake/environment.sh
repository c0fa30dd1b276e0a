# What ./quickstart and ./run-tests share: the processor check, the Debian packages, steps with their logs, the builds.
# Sourced by bash from the top folder of the project.
set -euo pipefail

# Everything that is needed besides git and bash. This is the one place where the packages are listed.
packages=(
    g++ cmake ninja-build pkg-config clang-format
    libgtest-dev libmpfr-dev libflint-arb-dev libfmt-dev libcli11-dev nlohmann-json3-dev
    libopenblas-openmp-dev
    libbenchmark-dev libsleef-dev libhwy-dev libgsl-dev librandom123-dev libntl-dev
)

logs=build/log

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

require_processor() {
    local flags
    flags=$(grep -m 1 '^flags' /proc/cpuinfo || true)
    [[ " $flags " == *" avx2 "* && " $flags " == *" fma "* ]] ||
        die "this processor has no AVX2 or no FMA; qorl_zet_avx2 needs both"
}

# step NAME TITLE COMMAND...: runs a command with its output in a log; shows the end of the log if the command fails.
step() {
    local name=$1 title=$2 log=$logs/$1.log start=$SECONDS
    shift 2
    mkdir -p "$logs"
    printf '%s ... ' "$title"
    if "$@" >"$log" 2>&1 </dev/null; then
        printf 'done (%d s)\n' $((SECONDS - start))
    else
        printf 'failed after %d s; the end of %s:\n' $((SECONDS - start)) "$log"
        grep -v -E '^ *(Start +[0-9]+:|[0-9]+/[0-9]+ Test .* Passed )' "$log" | tail -n 60 || true
        die "$title failed; see $log"
    fi
}

missing_packages() {
    local package
    for package in "${packages[@]}"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s\n' "$package"
    done
}

# install_missing APT-GET...: a first failure may only mean that the package lists are absent or out of date.
install_missing() {
    "$@" install -y --no-install-recommends "${missing[@]}" ||
        { "$@" update && "$@" install -y --no-install-recommends "${missing[@]}"; }
}

# Installs what is missing; does nothing, and needs no network, when nothing is.
require_packages() {
    command -v dpkg-query >/dev/null || return 0  # no Debian: CMake names what it does not find
    local missing as_root=()
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        if command -v sudo >/dev/null && { sudo -n true 2>/dev/null || { [ -t 0 ] && sudo -v; }; }; then
            as_root=(sudo)
        else
            die "these Debian packages are missing and cannot be installed without root or sudo: ${missing[*]}"
        fi
    fi
    step install "Installing ${#missing[@]} Debian packages" \
        install_missing "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Dpkg::Use-Pty=0
}

# build PRESET TITLE [CMAKE OPTION...] [-- TARGET...]
build() {
    local preset=$1 title=$2 options=() targets=()
    shift 2
    while [ $# -gt 0 ] && [ "$1" != -- ]; do options+=("$1") && shift; done
    [ $# -gt 1 ] && shift && targets=(--target "$@")
    step "$preset-configure" "$title: configuring" cmake --preset "$preset" "${options[@]}"
    step "$preset-build" "$title: building" cmake --build --preset "$preset" -j "$(nproc)" "${targets[@]}"
}
