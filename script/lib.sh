# What the scripts share: messages, root's rights, Wine in 64 and 32 bits, and a virtual display. Bash, sourced.
# shellcheck shell=bash

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$project/build
root32=$build/i386-root

say() { printf '== %s\n' "$*" >&2; }
fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo -- "$@"
    else
        fail "needs root's rights for: $*"
    fi
}

# wait_until SECONDS COMMAND...: runs the command ten times a second until it succeeds; fails when time is up.
wait_until() {
    local tries=$(($1 * 10))
    shift
    until "$@"; do
        ((tries-- > 0)) || return 1
        sleep 0.1
    done
}

# configured FOLDER NAME: what CMake keeps under a name in a build folder.
configured() { sed -n "s/^$2:[A-Z]*=//p" "$1/CMakeCache.txt"; }

# What several builds compile in the same way, like the writer of the help, is compiled once.
share_compilations() {
    export CCACHE_DIR=${CCACHE_DIR-$build/ccache} CCACHE_BASEDIR=$project CCACHE_NOHASHDIR=1
    export CCACHE_SLOPPINESS=pch_defines,time_macros CMAKE_CXX_COMPILER_LAUNCHER=ccache
}

# --- Wine -----------------------------------------------------------------------------------------------------------

# What the name of a prefix ends with: nothing, or that of a copy.
prefix_copy=
wine_prefix() { printf '%s/wine/%s%s\n' "$build" "$1" "$prefix_copy"; }

# On a 64-bit Wine alone every 32-bit program ends at once with status 0 and does nothing.
has_wine32() { [ -x /usr/lib/wine/wine ]; }

# The variables that every Wine process gets: a prefix of the project's own, no chatter, no offers to install more,
# and no debugger window when a program crashes.
wine_variables() {
    printf '%s\n' "WINEPREFIX=$(wine_prefix "$1")" WINEDEBUG=-all LC_ALL=C.UTF-8 \
        "WINEDLLOVERRIDES=mscoree=;mshtml=;winedbg.exe=;winemenubuilder.exe="
    if [ "$1" = win32 ] && ! has_wine32; then
        printf '%s\n' WINEARCH=win32 "HOME=$build/wine" ${DISPLAY:+"DISPLAY=$DISPLAY"}
    fi
}

# with_wine win64|win32 COMMAND...: runs a command of Wine's (wine, wineserver, wineboot) for programs of that width.
with_wine() {
    local width=$1 variables
    shift
    mapfile -t variables < <(wine_variables "$width")
    if [ "$width" = win32 ] && ! has_wine32; then
        in_root32 "$(id -u):$(id -g)" env -C "$PWD" "${variables[@]}" "$@"
    else
        env "${variables[@]}" "$@"
    fi
}

# Makes the prefix, once; several test programs may start at the same time.
make_wine_prefix() {
    local prefix
    prefix=$(wine_prefix "$1")
    [ -e "$prefix/ready" ] && return
    mkdir -p "$build/wine"
    (
        flock 9
        [ -e "$prefix/ready" ] && exit
        say "making the Wine prefix $prefix"
        rm -rf "$prefix"
        with_wine "$1" wineboot -i </dev/null >&2 9>&-
        with_wine "$1" wineserver -w 9>&-
        touch "$prefix/ready"
    ) 9>"$prefix.lock"
}

# --- An i386 root, for machines without a 32-bit Wine ---------------------------------------------------------------

# in_root32 USER:GROUP COMMAND...: runs the command inside the i386 root, where the project has its usual path. The
# mounts belong to the command alone and vanish with it.
in_root32() {
    # shellcheck disable=SC2016
    as_root unshare --mount bash -euc '
        root=$1 project=$2 user=$3
        shift 3
        mkdir -p "$root$project" "$root/tmp/.X11-unix"
        mount --rbind /proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mount --bind "$project" "$root$project"
        if [ -d /tmp/.X11-unix ]; then mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"; fi
        exec chroot --userspec="$user" "$root" "$@"' in_root32 "$root32" "$project" "$@"
}

