# The tree that the packages for Linux hold, relocatable as a whole. Sourced from the repository's root.
#
# GASTRELLE_DOSSIER   a program folder to pack instead of the release build's
# GASTRELLE_VERSION   its version, instead of the one of CMakeLists.txt
# GASTRELLE_PAQUETS   where packages go, instead of build/paquets
#
# shellcheck shell=bash

. cmake/outils.sh
umask 022 # who makes a package may be more private than who installs it
installe "${paquets_programme[@]}" "${paquets_paquets[@]}"

sortie=${GASTRELLE_PAQUETS:-build/paquets}
# shellcheck disable=SC2034 # it is in the packages' names
architecture=$(dpkg --print-architecture)
identifiant=local.gastrelle.gastrelle # of no site: the program has none
atelier=$(mktemp -d)
trap 'rm -rf "$atelier"' EXIT
mkdir -p "$sortie"

# du_cache NAME: what the release build was configured with.
du_cache() { sed -n "s/^$1:[A-Z]*=//p" build/release/CMakeCache.txt; }

# The same sources give the same package, to the byte.
date_sources() {
  git log -1 --format=%ct 2>/dev/null || stat -c %Y CMakeLists.txt
}

# en_xml TEXT, en_sed TEXT: as it stands in an XML text, and in the second half of a replacement by sed.
en_xml() { printf '%s' "$1" | sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' -e 's/>/\&gt;/g'; }
en_sed() { printf '%s' "$1" | sed 's/[&|\\]/\\&/g'; }

# remplit MODEL: a text of ressources/linux with the version, the date and the addresses in it. A line
# about the web site is there if there is a site.
remplit() {
  local adresse=$site auteur=$responsable
  if [[ $1 = *.xml ]]; then
    adresse=$(en_xml "$adresse")
    auteur=$(en_xml "$auteur")
  fi
  adresse=$(en_sed "$adresse")
  auteur=$(en_sed "$auteur")
  sed -e "s|@VERSION@|$version|g" -e "s|@DATE@|$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)|g" \
    -e "s|@DATE_LONGUE@|$(LC_ALL=C date -u -R -d "@$SOURCE_DATE_EPOCH")|g" \
    -e "s|@RESPONSABLE@|$auteur|g" -e "s|@IDENTIFIANT@|$identifiant|g" \
    -e "${adresse:+s|@SITE@|$adresse|g}" -e '/@SITE@/d' "ressources/linux/$1"
}

# prepare: the release build, its version, and the program folder to pack in $dossier.
prepare() {
  if [ -n "${GASTRELLE_DOSSIER:-}" ]; then
    dossier=$GASTRELLE_DOSSIER
  else
    construit release dossier_programme gastrelle
    dossier=$atelier/programme
    cmake --install build/release --prefix "$dossier" --strip >/dev/null
  fi
  version=${GASTRELLE_VERSION:-$(du_cache CMAKE_PROJECT_VERSION)}
  [ -n "$version" ] || manque "La version n'est pas dans build/release/CMakeCache.txt."
  SOURCE_DATE_EPOCH=$(date_sources)
  export SOURCE_DATE_EPOCH
  site=$(du_cache GASTRELLE_SITE)
  responsable="Gastrelle <$(du_cache GASTRELLE_COURRIER)>"
  [ "$responsable" != "Gastrelle <>" ] || responsable="Gastrelle <gastrelle@gastrelle.invalid>"
}

# garnit PREFIX: lays the tree below a prefix.
garnit() {
  local prefixe=$1 taille icones=$1/share/icons/hicolor
  local modeles=$prefixe/share/gastrelle
  install -d "$prefixe/bin" "$modeles/IMAGE"
  install -D -m 755 "$dossier/gastrelle" "$prefixe/lib/gastrelle/gastrelle"
  install -D -m 644 "$dossier/imprimante.so" "$prefixe/lib/gastrelle/imprimante.so"
  ln -s ../lib/gastrelle/gastrelle "$prefixe/bin/gastrelle"
  install -m 644 "$dossier"/GL*.stp "$dossier"/{gl32.hlp,Exclamation,presentation.html,secours.html} "$modeles"
  install -m 644 "$dossier"/IMAGE/* "$modeles/IMAGE"
  # What a user's folder is compared with: the version, and what it really holds.
  { echo "$version"; empreinte "$modeles"; } >"$atelier/EDITION"
  install -m 644 "$atelier/EDITION" "$modeles/EDITION"

  install -D -m 644 ressources/icones/gastrelle.svg "$icones/scalable/apps/gastrelle.svg"
  for taille in 16 22 24 32 48 64 128 256; do
    install -d "$icones/${taille}x$taille/apps"
    rsvg-convert --width "$taille" --height "$taille" \
      --output "$icones/${taille}x$taille/apps/gastrelle.png" ressources/icones/gastrelle.svg
  done
  pose_texte gastrelle.desktop "$prefixe/share/applications/gastrelle.desktop"
  pose_texte gastrelle.metainfo.xml "$prefixe/share/metainfo/$identifiant.metainfo.xml"
  pose_texte gastrelle.1 "$prefixe/share/man/man1/gastrelle.1"
  pose_texte copyright "$prefixe/share/doc/gastrelle/copyright"
}

empreinte() {
  (cd "$1" && find . -type f ! -name EDITION | LC_ALL=C sort | xargs -d '\n' sha256sum | sha256sum | cut -d ' ' -f 1)
}

# pose_texte MODEL FILE
pose_texte() {
  install -d "$(dirname "$2")"
  remplit "$1" >"$2"
  chmod 644 "$2"
}

# date_tout TREE: every file and folder gets the date of the sources.
date_tout() {
  find "$1" -type d -exec chmod 755 {} +
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}
