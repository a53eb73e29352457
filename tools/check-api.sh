#!/usr/bin/env bash
# Checks that the sources are what Visual Studio with the real MFC accepts, as far as that shows without them:
# clang compiles everything as the second compiler, every public header compiles alone, the framework offers nothing
# but what the MFC reference documents (tools/api/*.tsv), and library and samples use nothing else.
#
#   tools/check-api.sh                all checks
#   tools/check-api.sh --members-only only what is declared and used, without compiling with clang
#   tools/check-api.sh --write-docs   writes docs/FRAMEWORK.md
#   tools/check-api.sh --self-test    plants one violation of each kind in a copy and shows that it is found
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# The Python of the system, because that is the one for which the distribution has the binding of clang.
python=/usr/bin/python3

check_tools() {
    if ! command -v clang++ >/dev/null || ! "$python" -c 'import clang.cindex' 2>/dev/null; then
        die "please run tools/setup.sh --checks, which installs clang and its Python binding"
    fi
}

main() {
    check_tools
    export PYTHONDONTWRITEBYTECODE=1
    if [[ ${1:-} == --self-test ]]; then
        exec "$python" "$quor_root/tools/api/selftest.py"
    fi
    cd "$quor_root"
    exec "$python" "$quor_root/tools/api/check.py" "$@"
}

main "$@"
