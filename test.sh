#!/bin/sh
# Installs what is missing, then: format, build with warnings as errors, tests, the same tests
# under the address and undefined-behaviour sanitizers, clang-tidy. Stops at the first fault.
#   ./test.sh          everything
#   ./test.sh quick    format, build and tests only
set -eu
root=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
cd "$root"

cmake/install-dependencies.sh g++ cmake ninja-build ccache pkg-config git qtbase5-dev qttools5-dev-tools qttranslations5-l10n \
    libfontconfig1-dev libcsv-dev libqt5sql5-sqlite libqt5sql5-psql fonts-dejavu-core fonts-liberation2 fonts-wqy-zenhei libbenchmark-dev \
    clang-format clang-tidy strace postgresql xvfb openbox xdotool imagemagick

step() { printf '\n== %s\n' "$1"; }

step "Format"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror

build_preset() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
}

step "Build and test"
build_preset dev
ctest --preset dev -j2

if [ "${1:-}" != quick ]; then
    step "Tests under the sanitizers"
    build_preset dev-asan
    ctest --preset dev-asan -j2

    step "clang-tidy"
    cmake/clang-tidy.sh build/dev
fi
