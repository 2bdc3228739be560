#!/usr/bin/env bash
# Renders the program's pictures from their SVG sources: the category icons, the pictures on pages, the loading
# indicator's frames, the program icon and the resource list. The results are committed, so only a change of a picture needs a run:
#   scripts/render_images.sh
#
# To add a category icon: draw resources/images/svg/<name>.svg in a square of 32 units, with outlines two units wide on
# odd coordinates (so that they fall on whole pixels at 16), run this script and name the icon in the category's table.
# Where a drawing does not survive 16 pixels, a simpler <name>_16.svg beside it takes its place at that size.
# To add a picture that is no icon: draw resources/images/svg/pages/<name>.svg, 100 units high, run this script and
# name the picture with its width and height in its page's design.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

Images="$Root/resources/images"
Sources="$Images/svg"
CategorySizes=(16 20 24 32)  # 96, 120, 144 and 192 DPI; 32 at 96 DPI in the header of a page, too
HeaderSize=48                # at 144 DPI in the header of a page; scaled down for 120 DPI
LoadingSizes=(32 64)         # 96 and 192 DPI; scaled down for those between
PageHeights=(100 200)        # 96 and 192 DPI; scaled down for those between
LoadingDots=7                # also the number of frames

Missing=()
command -v rsvg-convert >/dev/null || Missing+=(librsvg2-bin)
command -v convert >/dev/null || Missing+=(imagemagick)
command -v pngquant >/dev/null || Missing+=(pngquant)
command -v zopflipng >/dev/null || Missing+=(zopfli)
[ ${#Missing[@]} = 0 ] || Die "needs other tools: apt-get install ${Missing[*]}"

Work=$(mktemp -d)
trap 'rm -rf "$Work"' EXIT

# Renders the SVG file $1, $2 pixels high, into the PNG file $3: 8-bit RGBA, nothing hidden under transparent pixels, no
# chunk that does not carry pixels.
Render() {
    rsvg-convert --height "$2" "$1" |
        convert png:- -background none -alpha background -strip -define png:exclude-chunks=all \
            "PNG32:$3"
}

# Renders like Render, but with a palette of few colours: less than half as large, and hardly another picture.
RenderSmall() {
    Render "$1" "$2" "$3"
    pngquant --strip --speed 1 --nofs --force --output "$3" 64 "$3"
}

# Prints the source of the icon $1 for $2 pixels.
SourceFor() {
    local small="$Sources/$1_$2.svg"
    if [ -f "$small" ]; then echo "$small"; else echo "$Sources/$1.svg"; fi
}

RenderCategories() {
    local file name size
    for file in "$Sources"/*.svg; do
        name=$(basename "$file" .svg)
        case $name in quilltune* | *_[0-9]*) continue ;; esac
        for size in "${CategorySizes[@]}"; do
            Render "$(SourceFor "$name" "$size")" "$size" "$Work/${name}_$size.png"
        done
        RenderSmall "$file" "$HeaderSize" "$Work/${name}_$HeaderSize.png"
    done
}

RenderPages() {
    local file height
    for file in "$Sources"/pages/*.svg; do
        for height in "${PageHeights[@]}"; do
            Render "$file" "$height" "$Work/$(basename "$file" .svg)_$height.png"
        done
    done
}

# Prints the loading indicator's frame $1: a ring of dots, the frame's own in full colour and the two behind it fading.
LoadingFrame() {
    local dot behind strength
    echo '<svg xmlns="http://www.w3.org/2000/svg" viewBox="-32 -32 64 64"><g fill="#316AC5">'
    for ((dot = 0; dot < LoadingDots; ++dot)); do
        behind=$((($1 - dot + LoadingDots) % LoadingDots))
        case $behind in
            0) strength='r="7.5"' ;;
            1) strength='r="6.5" opacity=".6"' ;;
            2) strength='r="6" opacity=".42"' ;;
            *) strength='r="5.5" opacity=".28"' ;;
        esac
        echo "<circle cy=\"-22\" $strength transform=\"rotate($((dot * 36000 / LoadingDots))e-2)\"/>"
    done
    echo '</g></svg>'
}

RenderLoading() {
    local frame size
    for ((frame = 0; frame < LoadingDots; ++frame)); do
        LoadingFrame "$frame" >"$Work/loading.svg"
        for size in "${LoadingSizes[@]}"; do
            Render "$Work/loading.svg" "$size" "$Work/loading_${frame}_$size.png"
        done
    done
}

# Writes numbers as little-endian binary: each argument is bytes:value.
Little() {
    local field value byte
    for field in "$@"; do
        value=${field#*:}
        for ((byte = 0; byte < ${field%%:*}; ++byte)); do
            # shellcheck disable=SC2059  # the format is the byte
            printf "\\x$(printf %02x $(((value >> (8 * byte)) & 255)))"
        done
    done
}

# Writes the one-bit mask of the picture $1 of $2 pixels, bottom row first, rows padded to four bytes: set where
# the picture is transparent.
Mask() {
    local size=$2 padded=$((($2 + 31) / 32 * 32))
    convert "$1" -alpha extract -threshold 0 -flip -background black -extent "${padded}x$size" pbm:- |
        tail -c $((padded / 8 * size))
}

# Writes the picture $1 of $2 pixels as an icon image of 32 bits a pixel.
IconImage32() {
    Little 4:40 4:"$2" 4:$(($2 * 2)) 2:1 2:32 4:0 4:0 4:0 4:0 4:0 4:0
    convert "$1" -flip -depth 8 bgra:-
    Mask "$1" "$2"
}

# Writes the picture $1 of $2 pixels as an icon image of 8 bits a pixel, with its full palette of 256.
IconImage8() {
    Little 4:40 4:"$2" 4:$(($2 * 2)) 2:1 2:8 4:0 4:0 4:0 4:0 4:0 4:0
    # A bitmap file holds the same after its 54 bytes of headers, but with no more of a palette than it needs.
    convert "$1" -background black -alpha remove -alpha off -dither None -colors 256 -type Palette \
        -compress None "bmp3:$Work/palette.bmp"
    [ "$(Number "$Work/palette.bmp" 28 2)" = 8 ] || Die "the palette image is not of 8 bits a pixel"
    local pixels
    pixels=$(Number "$Work/palette.bmp" 10 4)
    head -c "$pixels" "$Work/palette.bmp" | tail -c +55
    head -c $((54 + 1024 - pixels)) /dev/zero
    tail -c +$((pixels + 1)) "$Work/palette.bmp"
    Mask "$1" "$2"
}

# Writes the picture $1 as an icon image that is a PNG file. Only a few colours, so that it is small, but in the one form
# that Windows Vista reads.
IconImagePng() {
    pngquant --strip --speed 1 --nofs --force --output "$Work/few.png" 128 "$1"
    convert "$Work/few.png" -define png:exclude-chunks=all "PNG32:$Work/few32.png"
    zopflipng -y "$Work/few32.png" "$Work/few.png" >/dev/null
    cat "$Work/few.png"
}

# Prints the little-endian number of $3 bytes at offset $2 of the file $1.
Number() {
    od -A n --endian=little -t "u$3" -j "$2" -N "$3" "$1" | tr -d ' '
}

# Windows 2000 paints no partial transparency: a pixel is drawn whole unless its mask bit is set, and where that is set
# the colour must be black. So the faintest pixels of an edge are dropped and the others count as part of the picture;
# the 8-bit images keep only what is more opaque than not. Windows before Vista passes over the one of 256 pixels, whose
# size is written as 0.
BuildIcon() {
    local entry size bits edge picture offset files=()
    for entry in 16:8 32:8 16:32 24:32 32:32 48:32; do
        size=${entry%%:*} bits=${entry#*:} picture="$Work/icon.png"
        Render "$(SourceFor quilltune "$size")" "$size" "$Work/full.png"
        if [ "$bits" = 32 ]; then edge=(-black-threshold 15%); else edge=(-threshold 50%); fi
        convert "$Work/full.png" -channel A "${edge[@]}" +channel -background black -alpha background "PNG32:$picture"
        "IconImage$bits" "$picture" "$size" >"$Work/icon_${size}_$bits"
        files+=("$Work/icon_${size}_$bits")
    done
    Render "$(SourceFor quilltune 256)" 256 "$Work/full.png"
    IconImagePng "$Work/full.png" >"$Work/icon_256_32"
    files+=("$Work/icon_256_32")
    offset=$((6 + 16 * ${#files[@]}))
    {
        Little 2:0 2:1 2:${#files[@]}
        for entry in "${files[@]}"; do
            size=${entry##*icon_} bits=${size#*_} size=${size%_*}
            Little 1:$((size % 256)) 1:$((size % 256)) 1:0 1:0 2:1 2:"$bits" 4:"$(stat -c %s "$entry")" 4:"$offset"
            offset=$((offset + $(stat -c %s "$entry")))
        done
        cat "${files[@]}"
    } >"$Work/quilltune.ico"
}

WriteResourceList() {
    local file
    echo '// The PNG images of the interface; written by scripts/render_images.sh.'
    for file in "$Work"/*_[0-9][0-9]*.png; do
        file=$(basename "$file" .png)
        echo "$file PNG \"images/$file.png\""
    done
}

export LC_ALL=C
RenderCategories
RenderPages
RenderLoading
BuildIcon
WriteResourceList >"$Work/images.rc"
for file in "$Work"/*_[0-9][0-9]*.png; do zopflipng -y "$file" "$file" >/dev/null; done

# Only a complete run replaces anything, and pictures without a source go.
rm -f "$Images"/*.png
cp "$Work"/*_[0-9][0-9]*.png "$Work/images.rc" "$Images/"
cp "$Work/quilltune.ico" "$Root/resources/"
Say "$(cat "$Images"/*.png | wc -c) bytes of PNG, $(stat -c %s "$Root/resources/quilltune.ico") bytes of icon"
