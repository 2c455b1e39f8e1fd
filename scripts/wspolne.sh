# Wspólne dla skryptów w tym katalogu; wczytywane poleceniem source.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

naglowek() { printf '\n== %s\n' "$*"; }

# zbuduj PRESET [opcje cmake... -- cele...]: konfiguruje i kompiluje.
zbuduj() {
  local preset=$1 opcje=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do opcje+=("$1"); shift; done
  [ $# -gt 0 ] && shift
  cmake --preset "$preset" "${opcje[@]}" > /dev/null
  cmake --build --preset "$preset" -j "$(nproc)" ${1:+--target "$@"}
}
