#!/usr/bin/env bash
# Builds the window and the command line, for both kinds of Windows, on Debian 12, installing what the machine lacks. Leaves
# dist/win32 and dist/win64; each runs as it stands when copied elsewhere.
#   scripts/build.sh [win32|win64]...
set -euo pipefail
. "$(dirname "$0")/lib.sh"

RequirePackages "${BuildPackages[@]}"

[ $# -gt 0 ] || set -- win32 win64
for Target in "$@"; do
    BuildPreset "$Target" --target Quilltune qtune
    Folder="$Root/dist/$Target"
    rm -rf "$Folder"
    mkdir -p "$Folder/Toolbox_Language"
    cp "$Root/build/$Target"/{Quilltune,qtune}.exe "$Folder/"
    cp "$Root"/languages/*.lng "$Folder/Toolbox_Language/"
    cp -r "$Root/completions" "$Folder/"
    Say "$(cd "$Root" && ls -l "dist/$Target"/*.exe)"
done
