# Running Windows programs here. Sourced after outils.sh.

# Packages of Debian that cross-compile, and that run what comes of it.
paquets_windows=(g++-mingw-w64-x86-64-posix wine wine64)

# prepare_wine FOLDER: a Windows of its own in a folder, made once. Its temporary files lie where
# those of the tests do, and it asks nothing of anybody.
prepare_wine() {
  export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all
  export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  if [ ! -f "$WINEPREFIX/pret" ]; then
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    env -u DISPLAY wineboot --init >/dev/null 2>&1 || manque "Wine n'a pas pu se préparer."
    wineserver -w
    touch "$WINEPREFIX/pret"
  fi
  local provisoires
  provisoires=$(find "$WINEPREFIX/drive_c/users" -maxdepth 2 -name Temp | head -n 1)
  rm -rf "$provisoires"
  ln -s "${TMPDIR:-/tmp}" "$provisoires"
}
