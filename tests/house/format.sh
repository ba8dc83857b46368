#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   format.sh ROOT
#
# Checks that clang-format 14 would change no source. Other versions break lines differently and are not used.
set -euo pipefail
. "$(dirname "$0")/../skip.sh"
cd "$1"
formatter=$(command -v clang-format-14 || command -v clang-format || true)
[ -n "$formatter" ] || skip "clang-format is not installed"
"$formatter" --version | grep -q 'version 14\.' || skip "clang-format is not version 14"
find src tests bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 "$formatter" --dry-run --Werror
