#include "doublures/Bibliotheque.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#include "data/Main.h"
#include "data/Texte1252.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle::essai {
namespace {

template <class T>
std::string Entete(Donnees fichier) {
  T entete;
  entete.actif = Ligne(fichier).moindre;
  NomOuSignature(entete) = Signature(fichier);
  return Octets(entete);
}

std::string FabriqueVide(Donnees fichier) {
  switch (fichier) {
    case Donnees::GLR1:
    case Donnees::GLFV1:
      return Entete<RecFamille>(fichier);
    case Donnees::GLR2:
      return Entete<RecRecette>(fichier);
    case Donnees::GLF1:
      return Entete<RecFromage>(fichier);
    case Donnees::GLM1:
    case Donnees::GLT1:
      return Entete<RecFiche>(fichier);
    case Donnees::GLV1:
      return Entete<RecRegion>(fichier);
    case Donnees::GLV2:
      return Entete<RecVin>(fichier);
    case Donnees::GLFV2:
      return Entete<RecFavori>(fichier);
    case Donnees::GLMV:
      return Octets(RecMillesime{});
    case Donnees::GLMC:
      return std::string(nombreRayons * longueurEnregistrement<LigneRayon>, '\0');
    default:
      return std::string(Signature(fichier));
  }
}

/// Adds a record behind the last one and counts it in the header.
template <class T>
std::int32_t AjouteCompte(const DossierEssai& dossier, const std::string& nom, const T& e) {
  std::string octets = dossier.Lit(nom) + Octets(e);
  T entete;
  Decode(entete, octets.data());
  ++entete.actif;
  octets.replace(0, longueurEnregistrement<T>, Octets(entete));
  dossier.Ecrit(nom, octets);
  return static_cast<std::int32_t>(octets.size() / longueurEnregistrement<T>);
}

void AjouteTexte(const DossierEssai& dossier, const std::string& nom, std::string_view texte,
                 ReferenceTexte reference) {
  if (!texte.empty()) {
    const std::string avant = dossier.Lit(nom);
    reference.position = static_cast<std::int32_t>(avant.size()) + 1;
    reference.longueur = static_cast<std::int32_t>(texte.size());
    dossier.Ecrit(nom, avant + std::string(texte));
  }
}

/// A name with its record number in three digits.
std::string NomDeFabrique(std::string_view debut, int numero) {
  return std::string(debut) + std::to_string(1000 + numero).substr(1);
}

/// A file of the factory: its header, and its protected records, named after their numbers and
/// completed by `complete(record, number)`.
template <class T, class Complete>
std::string Fabrique(Donnees fichier, std::string_view debutDesNoms, Complete complete) {
  std::string octets = FabriqueVide(fichier);
  for (int numero = 2; numero <= DernierProtege(fichier); ++numero) {
    T enregistrement;
    enregistrement.actif = vivant;
    NomOuSignature(enregistrement) = NomDeFabrique(debutDesNoms, numero);
    complete(enregistrement, numero);
    octets += Octets(enregistrement);
  }
  return octets;
}

constexpr auto telQuel = [](const auto& /*enregistrement*/, int /*numero*/) {};

/// Record `numero` of a file points in turn to each protected record of another one.
int ATourDeRole(Donnees autre, int numero) {
  return 2 + (numero - 2) % (DernierProtege(autre) - 1);
}

}  // namespace

DossierEssai::DossierEssai(const std::string& nom) {
  static std::random_device hasard;
  std::uniform_int_distribution<int> lettre('a', 'z');
  do {
    std::string suite(8, ' ');
    std::generate(suite.begin(), suite.end(), [&] { return static_cast<char>(lettre(hasard)); });
    chemin_ = std::filesystem::temp_directory_path() / CheminDe(nom + "-" + suite);
  } while (!std::filesystem::create_directory(chemin_));
  std::filesystem::permissions(chemin_, std::filesystem::perms::owner_all);
}

DossierEssai::~DossierEssai() {
  std::error_code ignoree;
  std::filesystem::remove_all(chemin_, ignoree);
}

std::string DossierEssai::Lit(std::string_view nom) const {
  std::ifstream entree(chemin_ / CheminDe(nom), std::ios::binary);
  return {std::istreambuf_iterator<char>(entree), {}};
}

