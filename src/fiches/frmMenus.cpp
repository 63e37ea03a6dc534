#include "fiches/frmMenus.h"

#include <array>

#include "data/Texte1252.h"
#include "fiches/frmFichesAjouter.h"
#include "fiches/frmFichesModifier.h"
#include "fiches/frmFichesSupprimer.h"

namespace gastrelle {
namespace {

constexpr DescriptionFiches descriptionMenus{
    .fichiers = fichiersMenus,
    .liste = {"ComboMenus", "txtMenu", u"Les &menus", u"Le men&u",
              u"Choisir dans la liste un menu pour en afficher ci-dessous son détail"},
    .ajouter = {"txtSaisieNomMenu", "txtSaisieMenuAjouter", u"Le &titre du menu", u"Le men&u",
                u"Entrez le titre du nouveau menu", u"Entrez le texte du nouveau menu"},
    .modifier = {"txtSaisieNomMenuModifier", "txtSaisieMenuModifier", u"Le &titre du menu",
                 u"Le men&u", u"Entrez la modification", u"Entrez vos éventuelles modifications"},
    .supprimer = {"txtSaisieNomSupprimer", "txtSaisieMenuSupprimer", u"Le &titre du menu",
                  u"Le men&u"},
    .annonce = "menus",
    .sansTitreAjouter = "Il faut donner un titre au nouveau menu.",
    .sansTitreModifier = "Il faut donner un titre au menu.",
    .questionSupprimer = "Etes-vous sûr de vouloir supprimer ce menu ?"_1252,
    .infobulleSupprimer = u"Supprimer le menu affiché",
    .infobulleProtegee = u"Ce menu ne peut être supprimé",
    .boutonProtege = BoutonProtege::inactif,
    .vue = VueDe<VueMenu>,
};

constexpr std::array<DescriptionOnglet, 4> onglets{{
    {u"Liste", u"Les recettes mémorisées", u"Liste des menus mémorisés", u"Faites votre choix !",
     "menus-liste", CreeListe<descriptionMenus>},
    {u"Ajouter", u"Ajouter une famille de recettes ou une recette", u"Ajout d'un menu", u"",
     "menus-ajouter", CreePage<frmFiches, frmFichesAjouter>},
    {u"Modifier", u"Modifier le nom de la famille de recettes ou une recette",
     u"Modification d'un menu", u"", "menus-modifier", CreePage<frmFiches, frmFichesModifier>},
    {u"Supprimer", u"Supprimer la famille de recettes ou la recette", u"Suppression d'un menu", u"",
     "menus-supprimer", CreePage<frmFiches, frmFichesSupprimer>},
}};

constexpr DescriptionFenetre fenetre{
    .nom = "frmMenus", .titre = u"Les menus", .vue = EntreeVue::menus, .logo = "logo-menus"};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = {}};

}  // namespace

frmMenus::frmMenus(Module1& module, Cadre& cadre) : frmFiches(module, cadre, fenetre, jeu) {}

}  // namespace gastrelle
