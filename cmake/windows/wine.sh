# Running Windows programs here. Sourced after outils.sh.

# prepare_wine FOLDER: a Windows of its own in a folder, made once. Its temporary files lie where
# those of the tests do, and it asks nothing of anybody.
prepare_wine() {
  export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all LC_ALL=C.UTF-8 # names with accents
  export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  mkdir -p "$WINEPREFIX"
  exec 8>"$WINEPREFIX/verrou"
  flock -w 900 8 || manque "Un autre essai occupe Wine ici."
  if [ ! -f "$WINEPREFIX/pret" ]; then
    find "$WINEPREFIX" -mindepth 1 -maxdepth 1 ! -name verrou -exec rm -rf {} +
    env -u DISPLAY wineboot --init >/dev/null 2>&1 || manque "Wine n'a pas pu se préparer."
    # Its own fonts aren't there; the system's stand in for the ones that Windows has. Letters are
    # smoothed.
    local police
    for police in "Segoe UI" Tahoma "MS Shell Dlg" "MS Shell Dlg 2" Arial; do
      regle 'HKCU\Software\Wine\Fonts\Replacements' /v "$police" /d "Liberation Sans"
    done
    regle 'HKCU\Control Panel\Desktop' /v FontSmoothing /d 2
    regle 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2
    wineserver -w
    touch "$WINEPREFIX/pret"
  fi
  local provisoires
  provisoires=$(find "$WINEPREFIX/drive_c/users" -maxdepth 2 -name Temp | head -n 1)
  [ -n "$provisoires" ] || manque "Wine n'a pas de dossier provisoire."
  rm -rf "$provisoires"
  ln -s "${TMPDIR:-/tmp}" "$provisoires"
}

# regle KEY OPTION...: writes a value into the registry.
regle() {
  env -u DISPLAY wine reg add "$@" /f >/dev/null 2>&1 || manque "Le registre de Wine ne s'écrit pas : $1"
}
