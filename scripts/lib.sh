# Functions shared by the scripts of this folder; sourced, not run.

Root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
CacheFolder="${XDG_CACHE_HOME:-$HOME/.cache}/quilltune"

# What each task needs, as Debian 12 package names.
BuildPackages=(cmake ninja-build make gcc g++ g++-mingw-w64-i686-win32 g++-mingw-w64-x86-64-win32
               libz-mingw-w64-dev googletest dpkg-dev ca-certificates)
WinePackages=(wine wine64 xvfb fonts-liberation)  # with letters as wide as those of Windows
ClangPackages=(clang libclang-rt-14-dev)  # for tests and fuzzing

Say() { printf '== %s\n' "$*" >&2; }

Die() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Is there a way to run a command as root?
CanBeRoot() { [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; }

# Runs a command as root: directly, or through sudo.
AsRoot() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        Die "this needs root and there is no sudo: $*"
    fi
}

# Installs those of the given Debian packages that are missing.
RequirePackages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    Say "Installing ${missing[*]}"
    { AsRoot apt-get -q update &&
        AsRoot env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}"; } >&2 ||
        Die "could not install ${missing[*]}"
}

# Prints a key for what is made from the packages $1 by the files $2...: another version of a package, as far as this machine
# has heard of it, and another text of a file make another key.
CacheKey() {
    local packages=$1
    shift
    # shellcheck disable=SC2086  # several packages
    { cat "$@" && apt-cache policy $packages 2>/dev/null | sed -n 's/^ *Candidate: //p'; } | sha256sum | cut -c1-12
}

# Configures and builds the preset $1, with any further build arguments.
BuildPreset() {
    local preset=$1
    shift
    (cd "$Root" && cmake --preset "$preset" && cmake --build --preset "$preset" "$@") >&2
}
