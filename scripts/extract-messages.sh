#!/usr/bin/env bash
# Updates the message catalogues in po/ from the message keys in the sources.
#
#   scripts/extract-messages.sh           writes po/zudunmaf.pot and merges it into every po/*.po
#   scripts/extract-messages.sh --check   changes nothing; fails if the template is out of date, or if a message is
#                                         untranslated, fuzzy or without one of its placeholders
set -euo pipefail

cd "$(dirname "$0")/.."
. scripts/packages.sh
install_packages gettext
template=po/zudunmaf.pot
sources="code/gdm/host/message_keys.h standins/tvx/tvx_texts.h"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

case "${1-}" in
'' | --check) ;;
*)
    echo "usage: $0 [--check]" >&2
    exit 2
    ;;
esac

# The msgid is the whole key: "@$@#module@$@#section@$@#number@$@#text". The template has no date, so that it changes only
# with the messages. Texts with placeholders are marked as qt-format, for msgfmt to compare.
extract() {
    present=
    for source in $sources; do
        [ -f "$source" ] && present="$present $source"
    done
    # shellcheck disable=SC2086
    xgettext --extract-all --qt --language=C++ --from-code=UTF-8 --add-location=file \
        --package-name=zudunmaf --output="$work/all.pot" $present
    sed -i -e '1,/^$/{/^#/d;/^"POT-Creation-Date:/d;s/charset=CHARSET/charset=UTF-8/;}' "$work/all.pot"
    msggrep --msgid --regexp='^@\$@#' --output-file="$1" "$work/all.pot"
    grep -q '^msgid "@' "$1" # fail if no message was found
}

check() {
    status=0
    if ! diff -u "$template" "$work/zudunmaf.pot" >&2; then
        echo "$template is out of date: run scripts/extract-messages.sh" >&2
        status=1
    fi
    for catalogue in po/*.po; do
        # msgcmp requires each message of the template to be translated and not fuzzy.
        msgcmp "$catalogue" "$work/zudunmaf.pot" || status=1
        msgfmt --check --output-file=/dev/null "$catalogue" || status=1
    done
    return $status
}

extract "$work/zudunmaf.pot"
if [ "${1-}" = --check ]; then
    check
else
    cp "$work/zudunmaf.pot" "$template"
    for catalogue in po/*.po; do
        msgmerge --quiet --update --backup=none --no-fuzzy-matching --add-location=file "$catalogue" "$template"
    done
fi
