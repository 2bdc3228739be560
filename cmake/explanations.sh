#!/usr/bin/env bash
# Writes the unit $2 that has the explanations of the language file $1, compressed (settings/explanations.h).
set -euo pipefail
{
    echo '#include "settings/explanations.h"'
    echo 'static constexpr std::uint8_t kBytes[] = {'
    sed -n '/^\[/p; /\.Hint=/p' "$1" | gzip -9n | od -An -v -tu1 | sed -E 's/ *([0-9]+)/\1,/g'
    echo '};'
    echo 'constinit const std::span<const std::uint8_t> kPackedExplanations = kBytes;'
} >"$2"
