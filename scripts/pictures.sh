#!/usr/bin/env bash
# Makes the pictures of docs/pictures anew: both dialogs in light, dark, right to left, twice the size, German, and
# empty. Each is a step of the demo's walk.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages $(build_packages 6)
cmake --preset qt6-dev >/dev/null
cmake --build --preset qt6-dev --target zudunmaf_demo
demo=build/qt6-dev/demo/zudunmaf-demo
walk=build/pictures
mkdir -p docs/pictures

picture() { # picture NAME DIALOG STEP [OPTION...]: keeps the picture of one step
    local name=$1 dialog=$2 step=$3
    shift 3
    rm -rf "$walk"
    # A walk that starts from another filter text ends early, behind the picture that is wanted.
    env -u DISPLAY -u WAYLAND_DISPLAY "$demo" "$dialog" --walk "$walk" "$@" >/dev/null 2>&1 || true
    cp "$walk"/*-"$step".png "docs/pictures/$name.png"
}

for dialog in filter assign; do
    step=range-editor
    [ $dialog = assign ] && step=float-editor
    picture "$dialog-light" $dialog $step
    picture "$dialog-dark" $dialog $step --dark
    picture "$dialog-right-to-left" $dialog $step --language ar
    picture "$dialog-german" $dialog $step --language de
    QT_SCALE_FACTOR=2 picture "$dialog-twice-the-size" $dialog $step
    picture "$dialog-empty" $dialog open --filter "no such name"
done
