# SPDX-License-Identifier: Apache-2.0
# Functions for ./package, which sources this file after common.sh.

# The packages are those of the commit that is checked out: what is not committed is left out. All times in them are the
# commit's, so that everybody who builds the commit gets the same bytes. What is committed meanwhile does not count.
packaged=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct "$packaged")
export SOURCE_DATE_EPOCH
version=$(sed -n 's/^project(Lodestar VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

# lay_source FOLDER: the commit's files, and debian/ where dpkg-buildpackage looks for it.
lay_source() {
    rm -rf "$1"
    mkdir -p "$1"
    git archive "$packaged" | tar x -C "$1"
    cp -R "$1/Packaging/debian" "$1/debian"
    "$1/Scripts/releases.py" changelog "$version" >"$1/debian/changelog"
}

# build_here FOLDER LOG: builds this machine's packages beside the folder.
build_here() {
    say "building the packages; the output goes to $2"
    (cd "$1" && DEB_BUILD_OPTIONS="nocheck parallel=${LODESTAR_JOBS:-$(nproc)}" dpkg-buildpackage -b -us -uc) \
        >"$2" 2>&1 || fail_with "$2"
}

fail_with() {
    grep -vE '^\[[0-9]+/[0-9]+\] |^-- ' "$1" | tail -n 60 >&2
    die "that failed; the whole output is in $1"
}

# in_system ROOT [FOLDER] COMMAND: runs the command in another root, with mounts of its own that end with it, and with the
# folder as /mnt.
in_system() {
    local root=$1 folder=
    shift
    if [ $# -gt 1 ]; then
        folder=$(readlink -f "$1")
        shift
    fi
    as_root unshare --mount --pid --fork --kill-child bash -c '
        set -e
        mount --make-rprivate /
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        mkdir -p "$1/mnt"
        [ -z "$2" ] || mount --bind "$2" "$1/mnt"
        exec chroot "$1" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
            SOURCE_DATE_EPOCH="$4" bash -ec "$3"' -- "$root" "$folder" "$1" "$SOURCE_DATE_EPOCH"
}

# make_system ROOT PACKAGE-LIST: a system of its own with these packages, for both kinds of machine. Nothing on this
# machine changes: its libraries for development could not stand beside the other kind's in every case.
make_system() {
    [ ! -e "$1/made" ] || return 0
    say "making a system in $1"
    as_root rm -rf "$1"
    as_root mmdebstrap --variant=minbase --architectures="$(dpkg --print-architecture),arm64" \
        --aptopt='APT::Install-Recommends "false"' --include="$2" bookworm "$1" >"$1.log" 2>&1 || fail_with "$1.log"
    as_root touch "$1/made"
}

# build_arm64 FOLDER LOG: the same for phones, in a system of its own.
build_arm64() {
    local root=$PWD/build/package/cross parent
    parent=$(dirname "$1")
    make_system "$root" build-essential,crossbuild-essential-arm64,fakeroot
    say "building the packages for arm64; the output goes to $2"
    in_system "$root" "$parent" "apt-get update -qq
        cd /mnt/$(basename "$1")
        apt-get build-dep -y -qq --no-install-recommends -a arm64 ./
        DEB_BUILD_OPTIONS='nocheck parallel=${LODESTAR_JOBS:-$(nproc)}' dpkg-buildpackage -b -us -uc -aarm64" \
        >"$2" 2>&1 || fail_with "$2"
}

# same_bytes FOLDER FOLDER: whether both hold the same packages.
same_bytes() {
    local differs=
    for package in "$1"/*.deb; do
        cmp -s "$package" "$2/$(basename "$package")" || {
            say "$(basename "$package") differs"
            diffoscope --max-text-report-size 20000 "$package" "$2/$(basename "$package")" >&2 || true
            differs=1
        }
    done
    [ -z "$differs" ]
}

# check_packages FOLDER: nothing that Debian's checker or AppStream's finds fault with.
check_packages() {
    local changes
    changes=$(ls "$1"/*.changes)
    lintian --allow-root --fail-on error,warning --suppress-tags bad-distribution-in-changes-file "$changes" ||
        die "the packages are not as they should be"
    rm -rf "$1/unpacked"
    dpkg-deb -x "$1"/lodestar_*.deb "$1/unpacked"
    appstreamcli validate --no-net "$1"/unpacked/usr/share/metainfo/*.xml || die "the description for software centres"
    desktop-file-validate "$1"/unpacked/usr/share/applications/*.desktop || die "the desktop entry"
}

# try_packages FOLDER: installs the packages on a bare system, starts them, gives them the files of 1.0, removes them.
try_packages() {
    local root=$PWD/build/package/bare
    as_root rm -rf "$root"
    say "making a bare system in $root"
    as_root mmdebstrap --variant=minbase --aptopt='APT::Install-Recommends "false"' --include=apt-utils \
        --skip=cleanup/apt/lists bookworm "$root" \
        >"$root.log" 2>&1 || fail_with "$root.log"
    as_root cp -L /etc/resolv.conf "$root/etc/resolv.conf"
    as_root unshare --mount bash -ec '
        mount --make-rprivate /
        mount --bind /proc "$1/proc"
        mount --rbind /dev "$1/dev"
        exec autopkgtest "$2"/lodestar_*.deb "$2"/lodestar-cli_*.deb "$2/$3/" -- chroot "$1"' \
        -- "$root" "$1" "lodestar-$version" >"$1/try.log" 2>&1 || {
        cat "$1/try.log" >&2
        die "the installed packages do not do what they should"
    }
    sed -n '/@@@ summary$/,$p' "$1/try.log" | grep -E ' (PASS|FAIL|SKIP)' >&2
    as_root rm -rf "$root"
}

# try_phone FOLDER BUILD: installs the packages for arm64 on a bare system and runs the program on an emulated processor.
try_phone() {
    local root=$PWD/build/package/phone
    as_root rm -rf "$root"
    make_system "$root" qemu-user
    say "installing the packages for arm64 in $root"
    in_system "$root" "$1" "apt-get update -qq
        apt-get install -y -qq --no-install-recommends /mnt/lodestar_*_arm64.deb /mnt/lodestar-cli_*_arm64.deb" \
        >"$1/install.log" 2>&1 || fail_with "$1/install.log"
    as_root unshare --mount bash -ec '
        mount --make-rprivate /
        mount --bind /proc "$2/proc"
        mount --rbind /dev "$2/dev"
        exec python3 -B Tests/Application/phone.py "$1" "$2" "$3"' -- "$2" "$root" "$1"
}
