#include "fuzz/Graines.h"

#include <array>
#include <limits>
#include <map>

#include "data/Texte1252.h"
#include "fuzz/DossierReel.h"
#include "fuzz/Entree.h"
#include "listes/Notes.h"

namespace gastrelle::essai {
namespace {

constexpr std::int32_t demesure = std::numeric_limits<std::int32_t>::max();

std::string Mot(unsigned valeur) {
  return {static_cast<char>(valeur & 0xFFU), static_cast<char>(valeur >> 8U & 0xFFU)};
}

template <class T>
std::string Octets(const T& enregistrement) {
  const auto octets = Code(enregistrement);
  return {octets.data(), octets.size()};
}

std::string Famille(std::string_view nom) {
  RecFamille famille;
  famille.actif = vivant;
  famille.nomFamille = nom;
  return Octets(famille);
}

std::string Recette(std::int32_t famille, std::string_view titre, LigneRayon texte = {},
                    LigneRayon image = {}) {
  RecRecette recette;
  recette.actif = vivant;
  recette.idFamille = famille;
  recette.nomRecette = titre;
  recette.posTexte = texte.posTexte;
  recette.lgTexte = texte.lgTexte;
  recette.posImage = image.posTexte;
  recette.lgImage = image.lgTexte;
  return Octets(recette);
}

std::string Fromage(std::string_view nom, std::int16_t lait, std::int16_t premierMois,
                    std::int16_t dernierMois, LigneRayon notes = {}) {
  RecFromage fromage;
  fromage.actif = vivant;
  fromage.nomFromage = nom;
  fromage.regionFromage = "Provence";
  fromage.lait = lait;
  fromage.premierMois = premierMois;
  fromage.dernierMois = dernierMois;
  fromage.posTexte = notes.posTexte;
  fromage.lgTexte = notes.lgTexte;
  return Octets(fromage);
}

std::string Fiche(std::string_view titre, LigneRayon texte = {}) {
  RecFiche fiche;
  fiche.actif = vivant;
  fiche.titre = titre;
  fiche.posTexte = texte.posTexte;
  fiche.lgTexte = texte.lgTexte;
  return Octets(fiche);
}

std::string Region(std::string_view nom) {
  RecRegion region;
  region.actif = vivant;
  region.nomRegion = nom;
  return Octets(region);
}

std::string Vin(std::string_view nom, std::int32_t region, std::int16_t blanc, std::int16_t gris,
                LigneRayon notes = {}, LigneRayon notesCave = {}) {
  RecVin vin;
  vin.actif = vivant;
  vin.nomVin = nom;
  vin.idRegion = region;
  vin.nbBlanc = blanc;
  vin.nbGris = gris;
  vin.posTexte = notes.posTexte;
  vin.lgTexte = notes.lgTexte;
  vin.posNotesCave = notesCave.posTexte;
  vin.lgNotesCave = notesCave.lgTexte;
  return Octets(vin);
}

std::string Favori(std::string_view nom, std::int16_t categorie, LigneRayon adresse = {},
                   LigneRayon notes = {}) {
  RecFavori favori;
  favori.actif = vivant;
  favori.nomFavori = nom;
  favori.idCategorie = categorie;
  favori.posAdresse = adresse.posTexte;
  favori.lgAdresse = adresse.lgTexte;
  favori.email = " contact@exemple.fr";
  favori.siteWeb = "  exemple.fr";
  favori.posTexte = notes.posTexte;
  favori.lgTexte = notes.lgTexte;
  return Octets(favori);
}

/// References that lead out of their pool, or nowhere.
constexpr std::array<LigneRayon, 9> referencesFolles{{{1, demesure},
                                                      {demesure, demesure},
                                                      {demesure, 1},
                                                      {-1, 5},
                                                      {9, -1},
                                                      {0, demesure},
                                                      {1, 0},
                                                      {-demesure, -demesure},
                                                      {16, 16}}};

/// The bytes of an input, file by file. Those of a file with a header begin with its count.
struct Dossier {
  unsigned choix = gardeEntetes;
  unsigned panne = 0;
  std::map<Donnees, std::string> fichiers;
  std::map<Donnees, bool> absents;
  std::string notes;
  std::string intrus;

