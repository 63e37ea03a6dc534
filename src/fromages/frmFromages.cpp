#include "fromages/frmFromages.h"

#include <array>

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

constexpr DescriptionFenetre fenetre{.nom = "frmFromages",
                                     .titre = u"Les fromages",
                                     .vue = EntreeVue::fromages,
                                     .logo = "logo-fromages",
                                     .razReduite = true};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = refus, .ligneDuLogo = true};

}  // namespace

frmFromages::frmFromages(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, fenetre, jeu) {
  liste().Charge();
}

frmFromagesListe& frmFromages::liste() {
  return static_cast<frmFromagesListe&>(Page(ongletListe));
}

void frmFromages::MontreEnregistrement(std::int32_t numero) {
  MontreDansListe(*liste().ComboFromages, numero);
}

std::string frmFromages::Annonce() {
  return std::to_string(module().bufFromage.nbActifs()) + std::string(CRLF) + "fromages";
}

}  // namespace gastrelle
