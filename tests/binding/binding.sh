#!/bin/sh
# binding.sh needed|relocations|symbols LIBRARY HOST_HEADERS: prints what is wrong and fails.
set -eu
export LC_ALL=C
library=$2

case $1 in
needed)
    # Neither services nor dictionary are linked, and nothing asks for binding at load.
    wrong=$("$READELF" -dW "$library" | grep -E 'NEEDED.*(_gen|_dml)|BIND_NOW|FLAGS.*NOW' || true)
    ;;
relocations)
    # Exactly the declared services are left open, each as a jump slot of the procedure linkage table.
    declared=$(grep -ohE '(gen|dml)__[a-z0-9_]+\(' "$3"/*.h | tr -d '(' | sort -u | sed 's/^/JUMP_SLOT /')
    # Names of relocations start with the architecture, such as R_X86_64_JUMP_SLOT, and can be cut at their end.
    found=$("$READELF" -rW "$library" | grep -E '(gen|dml)__' | awk '{ print $3, $5 }' |
        sed -E 's/@.*//; s/^R_[A-Z0-9]+(_64)?_JUMP_SL[A-Z]*/JUMP_SLOT/' | sort -u)
    wrong=$(test "$declared" = "$found" || printf 'declared:\n%s\nfound:\n%s\n' "$declared" "$found")
    ;;
symbols)
    # What is visible of the library's own belongs to the exported classes, or is one of the exported functions.
    shown=$("$NM" -DC --defined-only "$library" | grep 'Zudunmaf::')
    classes='AttributesFilterDialog|FeatureAttributesDialog|DmlAttrLWI|AttrFilterLWI|FeatureAttrLWI'
    functions='conditionOf|assignmentOf|matches|conditionsFromLines'
    functions="$functions|(conditions|assignments)(To|From)Json|operator[!=]="
    wrong=$(printf '%s\n' "$shown" | grep -vE \
        "^[0-9a-f]+ [A-Za-z] ([a-z -]+ )?Zudunmaf::(($classes|ConditionMatcher)(::|\$)|($functions)\()" || true)
    for class in $(echo "$classes" | tr '|' ' '); do
        printf '%s\n' "$shown" | grep -q "vtable for Zudunmaf::$class\$" || wrong="$wrong no $class"
    done
    ;;
*)
    wrong="unknown question $1"
    ;;
esac

test -z "$wrong" || { echo "$wrong"; exit 1; }