void DossierEssai::Ecrit(std::string_view nom, std::string_view octets) const {
  std::ofstream(chemin_ / CheminDe(nom), std::ios::binary)
      .write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

bool DossierEssai::A(std::string_view nom) const {
  return std::filesystem::exists(chemin_ / CheminDe(nom));
}

void DossierEssai::Supprime(std::string_view nom) const {
  const std::filesystem::path place = chemin_ / CheminDe(nom);
#ifdef _WIN32
  // A file that the program holds open would keep its name until it is closed.
  const DossierEssai corbeille("corbeille");
  if (std::filesystem::exists(place)) {
    std::filesystem::rename(place, corbeille.chemin() / "x");
  }
#else
  std::filesystem::remove_all(place);
#endif
}

Bibliotheque::Bibliotheque(const std::string& nomDossier)
    : dossier(nomDossier), module(NouveauModule()) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
    const auto fichier = static_cast<Donnees>(i);
    dossier.Ecrit(NomFabrique(fichier), FabriqueVide(fichier));
  }
  // The least counts of these two are counted again as their first records come.
  for (const Donnees fichier : {Donnees::GLR1, Donnees::GLR2}) {
    std::string octets = dossier.Lit(NomFabrique(fichier));
    octets[0] = 0;
    dossier.Ecrit(NomFabrique(fichier), octets);
  }
  AjouteRecette(AjouteFamille("Potages"), "Velouté"_1252, "Un velouté."_1252);
}

std::string Bibliotheque::NomPresent(Donnees fichier) const {
  return dossier.A(Nom(fichier)) ? Nom(fichier) : NomFabrique(fichier);
}

std::int32_t Bibliotheque::AjouteFamille(std::string_view nom) {
  RecFamille famille;
  famille.actif = vivant;
  famille.nomFamille = nom;
  return AjouteCompte(dossier, NomPresent(Donnees::GLR1), famille);
}

std::int32_t Bibliotheque::AjouteRecette(std::int32_t famille, std::string_view titre,
                                         std::string_view texte, std::string_view image) {
  RecRecette recette;
  recette.actif = vivant;
  recette.idFamille = famille;
  recette.nomRecette = titre;
  AjouteTexte(dossier, NomPresent(Donnees::GLR3), texte, {recette.posTexte, recette.lgTexte});
  AjouteTexte(dossier, NomPresent(Donnees::GLR4), image, {recette.posImage, recette.lgImage});
  return AjouteCompte(dossier, NomPresent(Donnees::GLR2), recette);
}

void Bibliotheque::GarnitFromages() {
  dossier.Ecrit(NomPresent(Donnees::GLF1),
                Fabrique<RecFromage>(Donnees::GLF1, "Fromage ",
                                     [](RecFromage& fromage, int) { fromage.lait = 1; }));
}

std::int32_t Bibliotheque::AjouteFromage(RecFromage fromage, std::string_view notes) {
  fromage.actif = vivant;
  AjouteTexte(dossier, NomPresent(Donnees::GLF2), notes, {fromage.posTexte, fromage.lgTexte});
  return AjouteCompte(dossier, NomPresent(Donnees::GLF1), fromage);
}

void Bibliotheque::GarnitFiches(Donnees fiches) {
  dossier.Ecrit(NomPresent(fiches), Fabrique<RecFiche>(fiches, "Fiche ", telQuel));
}

std::int32_t Bibliotheque::AjouteFiche(Donnees fiches, std::string_view titre,
                                       std::string_view texte) {
  const Donnees textes = fiches == Donnees::GLM1 ? Donnees::GLM2 : Donnees::GLT2;
  RecFiche fiche;
  fiche.actif = vivant;
  fiche.titre = titre;
  AjouteTexte(dossier, NomPresent(textes), texte, {fiche.posTexte, fiche.lgTexte});
  return AjouteCompte(dossier, NomPresent(fiches), fiche);
}

void Bibliotheque::GarnitVins() {
  dossier.Ecrit(NomPresent(Donnees::GLV1),
                Fabrique<RecRegion>(Donnees::GLV1, "Région "_1252, telQuel));
  dossier.Ecrit(NomPresent(Donnees::GLV2),
                Fabrique<RecVin>(Donnees::GLV2, "Vin ", [](RecVin& vin, int numero) {
                  vin.idRegion = ATourDeRole(Donnees::GLV1, numero);
                }));
}

std::int32_t Bibliotheque::AjouteRegion(std::string_view nom) {
  RecRegion region;
  region.actif = vivant;
  region.nomRegion = nom;
  return AjouteCompte(dossier, NomPresent(Donnees::GLV1), region);
}

std::int32_t Bibliotheque::AjouteVin(RecVin vin, std::string_view notes,
                                     std::string_view notesCave) {
  vin.actif = vivant;
  const std::string reserve = NomPresent(Donnees::GLV3);
  AjouteTexte(dossier, reserve, notes, {vin.posTexte, vin.lgTexte});
  AjouteTexte(dossier, reserve, notesCave, {vin.posNotesCave, vin.lgNotesCave});
  return AjouteCompte(dossier, NomPresent(Donnees::GLV2), vin);
}

void Bibliotheque::GarnitFavoris() {
  dossier.Ecrit(NomPresent(Donnees::GLFV1),
                Fabrique<RecFamille>(Donnees::GLFV1, "Catégorie "_1252, telQuel));
  dossier.Ecrit(NomPresent(Donnees::GLFV2),
                Fabrique<RecFavori>(Donnees::GLFV2, "Favori ", [](RecFavori& favori, int numero) {
                  favori.idCategorie =
                      static_cast<std::int16_t>(ATourDeRole(Donnees::GLFV1, numero));
                }));
}

