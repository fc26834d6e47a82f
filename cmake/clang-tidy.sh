#!/bin/sh
# Runs clang-tidy over our sources with the compile commands of the build folder given. A source
# that passed is looked at again only when it, a header or the list of checks has changed.
set -eu
root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
build=$1
cd "$root"
stamps="$build/clang-tidy-passed"
mkdir -p "$stamps"

newest=$(git ls-files -co --exclude-standard -- .clang-tidy '*.h' '*.def' | xargs ls -t | head -n 1)

check_one() {
    stamp="$stamps/$(echo "$1" | tr / _)"
    if [ "$stamp" -nt "$1" ] && [ "$stamp" -nt "$newest" ]; then
        return 0
    fi
    echo "clang-tidy $1"
    clang-tidy --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Wno-gnu-zero-variadic-macro-arguments "$1" 2>/dev/null &&
        touch "$stamp"
}

if [ "${2:-}" = --one ]; then
    check_one "$3"
    exit
fi
git ls-files -co --exclude-standard -- 'records/*.cpp' 'editor/*.cpp' 'view/*.cpp' 'dialogs/*.cpp' \
    'plugin/*.cpp' 'standalone/*.cpp' |
    xargs -P "$(nproc)" -n 1 "$0" "$build" --one