# The machine's own Debian mirror, so that debootstrap asks where apt-get does; empty when apt does not tell.
debian_mirror() {
    apt-get indextargets --format '$(REPO_URI)' 'Origin: Debian' "Codename: $1" 'Identifier: Packages' 2>/dev/null |
        head -n 1
}

make_root32() {
    [ -e "$root32/ready" ] && return
    local codename mirror
    # shellcheck disable=SC1091
    codename=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-stable}")
    mirror=$(debian_mirror "$codename")
    say "making an i386 root with Wine in $root32 (once, about a minute)"
    as_root rm -rf --one-file-system "$root32"
    mkdir -p "$build"
    as_root debootstrap --variant=minbase --arch=i386 "$codename" "$root32" ${mirror:+"$mirror"} </dev/null >&2
    in_root32 0:0 env DEBIAN_FRONTEND=noninteractive HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin \
        apt-get install -y -q --no-install-recommends wine wine32 libgl1 fonts-wine fonts-liberation </dev/null >&2
    as_root touch "$root32/ready"
}

# prepare_wine win64|win32: everything that programs of that width need to run.
prepare_wine() {
    if [ "$1" = win32 ] && ! has_wine32; then make_root32; fi
    make_wine_prefix "$1"
}

# work_in_prefix_copy NAME win64|win32: from here on, programs of that width run in a new copy of the prefix, so that
# settings can be written and wiped without touching anybody's.
work_in_prefix_copy() {
    local original copy
    prepare_wine "$2"
    original=$(wine_prefix "$2")
    prefix_copy=-$1
    copy=$(wine_prefix "$2")
    rm -rf "$copy"
    cp -al "$original" "$copy"
    # Wine writes a registry file with several links in place, where the original would change as well.
    cp -a --remove-destination "$original"/*.reg "$copy"
}

# Ends whatever still runs in the copy of the prefix and removes it.
leave_prefix_copy() {
    [ -n "$prefix_copy" ] || return 0
    with_wine "$1" wineserver -k || true
    with_wine "$1" timeout 30 wineserver -w || true
    rm -rf "$(wine_prefix "$1")"
    prefix_copy=
}

# --- A virtual display ----------------------------------------------------------------------------------------------

display_processes=()
display_folder=

# start_display [WIDTHxHEIGHT]: starts a display of our own with a window manager and points DISPLAY at it.
start_display() {
    display_folder=$(mktemp -d)
    Xvfb -displayfd 3 -screen 0 "${1-1280x800}x24" -nolisten tcp 3>"$display_folder/number" 2>"$display_folder/log" &
    display_processes+=($!)
    wait_until 20 test -s "$display_folder/number" || fail "no virtual display: $(cat "$display_folder/log")"
    DISPLAY=:$(cat "$display_folder/number")
    export DISPLAY
    # Without a window manager the states of the windows and of Windows disagree.
    openbox --sm-disable --config-file "$project/script/openbox.xml" --startup "touch $display_folder/managed" \
        >>"$display_folder/log" 2>&1 &
    display_processes+=($!)
    wait_until 20 test -e "$display_folder/managed" || fail "no window manager: $(cat "$display_folder/log")"
}

# stop_display [win64|win32]...: ends the display, then waits for the Wine processes of those widths, which end
# with it, so that the next display finds none of them.
stop_display() {
    local width
    if [ ${#display_processes[@]} -gt 0 ]; then
        kill "${display_processes[@]}" 2>/dev/null || true
        wait "${display_processes[@]}" 2>/dev/null || true
        display_processes=()
        unset DISPLAY
        for width in "$@"; do
            with_wine "$width" timeout 30 wineserver -w || true
        done
    fi
    if [ -n "$display_folder" ]; then
        rm -rf "$display_folder"
        display_folder=
    fi
}
