#!/bin/sh
# Builds the stand-alone host and runs it on the demo programme.
#   ./run.sh                     render the demo programme and print the page files
#   ./run.sh render FILE ...     any subcommand of pagerender, with its options
#   ./run.sh --help              what the subcommands are
set -eu
root=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
build="$root/build/release"

"$root/cmake/install-dependencies.sh" g++ cmake ninja-build ccache pkg-config qtbase5-dev qttools5-dev-tools qttranslations5-l10n \
    libfontconfig1-dev fonts-dejavu-core fonts-liberation2 fonts-wqy-zenhei

log="$build.log"
mkdir -p "$build"
[ -x "$build/bin/pagerender" ] || echo "Building for the first time; this takes a minute or two." >&2
if ! { [ -f "$build/build.ninja" ] || (cd "$root" && cmake --preset release); } >"$log" 2>&1 ||
   ! cmake --build "$build" >>"$log" 2>&1; then
    cat "$log" >&2
    echo "The build failed; the messages above are in $log" >&2
    exit 1
fi

if [ $# -gt 0 ]; then
    exec "$build/bin/pagerender" "$@"
fi
exec "$build/bin/pagerender" render "$root/examples/demo.programme.json" -o "$root/out/demo"
