#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   format.sh ROOT
#
# Every source is as clang-format 14 leaves it; other versions break lines elsewhere, so they are not asked.
set -euo pipefail
cd "$1"
formatter=$(command -v clang-format-14 || command -v clang-format || true)
[ -n "$formatter" ] || { echo "clang-format is not installed"; exit 77; }
"$formatter" --version | grep -q 'version 14\.' || { echo "clang-format is not version 14"; exit 77; }
find src tests bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 "$formatter" --dry-run --Werror
