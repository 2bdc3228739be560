#!/usr/bin/env bash
# Builds libpng for a Windows target from Debian's own source package, once, and prints the folder that holds its
# include/ and lib/. CMake runs this by itself; zlib comes from libz-mingw-w64-dev.
#   scripts/deps.sh i686-w64-mingw32 | x86_64-w64-mingw32
set -euo pipefail
. "$(dirname "$0")/lib.sh"

Target=${1:?a target such as x86_64-w64-mingw32}
Options="$Root/cmake/libpng_decode.dfa"

# The library for this system is of the same source package, so that a security update makes a new copy.
Result="$CacheFolder/libpng-$Target-$(CacheKey libpng16-16 "$Options" "${BASH_SOURCE[0]}")"

# Fetches and unpacks libpng's source below the folder $1, with a package configuration of its own so that the
# machine's needs no deb-src line.
FetchSource() {
    local folder=$1 apt="$1/apt"
    mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial"
    cat >"$apt/sources.list" <<END
deb-src http://deb.debian.org/debian bookworm main
deb-src http://deb.debian.org/debian bookworm-updates main
deb-src http://deb.debian.org/debian-security bookworm-security main
END
    cat >"$apt/apt.conf" <<END
Dir::Etc::sourcelist "$apt/sources.list";
Dir::Etc::sourceparts "/dev/null";
Dir::State::lists "$apt/lists";
Dir::Cache "$apt/cache";
APT::Sandbox::User "";
END
    # A mirror may lack the files of the security archive's newest version; the release's own are always there.
    (cd "$folder" && export APT_CONFIG="$apt/apt.conf" && apt-get -q update &&
        { apt-get -q source libpng1.6 || apt-get -q source libpng1.6/bookworm; }) >&2
}

Build() {
    local source=$1 work=$2 file objects=()
    mkdir -p "$work/include" "$work/lib"
    cp "$Options" "$work/pngusr.dfa"
    make -C "$work" -f "$source/scripts/pnglibconf.mak" srcdir="$source" DFA_XTRA=pngusr.dfa \
        CPP="$Target-gcc-win32 -E" pnglibconf.h >&2
    cp "$work/pnglibconf.h" "$source/png.h" "$source/pngconf.h" "$work/include/"
    for file in png pngerror pngget pngmem pngread pngrio pngrtran pngrutil pngset pngtrans; do
        "$Target-gcc-win32" -c -Os -ffunction-sections -fdata-sections -I "$work" -I "$source" \
            "$source/$file.c" -o "$work/$file.o" >&2
        objects+=("$work/$file.o")
    done
    "$Target-ar" rcs "$work/lib/libpng.a" "${objects[@]}"
}

if [ ! -d "$Result" ]; then
    Say "Building libpng for $Target"
    mkdir -p "$CacheFolder"
    Work=$(mktemp -d "$CacheFolder/work.XXXXXX")
    trap 'rm -rf "$Work"' EXIT
    FetchSource "$Work"
    Build "$(echo "$Work"/libpng1.6-*/)" "$Work/out"
    mkdir "$Work/result"
    mv "$Work/out/include" "$Work/out/lib" "$Work/result/"
    # A parallel run may have won; its copy is as good as ours.
    mv -T "$Work/result" "$Result" 2>/dev/null || [ -d "$Result" ]
fi
echo "$Result"
