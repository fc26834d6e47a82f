#!/bin/sh
# Takes the texts of the sources over into the catalogues; what is new then waits for a translator.
set -eu
root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
cd "$root"
/usr/lib/qt5/bin/lupdate -silent -locations none -no-obsolete \
    editor view plugin records standalone/lcommon standalone/player standalone/workbench \
    -ts translations/lctrlsex_zh_CN.ts -target-language zh_CN
