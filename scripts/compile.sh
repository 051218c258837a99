#!/bin/sh
# Starts a compiler or linker with the names of files as seen from the build folder, in which CMake starts it. What it
# writes down of its command line into the debug information is then the same for every checkout.
#
#   scripts/compile.sh CHECKOUT COMMAND ARGUMENT..
#
# CMake's files that include several sources at a time name them in full; a copy of theirs does not.
top=$1
shift
build=$(pwd -P)
up=$(printf '%s' "${build#"$top"/}/" | sed 's#[^/]*/#../#g')
line=
for argument; do
    shift
    case $argument in
    "$build"/*) argument=${argument#"$build"/} ;;
    "$top"/*) argument=$up${argument#"$top"/} ;;
    -I"$build"/*) argument=-I${argument#-I"$build"/} ;;
    -I"$top"/*) argument=-I$up${argument#-I"$top"/} ;;
    esac
    case $argument in
    */Unity/unity_*.cxx | */Unity/unity_*.c)
        copy=${argument%/*}/relative_${argument##*/}
        sed "s#\"$top/#\"#" "$argument" >"$copy.$$" && mv "$copy.$$" "$copy" || exit
        argument=$copy
        ;;
    esac
    set -- "$@" "$argument"
    case $argument in
    CCACHE_*) ;;
    *) line="$line $argument" ;;
    esac
done
# Two command lines may differ in what changes nothing but themselves: the cache is to tell them apart. What it kept
# when it looked at preprocessed sources, without their remarks, it would still give: hence the word before.
CCACHE_NAMESPACE=files-$(printf %s "$line" | cksum)
export CCACHE_NAMESPACE
# It is for the programs of this machine.
unset LIBRARY_PATH
exec "$@"
