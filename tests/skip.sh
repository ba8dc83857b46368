# SPDX-License-Identifier: MIT
#
# Sourced by tests that need a program which may be missing. On a developer's machine such a test is skipped with exit code 77;
# if CI is "true" it fails, so that no check is left out unnoticed.

skip() {
    echo "skipped: $*"
    [ "${CI:-}" != true ] || exit 1
    exit 77
}

need() {
    local program
    for program; do
        command -v "$program" >/dev/null || skip "$program is not installed"
    done
}
