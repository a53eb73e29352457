#!/usr/bin/env bash
# Checks that all sources are formatted as .clang-format says (clang-format 14) and that clang-tidy finds nothing of what
# .clang-tidy asks for in library and samples.
#
#   tools/check-style.sh              both checks
#   tools/check-style.sh --format     only the formatting, in seconds
#   tools/check-style.sh --fix        formats what is not
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# The version counts: another one breaks lines in other places.
find_formatter() {
    formatter=$(command -v clang-format-14 || command -v clang-format) || die "please run tools/setup.sh --checks"
    [[ $("$formatter" --version) == *' 14.'* ]] || die "clang-format 14 is wanted, not $("$formatter" --version)"
}

tracked_sources() {
    git -C "$quor_root" ls-files -z '*.h' '*.cpp'
}

check_format() {
    local wrong
    wrong=$(cd "$quor_root" && tracked_sources | xargs -0 "$formatter" --dry-run 2>&1 | sed -n 's/:.*warning.*//p' | sort -u)
    [[ -z $wrong ]] || die "not formatted (tools/check-style.sh --fix does it): ${wrong//$'\n'/ }"
    say "$(tracked_sources | tr -cd '\0' | wc -c) files are formatted"
}

main() {
    find_formatter
    case ${1:-} in
        --fix) cd "$quor_root" && tracked_sources | xargs -0 "$formatter" -i && exit ;;
        --format) check_format && exit ;;
    esac
    refuse_options "$@"
    [[ $# == 0 ]] || die "takes no arguments"
    check_format
    command -v clang-tidy >/dev/null || die "please run tools/setup.sh --checks"
    PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 "$quor_root/tools/style/tidy.py" "$quor_root" "$quor_build/style"
}

main "$@"
