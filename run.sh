#!/bin/sh
# Builds the stand-alone host and runs it on the demo programme.
#   ./run.sh                     with a display: open the workbench on the demo programme;
#                                without one: render it and print the page files
#   ./run.sh workbench FILE ...  the workbench with its options
#   ./run.sh render FILE ...     any subcommand of pagerender, with its options
#   ./run.sh --help              what the subcommands are
set -eu
root=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
build="$root/build/release"

"$root/cmake/install-dependencies.sh" g++ cmake ninja-build ccache pkg-config qtbase5-dev qttools5-dev-tools qttranslations5-l10n \
    libfontconfig1-dev libcsv-dev libqt5sql5-sqlite libqt5sql5-psql fonts-dejavu-core fonts-liberation2 fonts-wqy-zenhei

log="$build.log"
mkdir -p "$build"
[ -x "$build/bin/workbench" ] || echo "Building for the first time; this takes some minutes." >&2
if ! { [ -f "$build/build.ninja" ] || (cd "$root" && cmake --preset release); } >"$log" 2>&1 ||
   ! cmake --build "$build" >>"$log" 2>&1; then
    cat "$log" >&2
    echo "The build failed; the messages above are in $log" >&2
    exit 1
fi

demo="$root/examples/demo.programme.json"
# Weather and sensors of the demo; a while after the last one who could ask for them it is gone.
serve_demo_data() {
    if command -v python3 >/dev/null 2>&1; then
        "$root/examples/demo-server.py" --for "$1" >/dev/null 2>&1 &
        sleep 0.3
    fi
}
if [ "${1-}" = workbench ]; then
    shift
    exec "$build/bin/workbench" "$@"
elif [ $# -gt 0 ]; then
    exec "$build/bin/pagerender" "$@"
elif [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
    serve_demo_data 36000
    server=${!:-}
    trap 'kill "$server" 2>/dev/null || true' EXIT INT TERM
    "$build/bin/workbench" "$demo"
    exit
fi
serve_demo_data 60
exec "$build/bin/pagerender" render "$demo" -o "$root/out/demo"
