# SPDX-License-Identifier: MIT
#
# Sourced by the tests that take a program which a machine may lack. On a developer's machine such a test is skipped, exit code
# 77; where CI is "true" it fails, so that nothing stays unchecked there without anybody's noticing.

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
