#!/bin/sh
# Takes the texts of the sources over into the catalogues; what is new then waits for a translator.
# With a folder given, writes copies there and leaves the catalogues alone.
set -eu
root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
folder=${1:-$root/translations}
mkdir -p "$folder"
folder=$(CDPATH= cd -- "$folder" && pwd)
cd "$root"

update() {
    catalogue=lctrlsex_$1.ts
    if [ "$folder" != "$root/translations" ]; then
        cp "translations/$catalogue" "$folder"
    fi
    shift
    /usr/lib/qt5/bin/lupdate -silent -locations none -no-obsolete "$@" \
        dialogs editor view plugin records standalone/lcommon standalone/player standalone/sources standalone/workbench \
        -ts "$folder/$catalogue"
}

update zh_CN -target-language zh_CN
# The sources are English; only their plural forms have to be spelt out.
update en -target-language en -pluralonly