std::int32_t Bibliotheque::AjouteCategorie(std::string_view nom) {
  RecFamille categorie;
  categorie.actif = vivant;
  categorie.nomFamille = nom;
  return AjouteCompte(dossier, NomPresent(Donnees::GLFV1), categorie);
}

std::int32_t Bibliotheque::AjouteFavori(RecFavori favori, std::string_view adresse,
                                        std::string_view notes) {
  favori.actif = vivant;
  const std::string reserve = NomPresent(Donnees::GLFV3);
  AjouteTexte(dossier, reserve, adresse, {favori.posAdresse, favori.lgAdresse});
  AjouteTexte(dossier, reserve, notes, {favori.posTexte, favori.lgTexte});
  return AjouteCompte(dossier, NomPresent(Donnees::GLFV2), favori);
}

void Bibliotheque::GarnitMillesimes(int annees) {
  constexpr int nombreDegres = 6;
  std::string octets;
  for (int i = 0; i < annees; ++i) {
    RecMillesime annee;
    int degre = i;
    std::apply(
        [&](const auto&... champ) {
          ((annee.*champ.membre = static_cast<std::int16_t>(degre++ % nombreDegres)), ...);
        },
        champs<RecMillesime>);
    octets += Octets(annee);
  }
  dossier.Ecrit(NomPresent(Donnees::GLMV), octets);
}

void Bibliotheque::AjouteCourses(std::size_t rayon, std::string_view texte) {
  const std::string annuaire = NomPresent(Donnees::GLMC);
  LigneRayon ligne;
  AjouteTexte(dossier, NomPresent(Donnees::GLMCN), texte, {ligne.posTexte, ligne.lgTexte});
  std::string octets = dossier.Lit(annuaire);
  octets.replace(rayon * longueurEnregistrement<LigneRayon>, longueurEnregistrement<LigneRayon>,
                 Octets(ligne));
  dossier.Ecrit(annuaire, octets);
}

void Bibliotheque::GarnitDeFabrique(const std::filesystem::path& dossierDuProgramme) {
  for (const auto& place : std::filesystem::directory_iterator(dossierDuProgramme)) {
    if (place.path().extension() == ".stp") {
      std::filesystem::copy(place, dossier.chemin(),
                            std::filesystem::copy_options::overwrite_existing);
    }
  }
}

void Bibliotheque::Garnit() {
  std::filesystem::create_directory(dossier.chemin() / "IMAGE");
  dossier.Ecrit("IMAGE/a.png", "x");
  AjouteRecette(AjouteFamille("Desserts"), "Avec image", "Un texte.", "/a.png");
  GarnitFromages();
  RecFromage fromage;
  fromage.nomFromage = "Abondance";
  fromage.regionFromage = "Savoie";
  AjouteFromage(fromage, "Des notes.");
  GarnitVins();
  RecVin vin;
  vin.nomVin = "Abymes";
  vin.idRegion = AjouteRegion("Alpes");
  vin.nbBlanc = 6;
  AjouteVin(vin, "Des notes.", "En haut.");
  for (const Donnees fiches : {Donnees::GLM1, Donnees::GLT1}) {
    GarnitFiches(fiches);
    AjouteFiche(fiches, "Agape", "Un texte.");
  }
  GarnitMillesimes();
  GarnitFavoris();
  RecFavori favori;
  favori.nomFavori = "Affineur";
  favori.idCategorie = Tenu<std::int16_t>(AjouteCategorie("Artisans"));
  favori.telephone = "01 02 03 04 05";
  favori.email = "a@b.fr";
  favori.siteWeb = "https://b.fr";
  AjouteFavori(favori, "1 rue Haute", "Des notes.");
  AjouteCourses(14, "Du sel.");
  dossier.Ecrit("MesNotes.txt", "Des notes.\r\n");
}

std::unique_ptr<Module1> Bibliotheque::NouveauModule() {
  return std::make_unique<Module1>(
      Services{disque, messages, pointeur, horloge, association, son, processus, imprimantes},
      Chemins(conventionDuSysteme, DepuisUtf8(EnUtf8(dossier.chemin()))));
}

void Bibliotheque::Demarre() {
  bool montre = false;
  try {
    Main(*module, false, [&] { montre = true; });
  } catch (const FinDuProgramme&) {
    ADD_FAILURE() << "le démarrage s'est arrêté : "
                  << (messages.vus.empty() ? "" : VersUtf8(messages.vus.back().texte));
  }
  EXPECT_TRUE(montre);
  disque.OublieJournal();
}

void Bibliotheque::Redemarre() {
  module = NouveauModule();
  Demarre();
}

}  // namespace gastrelle::essai
