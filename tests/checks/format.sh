#!/usr/bin/env bash
# Every source file is as clang-format leaves it.
set -euo pipefail
cd "$(dirname "$0")/../.."
find console app settings engine platform ui base tests tools -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run -Werror
