# shellcheck shell=bash
# Roots of other Debian releases to build and try the tree in; for scripts to source, who say what
# their messages begin with ($roots_user). Packages come from where this machine's own come from.

roots_file=$(readlink -f "${BASH_SOURCE[0]}")
roots_tree=$(cd "$(dirname "$roots_file")/../.." && pwd)
roots_place=/srv/orvanta # of the copy of the tree, in a root

# What can be made again lies in the user's cache.
# shellcheck disable=SC2034 # for who sources this
roots_cache=${XDG_CACHE_HOME:-$HOME/.cache}/orvanta/elsewhere

roots_fail() {
    echo "${roots_user:-roots}: $*" >&2
    exit 99
}

# Where packages of a release come from, "ADDRESS trixie" and a line each for what corrects it: the
# same places that this machine takes those of its own release from.
roots_sources_of() { # SUITE
    local own
    own=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
    # shellcheck disable=SC2016 # names of apt's own
    apt-get indextargets --format '$(REPO_URI) $(CODENAME)' \
        'Created-By: Packages' 'Origin: Debian' 'Component: main' | sort -u |
        awk -v own="$own" -v suite="$1" '
            $2 == own || index($2, own "-") == 1 { print $1, suite substr($2, length(own) + 1) }'
}

# A bare release. Named as finished only when it is whole: a root half made is never used.
roots_make() { # SUITE ROOT
    local suite=$1 root=$2 mirror proxy=
    mirror=$(roots_sources_of "$suite" | awk -v suite="$suite" '$2 == suite { print $1; exit }')
    [ -n "$mirror" ] || roots_fail "apt knows no place with Debian packages"
    command -v debootstrap >/dev/null || DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends debootstrap >/dev/null ||
        roots_fail "debootstrap cannot be installed"
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    rm -rf "$root" "$root.unfinished"
    mkdir -p "$(dirname "$root")"
    echo "== Debian $suite from $mirror"
    env ${proxy:+http_proxy="$proxy"} debootstrap --variant=minbase "$suite" "$root.unfinished" \
        "$mirror" || roots_fail "Debian $suite cannot be installed"
    roots_sources_of "$suite" | sed 's/.*/deb & main/' >"$root.unfinished/etc/apt/sources.list"
    apt-config dump | grep -E '^Acquire::(https?|Check|Retries)' \
        >"$root.unfinished/etc/apt/apt.conf.d/90machine" || true
    # Packages bring servers along that are not to be started here.
    printf '#!/bin/sh\nexit 101\n' >"$root.unfinished/usr/sbin/policy-rc.d"
    chmod +x "$root.unfinished/usr/sbin/policy-rc.d"
    mv "$root.unfinished" "$root"
}

# A clean copy of the tracked files, committed or not.
roots_copy_tree() { # ROOT
    local changed
    rm -rf "$1$roots_place"
    mkdir -p "$1$roots_place"
    changed=$(git -C "$roots_tree" stash create)
    git -C "$roots_tree" archive "${changed:-HEAD}" | tar -x -C "$1$roots_place"
    roots_copy_names "$1"
}

# By which the network's names are found.
roots_copy_names() { # ROOT
    cp /etc/resolv.conf /etc/hosts "$1/etc/"
}

# In namespaces of its own, which the kernel clears away with all that was mounted and started in
# them when this ends, however it ends. The devices are the bare ones and what disks of our own are
# made with: no camera and no sound card of this machine gets into a test.
roots_inside() { # ROOT COMMAND ARGS...
    local root=$1 device
    shift
    ip link set lo up
    mount --bind "$root" "$root"
    mount -t proc proc "$root/proc"
    mount -t sysfs -o ro sysfs "$root/sys"
    mount -t tmpfs -o mode=755 tmpfs "$root/dev"
    for device in null zero full random urandom tty fuse; do
        [ -e "/dev/$device" ] || continue # the kernel may have no such disks
        touch "$root/dev/$device"
        mount --bind "/dev/$device" "$root/dev/$device"
    done
    mkdir "$root/dev/pts" "$root/dev/shm"
    mount -t devpts -o newinstance,ptmxmode=666 devpts "$root/dev/pts"
    mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
    ln -s pts/ptmx "$root/dev/ptmx"
    ln -s /proc/self/fd "$root/dev/fd"
    for device in stdin:0 stdout:1 stderr:2; do
        ln -s "fd/${device#*:}" "$root/dev/${device%:*}"
    done
    mount -t tmpfs -o mode=755 tmpfs "$root/run"
    find "$root/tmp" -mindepth 1 -delete
    # shellcheck disable=SC2016 # for the shell in there
    exec env -i HOME=/root TERM="${TERM:-dumb}" LC_ALL=C.UTF-8 \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        chroot "$root" sh -c 'mkdir -p "$0" && cd "$0" && "$@"' "$roots_place" "$@"
}

# Runs a command in the copy of the tree and waits for it: in the background, so that a signal is
# heard at once, and as a job, so that the programs in there are not deaf to the keyboard's.
roots_run() { # [--net] ROOT COMMAND ARGS...; with --net it has a network of its own: none
    local namespaces=(--mount --pid) inner status=0
    if [ "$1" = --net ]; then
        namespaces+=(--net)
        shift
    fi
    set -m
    # shellcheck disable=SC2016 # for the shell in there
    unshare "${namespaces[@]}" --fork --kill-child \
        bash -euo pipefail -c '. "$0" && roots_inside "$@"' "$roots_file" "$@" </dev/null 9>&- &
    inner=$!
    # shellcheck disable=SC2064 # it is known now
    trap "kill -KILL $inner; wait $inner; exit 130" HUP INT TERM
    wait "$inner" || status=$?
    trap - HUP INT TERM
    return "$status"
}

# From here on nobody else may use this root.
roots_lock() { # ROOT
    [ "$(id -u)" -eq 0 ] || roots_fail "only root can make a root of another Debian release"
    mkdir -p "$(dirname "$1")"
    exec 9>"$1.lock"
    flock -n 9 || roots_fail "$1 is in use"
}
