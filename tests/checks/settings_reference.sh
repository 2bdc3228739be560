#!/usr/bin/env bash
# docs/settings.md is what the catalogue says.
set -euo pipefail
cd "$(dirname "$0")/../.."
diff <(build/native/tools/settings_reference) docs/settings.md || {
    echo 'docs/settings.md is out of date: build/native/tools/settings_reference >docs/settings.md' >&2
    exit 1
}
