#!/usr/bin/env bash
# Builds the demo host and runs its main job: the attribute filter dialog, then "Assign Attributes", over the
# dictionary that it carries. With a display both dialogs open; without one, a scripted walk works them by key and
# mouse, prints their lines and saves a picture of each step in build/walk. Installs what is missing.
#   scripts/demo.sh              both dialogs
#   scripts/demo.sh filter ...   one of them, with further options of the demo (see --help)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

major=${ZUDUNMAF_QT_MAJOR:-6}
# shellcheck disable=SC2046
install_packages $(build_packages "$major")
echo "Building in build/qt$major-dev" >&2
cmake --preset "qt$major-dev" >/dev/null
cmake --build --preset "qt$major-dev" --target zudunmaf_demo zudunmaf_catalogues >&2
demo="build/qt$major-dev/demo/zudunmaf-demo"
if [ $# -gt 0 ]; then
    exec "$demo" "$@"
fi
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    # Cancel ends a dialog with 1, which is no failure of the demo.
    "$demo" filter || [ $? -eq 1 ]
    "$demo" assign || [ $? -eq 1 ]
else
    for job in filter assign; do
        mkdir -p "build/walk/$job"
        echo "== zudunmaf-demo $job"
        "$demo" "$job" --walk "build/walk/$job"
    done
    echo "Pictures: build/walk"
fi
