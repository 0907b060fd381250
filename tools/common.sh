# shellcheck shell=bash disable=SC2034
# Shared by ./run and ./test: what Debian packages are needed, and how to build.

build_packages=(
    g++ cmake ninja-build
    qt6-base-dev qt6-svg-dev qt6-multimedia-dev libqcustomplot-dev libgl1-mesa-dev
)
run_packages=(
    libqt6svg6 qt6-qpa-plugins qt6-translations-l10n breeze-icon-theme fonts-liberation
)
test_packages=(
    clang libclang-rt-14-dev libgtest-dev libbenchmark-dev libmuparser-dev python3
    desktop-file-utils appstream mandoc bsdextrautils lintian dpkg-dev file
    librsvg2-bin imagemagick
    xvfb dbus-daemon dbus-session-bus-common at-spi2-core python3-pyatspi python3-pil
)

say() { printf '== %s\n' "$*"; }

missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
            printf '%s\n' "$package"
    done
}

install_packages() {
    local missing as_root=()
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && return
    say "Installing with apt: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            say "These packages are missing and I am not allowed to install them. Please run as root:"
            say "apt-get install ${missing[*]}"
            exit 1
        fi
        as_root=(sudo)
    fi
    if ! { "${as_root[@]}" apt-get update -q &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -q -y --no-install-recommends "${missing[@]}"; }; then
        say "apt could not install them. Is there a network, and is this Debian 12?"
        exit 1
    fi
}

# configure FOLDER OPTIONS...: only what differs from the last time makes cmake work again.
configure() {
    local folder=$1
    shift
    local stamp=$folder/.configured
    if [ -f "$folder/build.ninja" ] && [ "$(cat "$stamp" 2>/dev/null)" = "$*" ]; then
        return
    fi
    if [ -f "$folder/build.ninja" ] && [ "$folder" = build ] && [ $# -eq 1 ]; then
        return # ./run takes a build folder that ./test has made as it is
    fi
    say "Configuring $folder."
    local defaults=(-DQUENDAL_TESTS=OFF)
    if ! cmake -S . -B "$folder" -G Ninja "${defaults[@]}" "$@" >"$folder.log" 2>&1; then
        cat "$folder.log"
        say "The build could not be configured; the reason stands above."
        exit 1
    fi
    mv "$folder.log" "$folder/configure.log"
    printf '%s' "$*" >"$stamp"
}

# build FOLDER [TARGETS...]
build() {
    local folder=$1
    shift
    say "Building $folder."
    if ! cmake --build "$folder" -j "$(nproc)" ${@:+--target "$@"}; then
        say "The build failed; the reason stands above."
        exit 1
    fi
}
