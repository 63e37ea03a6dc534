#include "vins/Cave.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr double plusGrandNombre = 32767;

bool EstChiffre(char c) {
  return c >= '0' && c <= '9';
}

/// The value of a text that reads as a number as a whole: sign, digits, a decimal comma or point,
/// an exponent.
std::optional<double> Valeur(std::string_view texte) {
  std::string chiffres(texte);
  std::replace(chiffres.begin(), chiffres.end(), ',', '.');
  if (chiffres.starts_with('+')) {
    chiffres.erase(0, 1);
  }
  const std::size_t premier = chiffres.find_first_not_of("-.");
  if (premier == std::string::npos || !EstChiffre(chiffres[premier])) {
    return std::nullopt;  // neither "inf" nor "nan" is a number here
  }
  double valeur = 0;
  const char* fin = chiffres.data() + chiffres.size();
  const auto [lu, erreur] = std::from_chars(chiffres.data(), fin, valeur);
  return erreur == std::errc() && lu == fin ? std::optional(valeur) : std::nullopt;
}

}  // namespace

Bouteilles BouteillesDe(const RecVin& vin) {
  Bouteilles bouteilles{};
  std::transform(couleursVin.begin(), couleursVin.end(), bouteilles.begin(),
                 [&](const CouleurVin& couleur) { return vin.*couleur.nombre; });
  return bouteilles;
}

Bouteilles BouteillesCourantes(Module1& module) {
  return BouteillesDe(module.bufVin.courant());
}

bool EstEntier(std::string_view texte) {
  return std::all_of(texte.begin(), texte.end(), EstChiffre);
}

int RefusDuNombre(std::string_view texte) {
  const std::optional<double> valeur = Valeur(texte);
  if (!valeur) {
    return 1;
  }
  return (EstEntier(texte) ? 0 : 1) + (*valeur > plusGrandNombre ? 1 : 0);
}

std::int16_t NombreSaisi(std::string_view texte) {
  std::int16_t nombre = 0;
  const std::errc erreur = std::from_chars(texte.data(), texte.data() + texte.size(), nombre).ec;
  if (erreur == std::errc::result_out_of_range) {
    throw ErreurExecution(Panne::depassement);
  }
  return nombre;
}

void ExigePourCave(Module1& module) {
  ExigeFichier(module, Donnees::GLV2);
  ExigeFichier(module, Donnees::GLV3);
}

void EcritCave(Module1& module, std::int32_t numero, const Bouteilles& bouteilles,
               std::optional<std::string_view> notes) {
  RecVin& vin = module.bufVin.courant();
  for (std::size_t i = 0; i < couleursVin.size(); ++i) {
    vin.*couleursVin[i].nombre = bouteilles[i];
  }
  if (notes) {
    module.textesVins.Remplace({vin.posNotesCave, vin.lgNotesCave}, *notes);
  }
  module.bufVin.EcritCourant(numero);
}

Liste VinsEnCave(Module1& module) {
  ExigeFichier(module, Donnees::GLV2);
  Liste vins;
  AjouteVivants(module.bufVin, module.bufVin.courant(), vins, [](const RecVin& vin) {
    return std::any_of(couleursVin.begin(), couleursVin.end(),
                       [&](const CouleurVin& couleur) { return vin.*couleur.nombre > 0; });
  });
  return vins;
}

}  // namespace gastrelle
