#!/usr/bin/env bash
# Runs a command inside the root that wine_root.sh has made, with the project and the folder $2 at their own paths.
#   scripts/in_wine_root.sh <root> <work folder> <command>...
# The mounts and every process of the command vanish with it. Needs root.
set -euo pipefail
WineRoot=$1
Work=$2
shift 2
Project=$(cd "$(dirname "$0")/.." && pwd)

export WineRoot Work Project
# The machine may itself be a root made by chroot, whose / is no mount point and so cannot be made private: the mounts
# are kept private one by one, and the first one, which others may see, is undone at the end.
exec unshare --mount --propagation unchanged --pid --fork --kill-child bash -ec '
    mount --make-rprivate / 2>/dev/null || true
    mount --bind "$WineRoot" "$WineRoot"
    trap "umount --lazy \"\$WineRoot\"" EXIT
    mount --make-private "$WineRoot"
    mount -t tmpfs tmpfs "$WineRoot/tmp"
    for Folder in "$Project" "$Work"; do
        mkdir -p "$WineRoot$Folder"
        mount --bind "$Folder" "$WineRoot$Folder"
    done
    mount --rbind /dev "$WineRoot/dev"
    mount --make-rprivate "$WineRoot/dev"
    mount -t proc proc "$WineRoot/proc"
    chroot "$WineRoot" "$@"' bash "$@"
