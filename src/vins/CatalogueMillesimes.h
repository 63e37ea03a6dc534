// The vintage chart: a year after the other from 1928 on, nine areas a year, a grade for each. The
// file holds nothing but that; a year is the place of its record. Years are added at the end and
// graded again, never deleted. Everything here throws ErreurExecution on a failure, and what was
// written before it stays.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "data/Module1.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// An area: what it is called (Windows-1252), and its grade in a record.
struct Cru {
  std::string_view nom;
  std::int16_t RecMillesime::*degre;
};

inline constexpr std::array<Cru, 9> crus{{
    {"Bordeaux rouges", &RecMillesime::bordeauxRouges},
    {"Bordeaux blancs", &RecMillesime::bordeauxBlancs},
    {"Bourgognes rouges", &RecMillesime::bourgognesRouges},
    {"Bourgognes blancs", &RecMillesime::bourgognesBlancs},
    {"Crus des Côtes du Rhône"_1252, &RecMillesime::crusDesCotesDuRhone},
    {"Alsace", &RecMillesime::alsace},
    {"Pouilly sur Loire / Sancerre", &RecMillesime::pouillySancerre},
    {"Anjou / Touraine / Muscadet", &RecMillesime::anjouTouraineMuscadet},
    {"Crus du Beaujolais", &RecMillesime::crusDuBeaujolais},
}};

/// A grade: how a choice of grades calls it, and how the chart does (Windows-1252).
struct Degre {
  std::string_view choix;
  std::string_view entete;
};

inline constexpr std::int16_t nonClasse = 0;

/// The grades, by the number that stands on file. "Non classé" has no column in the chart.
inline constexpr std::array<Degre, 6> degres{{
    {"Non classé"_1252, "Non classé"_1252},
    {"Petite année"_1252, "Petite année"_1252},
    {"Année moyenne"_1252, "Année moyenne"_1252},
    {"Bonne année"_1252, "Bonne année"_1252},
    {"Grande année"_1252, "Grande année"_1252},
    {"Exceptionnel", "Exceptionnelle"},
}};

/// True for the number of a grade, "Non classé" included.
constexpr bool EstUnDegre(std::int16_t valeur) {
  return valeur >= 0 && static_cast<std::size_t>(valeur) < degres.size();
}

/// The year of a record.
constexpr int Annee(std::int32_t numero) {
  constexpr int avantLaPremiere = 1927;
  return avantLaPremiere + numero;
}

/// The grades of one year, in the order of the areas, as on file: not always those of the scale.
using Classement = std::array<std::int16_t, crus.size()>;

/// How many years the open file holds: its whole records.
std::int32_t NombreAnnees(Module1& module);

/// The grades of an area (by its index), one a year from 1928 on; 0 stands for whatever isn't on
/// the scale. The years are read one after the other into the working record. The file must still
/// be there (the user is told when it isn't); one without a whole year is error 53, and one with
/// more years than any chart (a million) a failure.
std::vector<std::int16_t> DegresDuCru(Module1& module, std::size_t cru);

/// Reads the year of a record into the working record. The file must still be there.
Classement LitAnnee(Module1& module, std::int32_t numero);

/// The year that the working record holds.
Classement AnneeLue(Module1& module);

/// Puts a year behind the last one, through the working record. The file must still be there.
void AjouteAnnee(Module1& module, const Classement& classement);

/// Writes the year of a record anew, through the working record. The file must still be there.
void ChangeAnnee(Module1& module, std::int32_t numero, const Classement& classement);

}  // namespace gastrelle
