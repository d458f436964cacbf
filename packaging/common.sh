# Shared by ./run, ./test and ./bench: installs what is missing and builds a preset.
# Sourced with the repository as the current folder.

say() { printf '== %s\n' "$*"; }
fail() { printf '!! %s\n' "$*" >&2; exit 1; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

is_installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

install_missing_packages() {
  command -v dpkg-query >/dev/null || fail "This needs Debian 12 or a system made from it (dpkg is missing)."
  local missing=() package
  while read -r package; do
    is_installed "$package" || missing+=("$package")
  done < <(grep -v '^#' packaging/debian-packages.txt)
  [ ${#missing[@]} -eq 0 ] && return
  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
    fail "Missing packages: ${missing[*]}. Install them as root; sudo is not there."
  say "Installing: ${missing[*]}"
  as_root apt-get update -qq || fail "apt-get update failed: is the network there?"
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null ||
    fail "These packages could not be installed: ${missing[*]}"
}

# build_preset PRESET [TARGET...]: builds those targets, or everything.
build_preset() {
  local preset=$1
  shift
  say "Building ($preset)"
  cmake --preset "$preset" >"build-$preset.log" 2>&1 ||
    { cat "build-$preset.log"; fail "cmake --preset $preset failed (above)."; }
  mkdir -p "build/$preset" && mv "build-$preset.log" "build/$preset/configure.log"
  cmake --build --preset "$preset" ${1:+--target "$@"} || fail "The build ($preset) failed (above)."
  [ "$preset" != release ] || packaging/hardening.py "build/$preset/bin/quartela" --fortify ||
    fail "The program was built without its protections (above)."
}
