#!/usr/bin/env bash
# Makes (once) and prints a Debian 12 root with Wine for both 32-bit and 64-bit programs. A machine that already mixes
# package versions often cannot install wine32:i386; a root of the main archive alone always can. Needs root.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

Packages=(wine wine32:i386 wine64 xvfb)
Result="$CacheFolder/wine-root-$(CacheKey wine "${BASH_SOURCE[0]}")"

if [ ! -d "$Result" ]; then
    Say "Making a root with 32-bit Wine"
    mkdir -p "$CacheFolder"
    Work=$(mktemp -d "$CacheFolder/work.XXXXXX")
    trap 'AsRoot rm -rf --one-file-system "$Work"' EXIT
    AsRoot debootstrap --variant=minbase --include=ca-certificates bookworm "$Work/root" http://deb.debian.org/debian >&2
    AsRoot chroot "$Work/root" /bin/sh -ec "
        export DEBIAN_FRONTEND=noninteractive
        dpkg --add-architecture i386
        apt-get -q update
        apt-get -q install -y --no-install-recommends ${Packages[*]}
        apt-get clean" >&2
    AsRoot mv -T "$Work/root" "$Result"
fi
echo "$Result"
