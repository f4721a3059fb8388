#!/usr/bin/env bash
# Installs the build tree into a fresh prefix outside the system folders, then
# builds and runs two hosts against it: one through CMake packages, one through
# pkg-config. Fails if the install misses a header, a library, a theme file or
# a dependency.
#   check.sh BUILD_DIR WORK_DIR
set -euo pipefail
build=$1
work=$2
here=$(cd "$(dirname "$0")" && pwd)
rm -rf "$work"
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >/dev/null

export QT_QPA_PLATFORM=offscreen
cmake -S "$here" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/build" >/dev/null
# No LD_LIBRARY_PATH: the installed libraries must find each other themselves.
"$work/build/themed_host"
"$work/build/units_host"

libdir=$(dirname "$(find "$prefix" -name kvuicore.pc -print -quit)")
export PKG_CONFIG_PATH=$libdir
flags=$(pkg-config --cflags --libs kvuicore)
libpath=$(pkg-config --variable=libdir kvuicore)
# Qt's own packages ask for position-independent code.
c++ -std=c++17 -fPIC "$here/themed_host.cpp" -o "$work/themed_host_pc" $flags -Wl,-rpath,"$libpath"
"$work/themed_host_pc"
echo "installed package works from $prefix"
