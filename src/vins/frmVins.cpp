#include "vins/frmVins.h"

#include <array>

#include "vins/frmVinsAjouter.h"
#include "vins/frmVinsCave.h"
#include "vins/frmVinsListe.h"
#include "vins/frmVinsModifier.h"
#include "vins/frmVinsSupprimer.h"
#include "vins/frmVinsTouteCave.h"
#include "vins/frmVinsTrier.h"

namespace gastrelle {
namespace {

constexpr std::array<DescriptionOnglet, 7> onglets{{
    {u"Liste", u"Les vins mémorisés", u"Liste des vins mémorisés", u"Bien sûr, avec modération !",
     "vins-liste", CreePage<frmVins, frmVinsListe>},
    {u"Ajouter", u"Ajouter une région d'origine ou un vin", u"Ajout d'une région ou d'un vin",
     u"Vous ajoutez une région ou un vin à la base de données", "vins-ajouter",
     CreePage<frmVins, frmVinsAjouter>},
    {u"Modifier", u"Modifier une région d'origine ou un vin",
     u"Modification d'une région ou d'un vin",
     u"Vous modifiez le nom de la région ou le vin affichés", "vins-modifier",
     CreePage<frmVins, frmVinsModifier>},
    {u"Supprimer", u"Supprimer une région d'origine ou un vin",
     u"Suppression d'une région ou d'un vin",
     u"Vous supprimez le nom de la région ou le vin affichés", "vins-supprimer",
     CreePage<frmVins, frmVinsSupprimer>},
    {u"Trier", u"Trier les vins par région d'origine",
     u"Tri des vins par région et définir ma cave", u"Vous triez les vins par région", "vins-trier",
     CreePage<frmVins, frmVinsTrier>},
    {u"Mes vins", u"Ma cave par cru", u"Le contenu de ma cave dans ce vin", u"Votre cave par vin",
     "vins-cave", CreePage<frmVins, frmVinsCave>},
    {u"Ma cave", u"Toute ma cave", u"Toute ma cave", u"Toute votre cave !", "vins-toute-cave",
     CreePage<frmVins, frmVinsTouteCave>},
}};

// From the sorting, change, deletion and cellar of a wine are reached by its own buttons: they
// start from the wine on display, which isn't the one selected there.
constexpr std::array<ChangementRefuse, 3> refus{{{5, 3}, {5, 4}, {5, 6}}};

constexpr DescriptionFenetre fenetre{.nom = "frmVins",
                                     .titre = u"Les vins",
                                     .vue = EntreeVue::vins,
                                     .logo = "logo-vins",
                                     .razReduite = true};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = refus, .ligneDuLogo = true};

}  // namespace

frmVins::frmVins(Module1& module, Cadre& cadre) : FenetreOnglets(module, cadre, fenetre, jeu) {
  liste().Charge();
}

frmVinsListe& frmVins::liste() {
  return static_cast<frmVinsListe&>(Page(ongletListe));
}

void frmVins::MontreEnregistrement(std::int32_t numero) {
  MontreDansListe(*liste().ComboVins, numero);
}

std::string frmVins::Annonce() {
  return std::to_string(module().bufVin.nbActifs()) + std::string(CRLF) + "crus";
}

bool frmVins::PermetOnglet(int vers) {
  const bool retenu = ongletCourant() == ongletCaveDuVin &&
                      !static_cast<frmVinsCave&>(Page(ongletCaveDuVin)).PermetDeQuitter();
  return !retenu && FenetreOnglets::PermetOnglet(vers);
}

}  // namespace gastrelle
