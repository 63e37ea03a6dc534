#include "sortie/ImprimeTexte.h"

#include <algorithm>

#include "data/Messages.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

/// Takes off the head of a text what ends before `fin`.
std::string_view Prend(std::string_view& reste, std::size_t fin) {
  const std::string_view tete = reste.substr(0, fin);
  reste.remove_prefix(tete.size());
  return tete;
}

std::string_view PrendLigne(std::string_view& reste) {
  const std::string_view ligne = Prend(reste, reste.find(CRLF));
  reste.remove_prefix(std::min(CRLF.size(), reste.size()));
  return ligne;
}

/// The blank behind a word belongs to it.
std::string_view PrendMot(std::string_view& reste) {
  const std::size_t blanc = reste.find(' ');
  return Prend(reste, blanc == std::string_view::npos ? blanc : blanc + 1);
}

void ImprimeMot(Imprimante& imprimante, const Police& police, double marge, std::string_view mot) {
  if (imprimante.LargeurTexte(mot) + imprimante.x() > imprimante.Largeur()) {
    imprimante.PasseALaLigne();
    // Points against twips: the rest is left to the printer's own change of page.
    if (imprimante.y() + police.corps > imprimante.Hauteur()) {
      imprimante.PasseALaPage();
    }
    imprimante.PoseX(marge);
  }
  imprimante.Imprime(mot);
}

}  // namespace

bool ImprimeTexte(Imprimante& imprimante, const Police& police, double marge,
                  std::string_view texte) {
  PasseOutre([&] { imprimante.PosePolice(police); });
  return Reussit([&] {
    while (!texte.empty()) {
      imprimante.PoseX(marge);
      for (std::string_view ligne = PrendLigne(texte); !ligne.empty();) {
        ImprimeMot(imprimante, police, marge, PrendMot(ligne));
      }
      imprimante.PasseALaLigne();
    }
  });
}

}  // namespace gastrelle
