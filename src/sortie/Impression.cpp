#include "sortie/Impression.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "data/Surcharge.h"
#include "data/Texte1252.h"
#include "plateforme/ErreurExecution.h"
#include "sortie/ChoixFait.h"
#include "sortie/Entete.h"
#include "sortie/ImprimeTexte.h"
#include "sortie/LignesImprimees.h"

namespace gastrelle {
namespace {

constexpr double marge = 500;  // twips

/// What is said instead of printing; empty if there is something to print.
std::string_view RienAImprimer(const Vue& vue) {
  const Surcharge constat{
      [](const VueNotes& v) {
        return Rogne(v.texte).empty() ? "Aucun texte à imprimer"_1252 : std::string_view();
      },
      [](const VueCourses& v) {
        return v.rayons.empty() ? std::string_view("Liste d'achats vide.") : std::string_view();
      },
      [](const auto&) { return std::string_view(); },
  };
  return std::visit(constat, vue);
}

Police PoliceDe(const Vue& vue, const RecPreferences& preferences) {
  constexpr double courante = 10;
  constexpr double grande = 20;
  const bool enGrand = std::holds_alternative<VueRecette>(vue) && preferences.policeGrande != 0;
  return {std::holds_alternative<VueCave>(vue) ? "Courier New" : "Times New Roman",
          enGrand ? grande : courante};
}

/// Each line in its turn; a failure stops them, and what came before is sent all the same.
void Imprime(Module1& module, const LignesTexte& lignes, const Police& police) {
  const std::unique_ptr<Imprimante> imprimante = module.services.imprimante.ParDefaut();
  if (imprimante == nullptr) {
    return;
  }
  const auto imprimee = [&](std::string_view ligne) {
    return ImprimeTexte(*imprimante, police, marge, ligne);
  };
  static_cast<void>(imprimee(EnteteEdition(module)) &&
                    std::all_of(lignes.begin(), lignes.end(), imprimee));
  PasseOutre([&] { imprimante->PasseALaPage(); });
  PasseOutre([&] { imprimante->Finit(); });
}

}  // namespace

void ImprimeVue(Module1& module, const Vue& vue) {
  Services& services = module.services;
  services.pointeur.Sablier();
  const LignesTexte lignes = LignesImprimees(vue);
  const std::string_view constat = RienAImprimer(vue);
  if (ChoixFait(vue) && constat.empty() && !lignes.empty()) {
    Imprime(module, lignes, PoliceDe(vue, module.prefs[0]));
  }
  services.pointeur.Normal();
  if (!ChoixFait(vue)) {
    services.messages.Bip();
  }
  if (!constat.empty()) {
    services.messages.Informe(constat, Icone::information);
  }
}

}  // namespace gastrelle
