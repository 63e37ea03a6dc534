// A printer that keeps what it was given, page by page, and fails where a test asks. Its letters
// are all of one width: ten twips a point, so that a page holds a round number of them. Its own
// font has 12 points.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plateforme/Imprimante.h"

namespace gastrelle::essai {

/// What was drawn with one call.
struct MotTrace {
  std::string texte;  ///< Windows-1252
  double x;
  double y;

  bool operator==(const MotTrace&) const = default;
};

struct PoliceVue {
  std::string nom;
  double corps;

  bool operator==(const PoliceVue&) const = default;
};

/// A document, sent or not.
struct TravailVu {
  std::vector<std::vector<MotTrace>> pages;
  std::vector<PoliceVue> polices;  ///< each change of font, in order
  double hauteurLigne = 0;         ///< in the last font, twips
  bool envoye = false;

  /// The lines of a page, counted from 0, from its head to the last one with a word: what was drawn
  /// at one height, joined. A height where nothing was drawn is an empty line. For a document that
  /// has one font.
  [[nodiscard]] std::vector<std::string> Lignes(std::size_t page) const;
  /// Those of all pages.
  [[nodiscard]] std::vector<std::string> ToutesLignes() const;
};

class ImprimantesEssai final : public AccesImprimante {
 public:
  static constexpr double twipsParPoint = 10;  ///< width of a letter

  std::unique_ptr<Imprimante> ParDefaut() override;

  bool presente = true;
  double largeur = 10900;  ///< of the printable part of the page, in twips
  double hauteur = 15840;
  double interligne = 24;  ///< height of a line, in twips a point
  std::vector<TravailVu> travaux;
  int demandes = 0;  ///< how many times the printer was asked for

  /// One line a call of the printer, in order: "police Times New Roman 10", "page",
  /// "trace Gastrelle ", "envoie"; measures are counted only.
  std::vector<std::string> journal;
  std::size_t mesures = 0;
  /// The n-th line of the journal from now on (1: the next one) is a call that fails.
  void EchoueALAppel(std::size_t n) { defaut_ = journal.size() + n; }
  /// The n-th measure from now on fails.
  void EchoueALaMesure(std::size_t n) { defautMesure_ = mesures + n; }
  /// Runs at every call, with its line of the journal.
  std::function<void(const std::string& ligne)> pendant;

  /// Notes a call; throws if it has to fail.
  void Note(const std::string& ligne);
  /// Counts a measure and hands it out; throws if it has to fail.
  double Mesure(double twips);

 private:
  std::optional<std::size_t> defaut_;
  std::optional<std::size_t> defautMesure_;
};

}  // namespace gastrelle::essai
