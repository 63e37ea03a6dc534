# What the commands of the repository share. Sourced from its root.

# Packages of Debian; what is already there is not asked for again.
paquets_programme=(g++ cmake ninja-build ccache pkg-config git ca-certificates
  qt6-base-dev qt6-base-dev-tools qt6-translations-l10n qt6-image-formats-plugins
  libtomlplusplus-dev libglib2.0-dev libcups2-dev libcanberra-dev librsvg2-bin imagemagick
  fonts-liberation fonts-dejavu-core)
paquets_ecran_virtuel=(xvfb xdotool)
paquets_paquets=(dpkg-dev librsvg2-bin)
paquets_bancs=(ripgrep)
paquets_essais=(libgtest-dev libgmock-dev libbenchmark-dev clang-14 clang-tidy-14 clang-format-14
  libclang-rt-14-dev hunspell hunspell-fr desktop-file-utils shared-mime-info
  xvfb xdotool libsm-dev valgrind libc6-dbg cups cups-client cups-filters poppler-utils
  dpkg-dev lintian appstream)
# What cross-compiles for Windows, and runs what comes of it.
paquets_windows=(g++-mingw-w64-x86-64-posix wine wine64 googletest)

etape() { printf '\n== %s ==\n' "$*"; }

manque() { printf '%s\n' "$*" >&2; exit 1; }

installe() {
  local absents=() paquet
  for paquet in "$@"; do
    dpkg-query -W -f='${db:Status-Abbrev}' "$paquet" 2>/dev/null | grep -q '^ii' || absents+=("$paquet")
  done
  [ ${#absents[@]} -eq 0 ] && return
  command -v apt-get >/dev/null ||
    manque "Il manque ces paquets, et apt-get n'est pas là pour les installer : ${absents[*]}"
  local racine=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
      manque "Il manque ces paquets, à installer en tant que root : apt-get install ${absents[*]}"
    racine=(sudo)
  fi
  etape "installation : ${absents[*]}"
  "${racine[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${racine[@]}" apt-get install -y -qq --no-install-recommends \
    "${absents[@]}" >/dev/null || manque "L'installation a échoué : ${absents[*]}"
}

# construit PRESET [TARGET...]: configures once, builds what has changed.
construit() {
  local preset=$1
  shift
  etape "construction ($preset)"
  export CCACHE_BASEDIR="$PWD" CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_PCH_EXTSUM=1
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"/tmp/gastrelle-cmake-$$.log" 2>&1 ||
    { cat "/tmp/gastrelle-cmake-$$.log" >&2; manque "La configuration a échoué."; }
  cmake --build --preset "$preset" ${1:+--target "$@"} || manque "La construction a échoué."
}

# ecran_virtuel: starts a virtual display that chooses its own number, and ends with the command.
ecran_virtuel() {
  local annonce
  annonce=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1280x960x24 3>"$annonce" >/dev/null 2>&1 &
  processus_ecran=$!
  trap 'kill "$processus_ecran" 2>/dev/null; wait "$processus_ecran" 2>/dev/null || true' EXIT
  for _ in $(seq 100); do [ -s "$annonce" ] && break; sleep 0.1; done
  [ -s "$annonce" ] || manque "L'écran virtuel n'a pas démarré."
  DISPLAY=":$(cat "$annonce")"
  export DISPLAY
  rm -f "$annonce"
}

# capture PICTURE PROGRAM: starts the program under a virtual display, waits for its window, takes a
# picture, and ends it as its user would.
capture() {
  local image=$1 programme=$2 pid fenetre=""
  ecran_virtuel
  export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
  "$programme" &
  pid=$!
  for _ in $(seq 100); do
    fenetre=$(xdotool search --onlyvisible --pid "$pid" --name 'Gastrelle 2005' 2>/dev/null | head -n 1) && [ -n "$fenetre" ] && break
    kill -0 "$pid" 2>/dev/null || manque "Le programme s'est arrêté avant de montrer sa fenêtre."
    sleep 0.1
  done
  [ -n "$fenetre" ] || manque "La fenêtre du programme n'est pas venue en dix secondes."
  sleep 1
  import -window "$fenetre" "$image"
  kill "$pid" 2>/dev/null || true
  wait "$pid" 2>/dev/null || true
  echo "Pas d'écran ici : le programme a été lancé sous un écran virtuel, son image est dans $image."
}
