#include <regex>
#include <set>

#include "usine/Accord.h"

namespace gastrelle::usine {
namespace {

/// Goes through the wines named in the menus, the cheeses and the recipes.
template <class Fonction>
void PourChaqueCitation(const Ouvrages& ouvrages, const Appellations& appellations,
                        Fonction&& fonction) {
  for (const auto* catalogue : {&ouvrages.menus, &ouvrages.fromages, &ouvrages.recettes}) {
    for (const Notice& notice : *catalogue) {
      for (const Appellations::Citation& citation : appellations.Dans(notice.texte)) {
        fonction(notice, citation);
      }
    }
  }
}

}  // namespace

Desaccords VinsSansFiche(const Ouvrages& ouvrages, const Appellations& appellations) {
  Desaccords desaccords;
  PourChaqueCitation(ouvrages, appellations, [&](const Notice& notice, const auto& citation) {
    if (citation.fiche == nullptr) {
      desaccords.push_back(notice.nom + " : " + citation.nom + " n'a pas de fiche");
    }
  });
  return desaccords;
}

Desaccords VinsAConnaitre(const Ouvrages& ouvrages, const Appellations& appellations) {
  std::set<std::string> noms;
  PourChaqueCitation(ouvrages, appellations, [&](const Notice& /*notice*/, const auto& citation) {
    if (!citation.connue) {
      noms.insert(citation.nom);
    }
  });
  return {noms.begin(), noms.end()};
}

namespace {

void CompareChaleur(const Notice& notice, const ChaleurDite& dite, const Appellations& appellations,
                    Desaccords& desaccords) {
  for (const Appellations::Citation& citation : appellations.Dans(dite.avant)) {
    const std::vector<Etendue> siennes =
        citation.fiche == nullptr ? std::vector<Etendue>{} : Chaleurs(citation.fiche->texte);
    if (!dite.etendue.TientDans(siennes)) {
      desaccords.push_back(notice.nom + " : " + citation.nom + " à " + dite.etendue.EnTexte() +
                           ", sa fiche dit autrement");
    }
  }
}

}  // namespace

Desaccords ChaleursDeService(const Ouvrages& ouvrages, const Appellations& appellations) {
  static const std::regex boissons("(Vins?|Boissons?) : .*");
  constexpr int plusChaudQueToutVin = 20;
  Desaccords desaccords;
  for (const Notice& menu : ouvrages.menus) {
    for (const std::string& service : Services(menu)) {
      std::smatch lues;
      const std::string bues = std::regex_search(service, lues, boissons) ? lues[0] : std::string();
      for (const ChaleurDite& dite : ChaleursDites(bues)) {
        if (appellations.Dans(dite.avant).empty() &&
            !Dit(dite.avant, {"cidre", "poiré", "bière", "porto", "xérès", "madère", "même"})) {
          desaccords.push_back(menu.nom + " : rien de connu à " + dite.etendue.EnTexte() +
                               " dans [" + dite.avant + "]");
        }
        CompareChaleur(menu, dite, appellations, desaccords);
      }
    }
  }
  for (const auto* catalogue : {&ouvrages.fromages, &ouvrages.recettes}) {
    for (const Notice& notice : *catalogue) {
      for (const std::string& phrase : Morceaux(notice.texte, ".\n")) {
        for (const ChaleurDite& dite : ChaleursDites(phrase)) {
          if (dite.etendue.a <= plusChaudQueToutVin) {
            CompareChaleur(notice, dite, appellations, desaccords);
          }
        }
      }
    }
  }
  return desaccords;
}

}  // namespace gastrelle::usine
