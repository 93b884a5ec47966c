# Helpers shared by scripts/test and scripts/demo.  Source it, don't run it.

# Debian packages the build, the tests and the demo need.
NOMENCLA_PACKAGES=(
  cmake g++ make
  qt6-base-dev qt6-base-dev-tools
  libqt6sql6-mysql libqt6sql6-sqlite
  mariadb-server mariadb-client
  galera-4 mariadb-backup socat iproute2
  libgl-dev
)

nomencla_log() { printf '==> %s\n' "$*" >&2; }

# Installs the packages of NOMENCLA_PACKAGES (plus any given as arguments)
# that dpkg does not report as installed.  apt-get update runs once, and only
# when something is missing.
nomencla_install_deps() {
  local pkg missing=()
  for pkg in "${NOMENCLA_PACKAGES[@]}" "$@"; do
    if ! dpkg -s "$pkg" 2>/dev/null | grep -q '^Status: install ok installed'; then
      missing+=("$pkg")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return 0
  fi
  nomencla_log "installing: ${missing[*]}"
  local sudo=()
  if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null || { echo "need root (or sudo) to install: ${missing[*]}" >&2; return 1; }
    sudo=(sudo)
  fi
  export DEBIAN_FRONTEND=noninteractive
  "${sudo[@]}" apt-get update
  "${sudo[@]}" apt-get install -y --no-install-recommends "${missing[@]}"
}

# Configures the tree in build/ (extra arguments go to cmake).
nomencla_configure() {
  local root=$1; shift
  nomencla_log "configuring $root/build"
  cmake -S "$root" -B "$root/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNOMENCLA_WERROR=ON "$@"
}
