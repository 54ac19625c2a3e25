#!/usr/bin/env bash
# Replaces the pictures in docs/pictures: both dialogs in light and dark colours, right to left, at twice the size, in
# German, and empty. Each is a step of the scripted walk.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages $(build_packages 6)
cmake --preset qt6-dev >/dev/null
cmake --build --preset qt6-dev --target zudunmaf_walk
walk=build/qt6-dev/demo/walk/zudunmaf-walk
steps=build/pictures
mkdir -p docs/pictures

picture() { # picture NAME DIALOG STEP [OPTION...]: keeps the picture of one step
    local name=$1 dialog=$2 step=$3
    shift 3
    rm -rf "$steps"
    # With an initial filter text, the walk fails, but only after the step that is wanted.
    env -u DISPLAY -u WAYLAND_DISPLAY "$walk" "$dialog" --pictures "$steps" "$@" >/dev/null 2>&1 || true
    cp "$steps"/*-"$step".png "docs/pictures/$name.png"
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
