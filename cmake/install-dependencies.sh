#!/bin/sh
# Installs the Debian packages that are missing of those named as arguments.
# Asks the network for nothing when all of them are there.
set -eu
missing=
for package in "$@"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing="$missing $package"
done
[ -z "$missing" ] && exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null 2>&1; then
        echo "Missing packages:$missing. Install them as root: apt-get install$missing" >&2
        exit 1
    fi
    as_root=sudo
fi
echo "Installing:$missing" >&2
export DEBIAN_FRONTEND=noninteractive
# shellcheck disable=SC2086
{
    $as_root apt-get update -qq &&
    $as_root apt-get install -y -qq --no-install-recommends $missing
} >/dev/null || {
    echo "apt-get could not install$missing; check the network and the package sources." >&2
    exit 1
}
