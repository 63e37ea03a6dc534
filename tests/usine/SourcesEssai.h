// A temporary folder with the smallest sources that the factory compiler accepts, and verbs to put
// a fault into them.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "doublures/Bibliotheque.h"
#include "usine/Catalogues.h"

namespace gastrelle::usine {

/// Lets a failed expectation show a refusal as the program writes it.
void PrintTo(const Refus& refus, std::ostream* sortie);

/// A text of exactly `longueur` characters that no other number gives.
std::string TexteLong(std::size_t numero, std::size_t longueur);

class SourcesEssai {
 public:
  /// Family 2 "Potages" with the recipes "Velouté" and "Bisque" and the picture "potages.png",
  /// family 3 "Desserts" without a picture, with the recipe "Flan". Regions 2 to 28, "Région 1"
  /// and so on, each with its file: "Vin 1" in the first ("region-1") to "Vin 26", and the rest of
  /// the 563 in the last. "Fromage 1" to 122, "Menu 1" to 15, "Truc 1" to 167, categories
  /// "Catégorie 1" to 3, "Favori 1" to 14, the years 1928 to 1930.
  SourcesEssai();

  [[nodiscard]] std::string Lit(const std::string& fichier) const;
  void Ecrit(const std::string& fichier, std::string_view contenu) const;
  /// Replaces the first `ancien`, which must be there.
  void Remplace(const std::string& fichier, std::string_view ancien, std::string_view nouveau);
  void Ajoute(const std::string& fichier, std::string_view suite);
  void Supprime(const std::string& fichier) const;
  void AjouteImage(const std::string& image) const;
  void SupprimeImage(const std::string& image) const;

  /// The catalogues, and what was refused in `journal`.
  Catalogues Compile();
  /// One compilation by the program itself.
  struct Execution {
    int statut;
    std::vector<std::string> erreurs;  ///< its lines on standard error
    std::vector<std::string> ecrits;   ///< the files in its output folder, sorted
  };
  [[nodiscard]] Execution LanceFabrique() const;

  [[nodiscard]] std::filesystem::path sortie() const { return dossier_.chemin() / "sortie"; }

  Journal journal;

 private:
  essai::DossierEssai dossier_;
};

}  // namespace gastrelle::usine
