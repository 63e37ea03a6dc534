// The catalogues of titled texts, menus and tips: one type over two pairs of files. A pool is
// written before the record that points into it, a record before the header that counts it.
// Everything here throws ErreurExecution on a failure, and what was written before it stays. Texts
// are Windows-1252.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

inline constexpr int limiteTitreFiche = 128;  ///< in characters
inline constexpr int limiteTexteFiche = 30000;

/// Where a catalogue keeps its records and its texts.
struct FichiersFiches {
  Donnees fiches;
  Donnees textes;
  FichierEnregistrements<RecFiche> Module1::*tampon;
  Reserve Module1::*reserve;
};

inline constexpr FichiersFiches fichiersMenus{Donnees::GLM1, Donnees::GLM2, &Module1::bufMenu,
                                              &Module1::textesMenus};
inline constexpr FichiersFiches fichiersTrucs{Donnees::GLT1, Donnees::GLT2, &Module1::bufTruc,
                                              &Module1::textesTrucs};

class CatalogueFiches {
 public:
  CatalogueFiches(Module1& module, const FichiersFiches& fichiers)
      : module_(module), fichiers_(fichiers) {}

  /// All live records, through the working record; the header's count is then put right. The file
  /// must still be there (the user is told when it isn't), here and below.
  [[nodiscard]] Liste ListeTitres();

  /// Reads a record into the working record, then its text, of which the first 30000 bytes count.
  [[nodiscard]] std::string LitTexte(std::int32_t numero);

  /// Puts a new record behind the last one. The pool must be there only for a text that isn't
  /// empty. Returns the record's number.
  std::int32_t Ajoute(std::string_view titre, std::string_view texte);

  /// Writes the selected record anew at its number. The working record must hold it as it was read:
  /// the old reference of its text is taken from there.
  void Change(std::int32_t numero, std::string_view titre, std::string_view texte);

  /// Deletes a record; its title and its text stay where they are.
  void Supprime(std::int32_t numero);

  /// True for the records that the factory brought, which can't be deleted.
  [[nodiscard]] bool Protegee(std::int32_t numero) const {
    return numero <= DernierProtege(fichiers_.fiches);
  }
  /// Number of live records, as the header in memory counts them.
  [[nodiscard]] std::int16_t Nombre() { return tampon().nbActifs(); }

 private:
  [[nodiscard]] FichierEnregistrements<RecFiche>& tampon() { return module_.*fichiers_.tampon; }
  [[nodiscard]] Reserve& reserve() { return module_.*fichiers_.reserve; }
  void ExigeFichiers(bool avecTexte);

  Module1& module_;
  const FichiersFiches& fichiers_;
};

}  // namespace gastrelle
