#include "fiches/frmTrucs.h"

#include <array>

#include "data/Texte1252.h"
#include "fiches/frmFichesAjouter.h"
#include "fiches/frmFichesModifier.h"
#include "fiches/frmFichesSupprimer.h"

namespace gastrelle {
namespace {

constexpr DescriptionFiches descriptionTrucs{
    .fichiers = fichiersTrucs,
    .liste = {"ComboTrucs", "txtTruc", u"Les &termes, trucs et astuces",
              u"Le terme, t&ruc ou astuce",
              u"Choisir dans la liste un terme, truc ou astuce pour en afficher ci-dessous son "
              u"détail"},
    .ajouter = {"txtSaisieNomTruc", "txtSaisieTrucAjouter", u"Le &terme, truc ou astuces",
                u"Le te&xte", u"Entrez le titre du nouveau terme, truc ou astuce",
                u"Entrez le texte du nouveau terme, truc ou astuce"},
    .modifier = {"txtSaisieNomTrucModifier", "txtSaisieTrucModifier",
                 u"Le &titre du terme, truc ou astuce", u"Le te&xte", u"Entrez la modification",
                 u"Entrez vos éventuelles modifications"},
    .supprimer = {"txtSaisieNomSupprimer", "txtSaisieTrucSupprimer",
                  u"Le &titre du terme, truc ou astuce", u"Le te&xte"},
    .annonce = "termes, trucs\r\net astuces",
    .sansTitreAjouter = "Il faut donner un titre au nouveau terme, truc ou astuce.",
    .sansTitreModifier = "Il faut donner un titre au terme, truc ou astuce.",
    .questionSupprimer = "Etes-vous sûr de vouloir supprimer ce terme, truc ou astuce ?"_1252,
    .infobulleSupprimer = u"Supprimer le teme, truc ou astuce affiché",
    .infobulleProtegee = u"Ce terme, truc ou astuce ne peut être supprimé",
    .boutonProtege = BoutonProtege::cache,
    .vue = VueDe<VueTruc>,
};

constexpr std::array<DescriptionOnglet, 4> onglets{{
    {u"Liste", u"Les termes, truc et astuces mémorisés", u"Liste des termes, trucs et astuces",
     u"Tous les termes, trucs et astuces", "trucs-liste", CreeListe<descriptionTrucs>},
    {u"Ajouter", u"Ajouter une famille de recettes ou une recette",
     u"Ajout d'un terme, truc ou astuce",
     u"Vous ajoutez un terme, truc ou astuce à la base de données", "trucs-ajouter",
     CreePage<frmFiches, frmFichesAjouter>},
    {u"Modifier", u"Modifier le nom de la famille de recettes ou une recette",
     u"Modification d'un terme, truc ou astuce", u"Vous modifiez le terme, truc ou astuce affiché",
     "trucs-modifier", CreePage<frmFiches, frmFichesModifier>},
    {u"Supprimer", u"Supprimer la famille de recettes ou la recette",
     u"Suppression d'un terme, truc ou astuce", u"Vous supprimez le terme, truc ou astuce affiché",
     "trucs-supprimer", CreePage<frmFiches, frmFichesSupprimer>},
}};

constexpr DescriptionFenetre fenetre{.nom = "frmTrucs",
                                     .titre = u"Les termes, trucs et astuces",
                                     .vue = EntreeVue::termesTrucsAstuces,
                                     .logo = "logo-trucs"};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = {}};

}  // namespace

frmTrucs::frmTrucs(Module1& module, Cadre& cadre) : frmFiches(module, cadre, fenetre, jeu) {}

}  // namespace gastrelle
