#include "sortie/Entete.h"

namespace gastrelle {

std::string DateCourte(std::chrono::year_month_day date) {
  const auto jour = static_cast<unsigned>(date.day());
  const auto mois = static_cast<unsigned>(date.month());
  return std::to_string(jour) + '/' + std::to_string(mois) + '/' +
         std::to_string(static_cast<int>(date.year()));
}

std::string EnteteEdition(const Module1& module) {
  return std::string(titreApplication) + " (Edition du " +
         DateCourte(module.services.horloge.Aujourdhui()) + ")";
}

}  // namespace gastrelle
