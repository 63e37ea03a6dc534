// A program folder in a temporary place, with small factory copies that pass every test of the
// start, and verbs to fill its files.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "data/Module1.h"
#include "doublures/DisqueEssai.h"
#include "doublures/ImprimanteEssai.h"
#include "doublures/ServicesEssai.h"

namespace gastrelle::essai {

/// A folder that goes with the object.
class DossierEssai {
 public:
  /// `nom`: how the folder's name begins.
  explicit DossierEssai(const std::string& nom = "gastrelle");
  DossierEssai(const DossierEssai&) = delete;
  DossierEssai& operator=(const DossierEssai&) = delete;
  ~DossierEssai();

  [[nodiscard]] const std::filesystem::path& chemin() const { return chemin_; }
  /// All bytes of a file of the folder.
  [[nodiscard]] std::string Lit(std::string_view nom) const;
  void Ecrit(std::string_view nom, std::string_view octets) const;
  [[nodiscard]] bool A(std::string_view nom) const;
  void Supprime(std::string_view nom) const;

 private:
  std::filesystem::path chemin_;
};

/// Bytes of a record, for comparisons with a file.
template <class T>
std::string Octets(const T& enregistrement) {
  const auto octets = Code(enregistrement);
  return {octets.data(), octets.size()};
}

/// Record `numero` of a file of the folder.
template <class T>
T Enregistrement(const DossierEssai& dossier, std::string_view nom, std::size_t numero) {
  std::string octets = dossier.Lit(nom);
  octets.resize(std::max(octets.size(), numero * longueurEnregistrement<T>), '\0');
  T e;
  Decode(e, octets.data() + (numero - 1) * longueurEnregistrement<T>);
  return e;
}

class Bibliotheque {
 public:
  /// Nineteen small factory copies: each catalogue header with its least count, family 2 "Potages",
  /// recipe 2 "Velouté" in it with the text "Un velouté." at position 9, and no other record.
  explicit Bibliotheque(const std::string& nomDossier = "gastrelle");

  /// The family's or recipe's record number. These work on the `.DAT` files if they are there, else
  /// on the factory copies; counts in the headers follow. `image` goes into the pool as it stands.
  std::int32_t AjouteFamille(std::string_view nom);
  std::int32_t AjouteRecette(std::int32_t famille, std::string_view titre,
                             std::string_view texte = {}, std::string_view image = {});

  /// The 122 cheeses of the factory, "Fromage 002" to "Fromage 123" after their record numbers:
  /// cow's milk, nothing else stated.
  void GarnitFromages();
  /// A cheese behind the last one: `actif` and the reference of its notes are set here.
  std::int32_t AjouteFromage(RecFromage fromage, std::string_view notes = {});

  /// The protected menus (GLM1) or tips (GLT1) of the factory, "Fiche 002" and so on after their
  /// record numbers, without a text.
  void GarnitFiches(Donnees fiches);
  /// A menu or a tip behind the last one.
  std::int32_t AjouteFiche(Donnees fiches, std::string_view titre, std::string_view texte = {});

  /// The 27 regions of the factory, "Région 002" to "Région 028", and its 563 wines, "Vin 002" to
  /// "Vin 564", after their record numbers: in turn in each region, without a note or a bottle.
  void GarnitVins();
  /// A region behind the last one.
  std::int32_t AjouteRegion(std::string_view nom);
  /// A wine behind the last one: `actif` and the references of its texts are set here.
  std::int32_t AjouteVin(RecVin vin, std::string_view notes = {}, std::string_view notesCave = {});
  /// The 3 categories of the factory, "Catégorie 002" to "Catégorie 004", and its 14 favourites,
  /// "Favori 002" to "Favori 015", after their record numbers: in turn in each category, without a
  /// text.
  void GarnitFavoris();
  /// A category behind the last one.
  std::int32_t AjouteCategorie(std::string_view nom);
  /// A favourite behind the last one: `actif` and the references of its texts are set here.
  std::int32_t AjouteFavori(RecFavori favori, std::string_view adresse = {},
                            std::string_view notes = {});
  /// The vintages from 1928 on, whose grades follow each other from year to year and from area to
  /// area: 1928 begins with 0, 1, 2, 3, 4, 5, 0, 1, 2.
  void GarnitMillesimes(int annees = 95);

  /// What is to be bought in an aisle, counted from 0, behind the texts of the other ones.
  void AjouteCourses(std::size_t rayon, std::string_view texte);

  /// The factory copies of the program's folder in place of the small ones.
  void GarnitDeFabrique(const std::filesystem::path& dossierDuProgramme);

  /// Fills every catalogue that has a window: the factory's records, and one of the user's that
  /// stands first in its list. His recipe has a picture. The last aisle and the notes hold a text.
  void Garnit();

  /// Runs the start; the files are then open in `module`. Fails the test if it doesn't get to the
  /// frame.
  void Demarre();

  /// A second look at the same folder, as the next start of the program has it.
  void Redemarre();

  DossierEssai dossier;
  DisqueEssai disque{dossier.chemin()};
  MessagesEssai messages;
  PointeurEssai pointeur;
  HorlogeEssai horloge;
  AssociationEssai association;
  SonEssai son;
  ProcessusEssai processus;
  ImprimantesEssai imprimantes;
  std::unique_ptr<Module1> module;

 private:
  [[nodiscard]] std::string NomPresent(Donnees fichier) const;
  std::unique_ptr<Module1> NouveauModule();
};

}  // namespace gastrelle::essai
