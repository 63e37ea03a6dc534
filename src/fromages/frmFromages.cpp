#include "fromages/frmFromages.h"

#include <array>

#include "data/ProceduresFichiers.h"
#include "fromages/CatalogueFromages.h"
#include "fromages/frmFromagesAjouter.h"
#include "fromages/frmFromagesListe.h"
#include "fromages/frmFromagesModifier.h"
#include "fromages/frmFromagesSupprimer.h"
#include "fromages/frmFromagesTrier.h"

namespace gastrelle {
namespace {

constexpr std::array<DescriptionOnglet, 5> onglets{{
    {u"Liste", u"Les fromages mémorisées", u"Liste des fromages mémorisés", u"Bon appétit !",
     "fromages-liste", CreePage<frmFromages, frmFromagesListe>},
    {u"Ajouter", u"Ajouter un fromage", u"Ajout d'un fromage",
     u"Vous ajoutez un fromage à la base de données", "fromages-ajouter",
     CreePage<frmFromages, frmFromagesAjouter>},
    {u"Modifier", u"Modifier le fromage", u"Modification d'un fromage",
     u"Vous modifiez le fromage affiché", "fromages-modifier",
     CreePage<frmFromages, frmFromagesModifier>},
    {u"Supprimer", u"Supprimer le fromage", u"Suppression d'un fromage",
     u"Vous supprimez le fromage affiché", "fromages-supprimer",
     CreePage<frmFromages, frmFromagesSupprimer>},
    {u"Trier", u"Trier par lait", u"Tri des fromages", u"Vous triez les fromages par type de lait",
     "fromages-trier", CreePage<frmFromages, frmFromagesTrier>},
}};

// From the sorting only the list and the addition can be reached: change and deletion start from a
// cheese on display.
constexpr std::array<ChangementRefuse, 2> refus{{{5, 3}, {5, 4}}};

constexpr std::int16_t contexteBase = 20;
constexpr bool razReduite = true;
constexpr bool ligneDuLogo = true;

constexpr DescriptionFenetre description{"frmFromages", u"Les fromages", EntreeVue::fromages,
                                         contexteBase,  "logo-fromages", onglets,
                                         refus,         razReduite,      ligneDuLogo};

}  // namespace

frmFromages::frmFromages(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, description),
      liste_(static_cast<frmFromagesListe&>(Page(ongletListe))) {
  Garde(module, [&] {
    ExigeFichier(module, Donnees::GLF1);
    RechargeFromages();
  });
  liste_.ComboFromages->Choisit(0);
}

void frmFromages::RechargeFromages() {
  liste_.ComboFromages->Vide();
  liste_.ComboFromages->Ajoute(ListeFromages(module()));
}

void frmFromages::MontreFromage(std::int32_t numero) {
  const int indice = liste_.ComboFromages->IndiceDe(numero);
  ChoisitOnglet(ongletListe);
  liste_.ComboFromages->Choisit(indice);
}

std::string frmFromages::Annonce() {
  return std::to_string(module().bufFromage.nbActifs()) + std::string(CRLF) + "fromages";
}

}  // namespace gastrelle
