#!/usr/bin/env bash
# docs/settings.md is what the catalogue says. To bring it up to date:
#   build/native/tools/settings_reference >docs/settings.md
set -euo pipefail
cd "$(dirname "$0")/../.."
diff <(build/native/tools/settings_reference) docs/settings.md
