#!/bin/sh
# binding.sh needed|relocations|symbols LIBRARY HOST_HEADERS: prints what is wrong and fails.
# binding.sh missing LIBRARY HOST_HEADERS BASE INCOMPLETE_HOST PROBE...
set -eu
export LC_ALL=C
library=$2

declared_services() { # HOST_HEADERS
    grep -ohE '(gen|dml)__[a-z0-9_]+\(' "$1"/*.h | tr -d '(' | sort -u
}

# The functions of the base dialog's declaration, but for those of Q_OBJECT, that a library defines.
base_functions() { # LIBRARY
    "$NM" -DC --defined-only "$1" | sed -nE 's/^[0-9a-f]+ [TW] (Tvx[A-Z].*)/\1/p' |
        grep -vE '::Private|::(metaObject|qt_meta(cast|call))\(' | sort -u
}

case $1 in
needed)
    # Neither services nor dictionary are linked, and nothing asks for binding at load. No symbol version is asked of the
    # base dialog library: a host's own has none.
    wrong=$("$READELF" -dVW "$library" |
        grep -E 'NEEDED.*(_gen|_dml)|BIND_NOW|FLAGS.*NOW|Version:.*File: libzudunmaf' || true)
    ;;
relocations)
    # Exactly the declared services are left open, each as a jump slot of the procedure linkage table.
    declared=$(declared_services "$3" | sed 's/^/JUMP_SLOT /')
    # Names of relocations start with the architecture, such as R_X86_64_JUMP_SLOT, and can be cut at their end.
    found=$("$READELF" -rW "$library" | grep -E '(gen|dml)__' | awk '{ print $3, $5 }' |
        sed -E 's/@.*//; s/^R_[A-Z0-9]+(_64)?_JUMP_SL[A-Z]*/JUMP_SLOT/' | sort -u)
    wrong=$(test "$declared" = "$found" || printf 'declared:\n%s\nfound:\n%s\n' "$declared" "$found")
    ;;
symbols)
    # What is visible of the library's own belongs to the exported classes, or is one of the exported functions.
    shown=$("$NM" -DC --defined-only "$library" | sed 's/@@ZUDUNMAF_QT[0-9]*$//' | grep 'Zudunmaf::')
    classes='AttributesFilterDialog|FeatureAttributesDialog|DmlAttrLWI|AttrFilterLWI|FeatureAttrLWI'
    functions='conditionOf|assignmentOf|matches|conditionsFromLines|missingHostFunctions'
    functions="$functions|(conditions|assignments)(To|From)Json|operator[!=]="
    wrong=$(printf '%s\n' "$shown" | grep -vE \
        "^[0-9a-f]+ [A-Za-z] ([a-z -]+ )?Zudunmaf::(($classes|ConditionMatcher)(::|\$)|($functions)\()" || true)
    for class in $(echo "$classes" | tr '|' ' '); do
        printf '%s\n' "$shown" | grep -q "vtable for Zudunmaf::$class\$" || wrong="$wrong no $class"
    done
    ;;
missing)
    # With the stand-in of the base, exactly the services are missing. The incomplete host takes the place of the stand-in and
    # lacks one service and functions of its base.
    headers=$3 base=$4 incomplete=$5
    shift 5
    found=$("$@" missing "$library" | sort)
    wrong=$(test "$found" = "$(declared_services "$headers")" || printf 'without services:\n%s\n' "$found")
    found=$(LD_LIBRARY_PATH=$(dirname "$incomplete") "$@" missing "$library" | sort)
    expected=$({ base_functions "$base" | grep -vxF "$(base_functions "$incomplete")"; echo gen__str_cmp_reg; } | sort)
    wrong=$wrong$(test "$found" = "$expected" || printf 'found:\n%s\nexpected:\n%s\n' "$found" "$expected")
    ;;
*)
    wrong="unknown question $1"
    ;;
esac

test -z "$wrong" || { echo "$wrong"; exit 1; }
