// The three catalogues that can be searched, with records of a test's own.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "recherche/Recherche.h"

namespace gastrelle::essai {

struct FicheEssai {
  std::string titre;
  std::string texte = {};
  bool vivante = true;
};

/// `operation` on the record file of a catalogue.
template <class Operation>
auto AvecFiches(Module1& module, const CatalogueCherche& catalogue, Operation&& operation) {
  return std::visit([&](auto tampon) { return operation(module.*tampon); }, catalogue.tampon);
}

/// Writes the records from number 2 on, their texts one behind the other, and counts the live ones
/// in the header in memory.
inline void PoseFiches(Bibliotheque& b, const CatalogueCherche& catalogue,
                       const std::vector<FicheEssai>& fiches) {
  AvecFiches(*b.module, catalogue, [&](auto& fichier) {
    std::int32_t numero = 2;
    fichier.nbActifs() = 0;
    for (const FicheEssai& fiche : fiches) {
      auto e = fichier.courant();
      e = {};
      e.actif = fiche.vivante ? vivant : supprime;
      NomOuSignature(e) = fiche.titre;
      if (!fiche.texte.empty()) {
        ((*b.module).*catalogue.reserve).Ajoute({e.posTexte, e.lgTexte}, fiche.texte);
      }
      fichier.Ecrit(numero++, e);
      fichier.nbActifs() = Tenu<std::int16_t>(fichier.nbActifs() + (fiche.vivante ? 1 : 0));
    }
  });
  b.disque.OublieJournal();
}

class CatalogueEssai : public testing::TestWithParam<std::size_t> {
 protected:
  void SetUp() override { b.Demarre(); }

  static const CatalogueCherche& catalogue() { return cataloguesCherches.at(GetParam()); }
  static std::string NomFiches() { return Nom(catalogue().fiches); }
  static std::string NomTextes() { return Nom(catalogue().textes); }

  void Pose(const std::vector<FicheEssai>& fiches) { PoseFiches(b, catalogue(), fiches); }
  template <class Operation>
  auto Avec(Operation&& operation) {
    return AvecFiches(*b.module, catalogue(), std::forward<Operation>(operation));
  }
  /// Changes a record on file.
  template <class Changement>
  void Change(std::int32_t numero, Changement&& changement) {
    Avec([&](auto& fichier) {
      auto e = fichier.courant();
      fichier.Lit(numero, e);
      changement(e);
      fichier.Ecrit(numero, e);
    });
    b.disque.OublieJournal();
  }
  void PointeVers(std::int32_t numero, std::int32_t position, std::int32_t longueur) {
    Change(numero, [&](auto& e) {
      e.posTexte = position;
      e.lgTexte = longueur;
    });
  }
  void PoseCompte(std::int16_t compte) {
    Avec([&](auto& fichier) { fichier.nbActifs() = compte; });
  }

  Recherche Cherche(std::string_view quoi) { return {*b.module, catalogue(), quoi}; }
  /// The first hit of a search of its own.
  std::optional<Occurrence> Premiere(std::string_view quoi) { return Cherche(quoi).Suivante(); }
  /// The numbers of all hits as a user who goes on gets them, and how it ends.
  std::vector<std::int32_t> Toutes(std::string_view quoi) {
    Recherche recherche = Cherche(quoi);
    std::vector<std::int32_t> numeros;
    for (bool finie = false; !finie;) {
      const std::optional<Occurrence> trouvee = recherche.Suivante();
      if (trouvee) {
        numeros.push_back(trouvee->numero);
      }
      finie = !trouvee || recherche.EstFinie();
    }
    annonce = VersUtf8(recherche.MessageDeFin());
    return numeros;
  }

  Bibliotheque b;
  std::string annonce;  ///< what `Toutes` ended with
};

inline std::string NomDuCatalogue(const testing::TestParamInfo<std::size_t>& info) {
  constexpr std::array<const char*, 3> noms{"Recettes", "Menus", "Trucs"};
  return noms.at(info.param);
}

inline const auto lesTroisCatalogues = testing::Range<std::size_t>(0, cataloguesCherches.size());

constexpr const char* aucune = "Texte non trouvé";
constexpr const char* plusDAutre = "Pas d'autre occurrence";

}  // namespace gastrelle::essai
