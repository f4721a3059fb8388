#!/usr/bin/env bash
# Compiles every source of the two libraries for 64-bit Windows with the MinGW
# cross compiler, syntax only: the Windows code paths (*_win.cpp, Q_OS_WIN and
# _WIN32 branches) must at least compile, though the Windows build itself is
# made on Windows. Qt's own headers serve for both platforms; the export
# headers are rewritten for a DLL build.
#   wincheck.sh BUILD_DIR [JOBS]
set -euo pipefail
build=$(cd "$1" && pwd)
jobs=${2:-2}
root=$(cd "$(dirname "$0")/../.." && pwd)
cxx=${KVUICORE_WINCHECK_CXX:-x86_64-w64-mingw32-g++-posix}
command -v "$cxx" >/dev/null || { echo "wincheck: $cxx not found" >&2; exit 1; }

qt=$(qmake6 -query QT_INSTALL_HEADERS 2>/dev/null || echo /usr/include/x86_64-linux-gnu/qt6)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Export headers as generate_export_header writes them for a Windows DLL.
for lib in KvUICore KvCoreUnits; do
  mkdir -p "$work/generated/$lib"
  sed -e 's/__attribute__((visibility("default")))/__declspec(dllexport)/' \
      -e 's/__attribute__((visibility("hidden")))//' \
      -e 's/__attribute__ ((__deprecated__))/__declspec(deprecated)/' \
      "$build/generated/$lib/${lib}Export.h" > "$work/generated/$lib/${lib}Export.h"
done
for f in "$build"/generated/KvUICore/*.h "$build"/generated/KvCoreUnits/*.h; do
  [ -e "$work/generated/$(basename "$(dirname "$f")")/$(basename "$f")" ] || cp "$f" "$work/generated/$(basename "$(dirname "$f")")/"
done

flags=(-std=c++17 -fsyntax-only -D_WIN32_WINNT=0x0A00 -DUNICODE -D_UNICODE -DNOMINMAX
       -DKvUICore_EXPORTS -DKvCoreUnits_EXPORTS -DQT_NO_KEYWORDS_DUMMY
       -Wall -Wextra -Werror -Wno-attributes
       -I "$work/generated" -I "$build/include" -I "$build/generated"
       -iquote "$build/src/KvUICore_autogen/include" -iquote "$build/src/KvCoreUnits_autogen/include")
for m in QtCore QtGui QtWidgets QtXml QtSvg; do flags+=(-isystem "$qt/$m"); done
flags+=(-isystem "$qt")
[ -n "${KVUICORE_WINCHECK_EXTRA:-}" ] && flags+=($KVUICORE_WINCHECK_EXTRA)

cd "$root/src"
# Every library source except the ones that build only on Linux.
find . -name '*.cpp' ! -name '*_x11.cpp' ! -name '*_unix.cpp' | sort > "$work/sources"
count=$(wc -l < "$work/sources")
export cxx work
printf '%s\0' "${flags[@]}" > "$work/flags"
check_one() {
  mapfile -d '' flags < "$work/flags"
  if ! out=$("$cxx" "${flags[@]}" "$1" 2>&1); then
    printf '%s\n%s\n' "FAILED $1" "$out" > "$work/fail.$(echo "$1" | tr '/.' '__')"
  fi
}
export -f check_one
xargs -a "$work/sources" -P "$jobs" -I{} bash -c 'check_one "$@"' _ {}
if compgen -G "$work/fail.*" >/dev/null; then
  cat "$work"/fail.*
  echo "wincheck: $(ls "$work"/fail.* | wc -l) of $count sources do not compile for Windows" >&2
  exit 1
fi
echo "wincheck: all $count library sources compile for Windows"