  [[nodiscard]] std::string octets() const {
    unsigned remplaces = 0;
    std::string morceaux;
    for (std::size_t i = 0; i < nombreFichiers; ++i) {
      const auto fichier = static_cast<Donnees>(i);
      if (absents.contains(fichier)) {
        remplaces |= 1U << i;
        morceaux += Mot(absent);
      } else if (const auto trouve = fichiers.find(fichier); trouve != fichiers.end()) {
        remplaces |= 1U << i;
        morceaux += Mot(static_cast<unsigned>(trouve->second.size())) + trouve->second;
      }
    }
    if (!notes.empty()) {
      remplaces |= 1U << nombreFichiers;
      morceaux += Mot(static_cast<unsigned>(notes.size())) + notes;
    }
    return std::string{static_cast<char>(choix)} + Mot(remplaces & 0xFFFFU) +
           std::string{static_cast<char>(remplaces >> 16U)} + Mot(panne) + morceaux + intrus;
  }
};

/// Two families, three recipes, the first with a text and a picture of the folder.
Dossier DeuxFamilles() {
  Dossier d;
  d.choix = gardeEntetes | avecImages;
  d.fichiers[Donnees::GLR1] = Mot(2) + Famille("Potages") + Famille("Bœufs et bêtes"_1252);
  d.fichiers[Donnees::GLR2] = Mot(3) + Recette(2, "Velouté"_1252, {9, 11}, {9, 10}) +
                              Recette(3, "Bœuf à l'ancienne"_1252, {20, 5}) +
                              Recette(2, "Crème d'été"_1252);
  d.fichiers[Donnees::GLR3] = std::string("Un velouté.Mijot"_1252);
  d.fichiers[Donnees::GLR4] = "/soupe.png";
  return d;
}

Dossier Comptes(std::int16_t familles, std::int16_t recettes) {
  Dossier d = DeuxFamilles();
  d.fichiers[Donnees::GLR1].replace(0, 2, Mot(static_cast<unsigned>(familles)));
  d.fichiers[Donnees::GLR2].replace(0, 2, Mot(static_cast<unsigned>(recettes)));
  return d;
}

Dossier References() {
  Dossier d = DeuxFamilles();
  std::string recettes = Mot(referencesFolles.size());
  for (const LigneRayon& texte : referencesFolles) {
    recettes += Recette(2, "Soupe", texte, texte);
  }
  d.fichiers[Donnees::GLR2] = recettes;
  return d;
}

/// Three cheeses, two menus and a tip, one of each with a text; a deleted cheese between them.
Dossier AutresCatalogues() {
  Dossier d;
  RecFromage parti;
  parti.nomFromage = "Parti";
  d.fichiers[Donnees::GLF1] = Mot(122) + Fromage("Banon", 2, 11, 2, {9, 11}) + Octets(parti) +
                              Fromage("Brie", 1, 0, 0) + Fromage("Époisses"_1252, 1, 12, 12);
  d.fichiers[Donnees::GLF2] = "En feuille.";
  d.fichiers[Donnees::GLM1] = Mot(15) + Fiche("Noël"_1252, {9, 7}) + Fiche("Noce");
  d.fichiers[Donnees::GLM2] = "Du vin.";
  d.fichiers[Donnees::GLT1] = Mot(167) + Fiche("Blanchir", {9, 10});
  d.fichiers[Donnees::GLT2] = "A l'eau. !";
  return d;
}

/// The same references in all three.
Dossier AutresReferences() {
  Dossier d = AutresCatalogues();
  std::string fromages = Mot(122);
  std::string fiches = Mot(167);
  for (const LigneRayon& texte : referencesFolles) {
    fromages += Fromage("Banon", 2, 0, 0, texte);
    fiches += Fiche("Noce", texte);
  }
  d.fichiers[Donnees::GLF1] = fromages;
  d.fichiers[Donnees::GLM1] = fiches;
  d.fichiers[Donnees::GLT1] = fiches;
  return d;
}

/// Two regions and three wines, the first with bottles and both its texts; a deleted one between.
Dossier VinsEtCave() {
  Dossier d;
  RecVin parti;
  parti.nomVin = "Parti";
  parti.idRegion = 2;
  parti.nbBlanc = 1;
  d.fichiers[Donnees::GLV1] = Mot(27) + Region("Alpes") + Region("Rhône"_1252);
  d.fichiers[Donnees::GLV2] = Mot(563) + Vin("Abymes", 2, 6, 2, {9, 10}, {19, 8}) + Octets(parti) +
                              Vin("Crépy"_1252, 2, 0, 0) + Vin("Gigondas", 3, 0, 0);
  d.fichiers[Donnees::GLV3] = "Dix octetsEn haut.";
  return d;
}

/// The mad references in both texts of a wine, and as its region; bottles at their extremes.
Dossier VinsFous() {
  using Bornes = std::numeric_limits<std::int16_t>;
  Dossier d = VinsEtCave();
  std::string vins = Mot(563);
  for (const LigneRayon& folle : referencesFolles) {
    vins += Vin("Note", 2, Bornes::max(), Bornes::max(), folle) +
            Vin("Cave", 2, Bornes::min(), 1, {}, folle) + Vin("Nulle part", folle.posTexte, 1, 0);
  }
  d.fichiers[Donnees::GLV2] = vins;
  return d;
}

/// Two categories and three favourites, the first with both its texts; a deleted one between them,
/// and a file of wines, all deleted, long enough for a category to take its first favourites along.
Dossier FavorisEtCategories() {
  constexpr std::size_t nombreVins = 37;  // with one that passes, 39 * 104 / 724 is above 5.5
  Dossier d;
  RecFavori parti;
  parti.nomFavori = "Parti";
  parti.idCategorie = 2;
  d.fichiers[Donnees::GLFV1] = Mot(3) + Famille("Artisans") + Famille("Marchés"_1252);
  d.fichiers[Donnees::GLFV2] = Mot(14) + Favori("Affineur", 2, {10, 10}, {20, 12}) + Octets(parti) +
                               Favori("Boucher", 2) + Favori("Halles", 3);
  d.fichiers[Donnees::GLFV3] = "1 rue HautDouze octets";
  d.fichiers[Donnees::GLV2] =
      Mot(563) + std::string(nombreVins * longueurEnregistrement<RecVin>, '\0');
  return d;
}

/// The mad references in both texts of a favourite; categories that no file holds.
Dossier FavorisFous() {
  using Bornes = std::numeric_limits<std::int16_t>;
  Dossier d = FavorisEtCategories();
  d.fichiers.erase(Donnees::GLV2);  // an input is no longer than what the fuzzers try
  std::string favoris = Mot(21);
  for (const LigneRayon& folle : referencesFolles) {
    favoris += Favori("Adresse", 2, folle) + Favori("Notes", 2, {}, folle);
  }
  for (const std::int16_t nulle : {Bornes::min(), std::int16_t{0}, Bornes::max()}) {
    favoris += Favori("Nulle part", nulle, {10, 10});
  }
  d.fichiers[Donnees::GLFV2] = favoris;
  d.fichiers[Donnees::GLFV3] += std::string(600, 'x');  // longer than an address may be
  return d;
}

/// Milks and months that no table holds, after one cheese that is right.
Dossier CodesFaux() {
  using Bornes = std::numeric_limits<std::int16_t>;
  Dossier d;
  std::string fromages = Mot(122) + Fromage("Banon", 3, 12, 12);
  for (const std::int16_t faux :
       {Bornes::min(), std::int16_t{-1}, std::int16_t{13}, Bornes::max()}) {
    fromages += Fromage("Lait", faux, 1, 1) + Fromage("Premier", 1, faux, 1) +
                Fromage("Dernier", 1, 1, faux);
  }
  d.fichiers[Donnees::GLF1] = fromages + Fromage("Lait", 4, 1, 1);
  return d;
}

Dossier Images() {
  Dossier d = DeuxFamilles();
  const std::string longue(300, 'x');
  std::string reserve;
  std::string recettes = Mot(9);
  for (const std::string& image : std::array<std::string, 9>{
           imageAilleurs, "/", "//soupe.png", "/../GLR1.DAT", "/..", std::string("/s\0p.png", 8),
           "/" + longue, "IMAGE/soupe.png", std::string(dossierMemoire) + "/" + imageDuDossier}) {
    recettes += Recette(
        2, "Soupe", {},
        {static_cast<std::int32_t>(9 + reserve.size()), static_cast<std::int32_t>(image.size())});
    reserve += image;
  }
  d.fichiers[Donnees::GLR2] = recettes;
  d.fichiers[Donnees::GLR4] = reserve;
  return d;
}

/// Every byte in a title, each with its neighbours.
Dossier TousLesOctets() {
  constexpr int parTitre = 4;
  Dossier d = DeuxFamilles();
  std::string recettes = Mot(256 / parTitre);
  for (int octet = 0; octet < 256; octet += parTitre) {
    std::string titre = "o";
    for (int i = 0; i < parTitre; ++i) {
      titre += static_cast<char>(octet + i);
    }
    recettes += Recette(2, titre + "x");
  }
  d.fichiers[Donnees::GLR2] = recettes;
  return d;
}

Dossier Rayons() {
  Dossier d;
  std::string lignes;
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(nombreRayons); ++i) {
    lignes += Octets(i % 2 == 0 ? LigneRayon{9 + i, 3} : LigneRayon{0, demesure});
  }
  d.fichiers[Donnees::GLMC] = lignes;
  d.fichiers[Donnees::GLMCN] = std::string("Crème fraîche, œufs"_1252);
  return d;
}

/// Blank lines at both ends, line ends of every system.
Dossier Notes() {
  Dossier d;
  d.notes = "\r\n\n  Un\r\nDeux\n\nTrois\rQuatre\n\r\r\n";
  return d;
}

Dossier Tronque() {
  Dossier d = DeuxFamilles();
  d.fichiers.merge(AutresCatalogues().fichiers);
  d.fichiers.merge(VinsEtCave().fichiers);
  d.fichiers.merge(FavorisEtCategories().fichiers);
  for (auto& [fichier, octets] : d.fichiers) {
    octets.resize(octets.size() - octets.size() / 3);
  }
  return d;
}

Dossier ReduitesAuxEntetes() {
  Dossier d = DeuxFamilles();
  d.fichiers[Donnees::GLR1].resize(2);
  d.fichiers[Donnees::GLR2].resize(2);
  for (const Donnees fichier : {Donnees::GLF1, Donnees::GLM1, Donnees::GLV1, Donnees::GLV2,
                                Donnees::GLT1, Donnees::GLFV1, Donnees::GLFV2}) {
    d.fichiers[fichier] = Mot(600);
  }
  return d;
}

Dossier EnFabrique() {
  Dossier d = DeuxFamilles();
  d.choix |= enFabrique;
  return d;
}

Dossier SansFichier() {
  Dossier d = DeuxFamilles();
  d.absents[Donnees::GLV2] = true;
  return d;
}

Dossier EntetesFaux() {
  Dossier d;
  d.choix = 0;
  d.fichiers[Donnees::GLR2] = Recette(1, "GLR1.DAT");
  return d;
}

Dossier EnPanne(unsigned appel) {
  Dossier d = DeuxFamilles();
  d.panne = appel;
  return d;
}

std::vector<Graine> GrainesEnMemoire() {
  constexpr unsigned appelDuDemarrage = 30;
  constexpr unsigned appelDesListes = 90;
  constexpr std::int16_t tropHaut = std::numeric_limits<std::int16_t>::max();
  return {
      {"vide", {}},
      {"deux-familles", DeuxFamilles().octets()},
      {"en-fabrique", EnFabrique().octets()},
      {"comptes-trop-hauts", Comptes(tropHaut, tropHaut).octets()},
      {"comptes-trop-bas", Comptes(1, 1).octets()},
      {"reduites-aux-entetes", ReduitesAuxEntetes().octets()},
      {"references", References().octets()},
      {"autres-catalogues", AutresCatalogues().octets()},
      {"autres-references", AutresReferences().octets()},
      {"codes-faux", CodesFaux().octets()},
      {"vins-et-cave", VinsEtCave().octets()},
      {"vins-fous", VinsFous().octets()},
      {"favoris", FavorisEtCategories().octets()},
      {"favoris-fous", FavorisFous().octets()},
      {"images", Images().octets()},
      {"tous-les-octets", TousLesOctets().octets()},
      {"rayons", Rayons().octets()},
      {"notes", Notes().octets()},
      {"tronque", Tronque().octets()},
      {"sans-fichier", SansFichier().octets()},
      {"entetes-faux", EntetesFaux().octets()},
      {"panne-au-demarrage", EnPanne(appelDuDemarrage).octets()},
      {"panne-dans-les-listes", EnPanne(appelDesListes).octets()},
  };
}

/// The same intruder under every name that `prend` takes.
template <class Prend>
Dossier AvecIntrus(Dossier d, Intrus intrus, Prend&& prend) {
  d.choix |= surDisque;
  for (const std::string& nom : NomsDuDossier()) {
    if (prend(nom)) {
      d.intrus += Glisse(nom, intrus);
    }
  }
  return d;
}

/// Under the names of copies under way: nothing of it concerns the program.
Dossier SousLesCopies(Intrus intrus) {
  return AvecIntrus(EnFabrique(), intrus, [](const std::string& nom) { return nom.back() == '~'; });
}

/// In the place of the factory copies, the data files being away.
Dossier EnFabriques(Intrus intrus) {
  return AvecIntrus(EnFabrique(), intrus,
                    [](const std::string& nom) { return nom.ends_with(".stp"); });
}

/// In the place of the data files, which are there as factory copies, or at the end of the links.
Dossier EnDonnees(Intrus intrus) {
  const Dossier d = intrus == Intrus::lienFichier ? DeuxFamilles() : EnFabrique();
  return AvecIntrus(d, intrus, [](const std::string& nom) {
    return nom.ends_with(".DAT") && nom.find('/') == std::string::npos;
  });
}

/// In the place of the notes.
Dossier EnNotes(Intrus intrus) {
  return AvecIntrus(Notes(), intrus, [](const std::string& nom) { return nom == fichierNotes; });
}

/// In the place of the backup's files.
Dossier EnSauve(Intrus intrus) {
  return AvecIntrus(DeuxFamilles(), intrus, [](const std::string& nom) {
    return nom.ends_with(".DAT") && nom.find('/') != std::string::npos;
  });
}

}  // namespace

std::vector<Graine> Graines() {
  std::vector<Graine> graines = GrainesEnMemoire();
  for (std::size_t i = 0; i < nombreIntrus; ++i) {
    const auto intrus = static_cast<Intrus>(i);
    const std::string debut = "intrus-" + std::string(nomsIntrus[i]);
    graines.push_back({debut + "-copies", SousLesCopies(intrus).octets()});
    graines.push_back({debut + "-fabriques", EnFabriques(intrus).octets()});
    graines.push_back({debut + "-donnees", EnDonnees(intrus).octets()});
    graines.push_back({debut + "-notes", EnNotes(intrus).octets()});
    graines.push_back({debut + "-sauve", EnSauve(intrus).octets()});
  }
  return graines;
}

}  // namespace gastrelle::essai
