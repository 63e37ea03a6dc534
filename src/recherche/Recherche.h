// The search through a catalogue of texts, one hit at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "data/Contextes.h"
#include "data/LectureEnAvance.h"
#include "data/Module1.h"
#include "recherche/TexteCherche.h"

namespace gastrelle {

/// A catalogue that can be searched: where its records and its texts lie.
struct CatalogueCherche {
  EntreeVue vue;
  Donnees fiches;
  Donnees textes;
  std::variant<FichierEnregistrements<RecRecette> Module1::*,
               FichierEnregistrements<RecFiche> Module1::*>
      tampon;
  Reserve Module1::*reserve;
};

inline constexpr std::array<CatalogueCherche, 3> cataloguesCherches{{
    {EntreeVue::recettes, Donnees::GLR2, Donnees::GLR3, &Module1::bufRecette,
     &Module1::textesRecettes},
    {EntreeVue::menus, Donnees::GLM1, Donnees::GLM2, &Module1::bufMenu, &Module1::textesMenus},
    {EntreeVue::termesTrucsAstuces, Donnees::GLT1, Donnees::GLT2, &Module1::bufTruc,
     &Module1::textesTrucs},
}};

/// The catalogue of a window; it must be one of the three.
[[nodiscard]] const CatalogueCherche& CatalogueDe(EntreeVue vue);

/// A record that holds what is looked for.
struct Occurrence {
  std::int32_t numero;
  bool dansTitre;     ///< in the title; its text then isn't looked at
  std::string titre;  ///< trimmed if that is where it was found, else with the blanks of its field
  std::string texte;  ///< as stored, whole: up to `Reserve::plafond`
};

/// Records are examined in their order, the title before the text, each one once. The working
/// records of the catalogue stay as they are.
class Recherche {
 public:
  /// `texte` is trimmed and not empty.
  Recherche(Module1& module, const CatalogueCherche& catalogue, std::string_view texte);

  /// The next record that holds it, or nothing at the end of the data. The two files must still be
  /// there (the user is told when one isn't). `entreTemps` is called before each record. Throws
  /// on a failure.
  [[nodiscard]] std::optional<Occurrence> Suivante(const std::function<void()>& entreTemps = [] {});

  /// True where continuing ends without another look: the record examined last was the last live
  /// one, or the last but one of the file, whose very last record is then never examined.
  [[nodiscard]] bool EstFinie();

  /// What the user is told at the end.
  [[nodiscard]] std::string_view MessageDeFin() const;

 private:
  template <class T>
  std::optional<Occurrence> Cherche(FichierEnregistrements<T>& fichier,
                                    const std::function<void()>& entreTemps);
  template <class T>
  std::optional<Occurrence> Examine(const T& fiche);
  [[nodiscard]] bool EstDansTexte(std::int32_t position, std::int32_t longueur);
  [[nodiscard]] Reserve& reserve() { return module_.*catalogue_.reserve; }

  Module1& module_;
  const CatalogueCherche& catalogue_;
  TexteCherche cherche_;
  LectureEnAvance avance_;
  std::size_t taillePiece_;
  std::unique_ptr<char[]> piece_;  // NOLINT(modernize-avoid-c-arrays): of a text, as it is read
  std::int32_t numCourant_ = 1;    ///< of the record examined last
  std::int16_t vus_ = 0;           ///< live records examined so far
  bool trouves_ = false;
};

}  // namespace gastrelle
