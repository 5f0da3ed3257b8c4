# SPDX-License-Identifier: Apache-2.0
# Functions for ./run, ./test, ./bench and ./package, which source this file from the top of the checkout.

say() { printf '%s\n' "lodestar: $*" >&2; }
die() {
    say "$*"
    exit 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages [LIST...]: installs the packages of the lists, or of Packaging/debian-packages.txt, that the machine
# lacks. On other systems than Debian a person must install them.
install_packages() {
    [ $# -gt 0 ] || set -- Packaging/debian-packages.txt
    command -v dpkg-query >/dev/null || {
        say "not a Debian system; the libraries that Packaging/debian-packages.txt names must be there"
        return 0
    }
    local listed missing
    listed=$(grep -hvE '^\s*(#|$)' "$@" | sort -u)
    missing=$(comm -23 <(printf '%s\n' "$listed") \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p' | sort -u))
    [ -z "$missing" ] && return 0
    say "installing $(printf '%s\n' "$missing" | wc -l) packages"
    as_root apt-get update -qq || die "the package lists could not be fetched"
    # shellcheck disable=SC2086
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null ||
        die "these packages could not be installed: $(printf '%s ' $missing)"
    # The tests start a Prometheus of their own; the system's need not listen on the machine because of them.
    if grep -qx prometheus <<<"$missing" && [ -d /run/systemd/system ]; then
        as_root systemctl disable --now --quiet prometheus || say "the service prometheus could not be stopped"
    fi
}

# configure PRESET [ARGUMENT...]
configure() {
    local preset=$1
    shift
    mkdir -p build
    cmake --preset "$preset" "$@" >"build/configure-$preset.log" 2>&1 || {
        cat "build/configure-$preset.log" >&2
        die "configuring failed"
    }
}

# build PRESET TARGET...
build() {
    local preset=$1 targets=()
    shift
    for target in "$@"; do targets+=(--target "$target"); done
    say "building ($preset)"
    cmake --build "build/$preset" "${targets[@]}" -j "$(nproc)" >"build/build-$preset.log" 2>&1 || {
        grep -vE '^\[[0-9]+/[0-9]+\] ' "build/build-$preset.log" | tail -n 100 >&2
        die "building failed; the whole output is in build/build-$preset.log"
    }
}
