#!/usr/bin/env bash
# Builds the demo and opens the attribute filter dialog, then "Assign Attributes", over the demo's built-in dictionary.
# Without a display, a scripted walk works both dialogs by key and mouse, prints their results and saves a picture of
# each step in build/walk. Installs what is missing.
#   scripts/demo.sh              both dialogs
#   scripts/demo.sh filter ...   one dialog, with options of zudunmaf-demo (see --help)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

major=${ZUDUNMAF_QT_MAJOR:-6}
# shellcheck disable=SC2046
install_packages $(build_packages "$major")
echo "Building in build/qt$major-dev" >&2
cmake --preset "qt$major-dev" >/dev/null
cmake --build --preset "qt$major-dev" --target zudunmaf_demo zudunmaf_walk zudunmaf_catalogues >&2
demo="build/qt$major-dev/demo/zudunmaf-demo"
walk="build/qt$major-dev/demo/walk/zudunmaf-walk"
if [ $# -gt 0 ]; then
    exec "$demo" "$@"
fi
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    # The exit status is 1 after Cancel.
    "$demo" filter || [ $? -eq 1 ]
    "$demo" assign || [ $? -eq 1 ]
else
    for dialog in filter assign; do
        echo "== zudunmaf-walk $dialog"
        "$walk" "$dialog" --pictures "build/walk/$dialog"
    done
    echo "Pictures: build/walk"
fi
