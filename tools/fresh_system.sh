# shellcheck shell=bash
# Sourced by the scripts that try something in a fresh Debian 12: a folder with nothing but the
# smallest system in it, which is gone when the script ends.

# Starts the script again where its mounts and its processes are its own and end with it.
enter_own_space() { # the script and its arguments
    [ "$(id -u)" -eq 0 ] || {
        say "Only root can set up a fresh system."
        exit 1
    }
    [ -z "${QUENDAL_OWN_SPACE:-}" ] || return 0
    QUENDAL_OWN_SPACE=1 exec unshare --mount --pid --fork --kill-child "$@"
}

# The lines of a list of sources: where this machine has its own packages from.
package_sources() {
    # shellcheck disable=SC2016 # apt fills these in, not the shell
    apt-get indextargets --format '$(ORIGIN) deb $(SITE) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' | sed -n '/^Debian deb .* bookworm/s/^Debian //p' | sort -u
}

# make_fresh: sets `fresh` to the folder. QUENDAL_FRESH names one; it must not be there yet.
make_fresh() {
    local sources mirror
    sources=$(package_sources)
    mirror=$(awk '$3 == "bookworm" { print $2; exit }' <<<"$sources")
    if [ -z "$mirror" ]; then
        say "apt has no source of Debian 12 (bookworm) on this machine; try: apt-get update"
        exit 1
    fi
    fresh=${QUENDAL_FRESH:-$(mktemp -u -d /tmp/quendal-fresh-XXXXXX)}
    mkdir "$fresh"
    trap remove_fresh EXIT
    say "Setting up a fresh system in $fresh."
    if ! debootstrap --variant=minbase bookworm "$fresh" "$mirror" >"$fresh.log" 2>&1; then
        tail -20 "$fresh.log"
        exit 1
    fi
    printf '%s\n' "$sources" >"$fresh/etc/apt/sources.list"
    apt-config dump Acquire::http::Proxy >"$fresh/etc/apt/apt.conf.d/proxy"
    mount -t proc proc "$fresh/proc"
    mount -t devpts devpts "$fresh/dev/pts"
    mount -t tmpfs tmpfs "$fresh/dev/shm"
    in_fresh apt-get update -q >/dev/null
}

remove_fresh() {
    umount "$fresh/dev/shm" "$fresh/dev/pts" "$fresh/proc" 2>/dev/null || true
    rm -rf --one-file-system "$fresh" "$fresh.log"
}

in_fresh() {
    chroot "$fresh" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}
