# Running Windows programs here. Sourced after outils.sh.

# prepare_wine FOLDER: a Windows of its own in a folder, made once. Its temporary files lie where
# those of the tests do, and it asks nothing of anybody.
prepare_wine() {
  export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all
  export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  if [ ! -f "$WINEPREFIX/pret" ]; then
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    env -u DISPLAY wineboot --init >/dev/null 2>&1 || manque "Wine n'a pas pu se préparer."
    # Its own fonts aren't there; the system's stand in for the ones that Windows has.
    local police
    for police in "Segoe UI" Tahoma "MS Shell Dlg" "MS Shell Dlg 2" Arial; do
      wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$police" /d "Liberation Sans" /f >/dev/null 2>&1
    done
    # Letters are smoothed there.
    wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothing /d 2 /f >/dev/null 2>&1
    wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2 /f >/dev/null 2>&1
    wineserver -w
    touch "$WINEPREFIX/pret"
  fi
  local provisoires
  provisoires=$(find "$WINEPREFIX/drive_c/users" -maxdepth 2 -name Temp | head -n 1)
  rm -rf "$provisoires"
  ln -s "${TMPDIR:-/tmp}" "$provisoires"
}
