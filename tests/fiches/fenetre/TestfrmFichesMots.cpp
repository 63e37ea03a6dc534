// The words of the windows of menus and tips: tabs, headings, captions, tooltips, help topics.

#include "doublures/Mots.h"
#include "fiches/fenetre/FenetreFiches.h"

namespace gastrelle::essai {
namespace {

class MotsMenus : public Mots<frmMenus> {};
class MotsTrucs : public Mots<frmTrucs> {};

TEST_F(MotsMenus, Onglets) {
  OuvreEtParcourt();
  AttendPages("Les menus", {{"Liste", "Les recettes mémorisées", "Liste des menus mémorisés",
                             "Faites votre choix !", "menus-liste"},
                            {"Ajouter", "Ajouter une famille de recettes ou une recette",
                             "Ajout d'un menu", "", "menus-ajouter"},
                            {"Modifier", "Modifier le nom de la famille de recettes ou une recette",
                             "Modification d'un menu", "", "menus-modifier"},
                            {"Supprimer", "Supprimer la famille de recettes ou la recette",
                             "Suppression d'un menu", "", "menus-supprimer"}});
}

TEST_F(MotsMenus, LaBandeDuLogoAUneImageMaisPasDeLigne) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_THAT(LignesDuLogo(), testing::IsEmpty());
}

TEST_F(MotsMenus, Controles) {
  OuvreEtParcourt();
  AttendControles({{"ComboMenus", "Les menus",
                    "Choisir dans la liste un menu pour en afficher ci-dessous son détail"},
                   {"txtMenu", "Le menu", ""},
                   {"txtSaisieNomMenu", "Le titre du menu", "Entrez le titre du nouveau menu"},
                   {"txtSaisieMenuAjouter", "Le menu", "Entrez le texte du nouveau menu"},
                   {"txtSaisieNomMenuModifier", "Le titre du menu", "Entrez la modification"},
                   {"txtSaisieMenuModifier", "Le menu", "Entrez vos éventuelles modifications"},
                   {"txtSaisieNomSupprimer", "Le titre du menu", casMenus.protegee},
                   {"txtSaisieMenuSupprimer", "Le menu", casMenus.protegee}});
}

TEST_F(MotsMenus, Boutons) {
  OuvreEtParcourt();
  AttendInfobulles({{"cmdValideAjouter", "Valider les saisies"},
                    {"cmdEffacerAjouter", "Effacer toutes les saisies"},
                    {"cmdValideModifier", "Valider les saisies"},
                    {"cmdEffacerModifier", "Réinitialiser"},
                    {"cmdSupprimer", "Supprimer le menu affiché"},
                    {"cmdAideListe", "Aide"},
                    {"cmdAideAjouter", "Aide"},
                    {"cmdAideModifier", "Aide"},
                    {"cmdAideSupprimer", "Aide"}});
}

TEST_F(MotsTrucs, Onglets) {
  OuvreEtParcourt();
  AttendPages(
      "Les termes, trucs et astuces",
      {{"Liste", "Les termes, truc et astuces mémorisés", "Liste des termes, trucs et astuces",
        "Tous les termes, trucs et astuces", "trucs-liste"},
       {"Ajouter", "Ajouter une famille de recettes ou une recette",
        "Ajout d'un terme, truc ou astuce",
        "Vous ajoutez un terme, truc ou astuce à la base de données", "trucs-ajouter"},
       {"Modifier", "Modifier le nom de la famille de recettes ou une recette",
        "Modification d'un terme, truc ou astuce", "Vous modifiez le terme, truc ou astuce affiché",
        "trucs-modifier"},
       {"Supprimer", "Supprimer la famille de recettes ou la recette",
        "Suppression d'un terme, truc ou astuce", "Vous supprimez le terme, truc ou astuce affiché",
        "trucs-supprimer"}});
}

TEST_F(MotsTrucs, LaBandeDuLogoAUneImageMaisPasDeLigne) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_THAT(LignesDuLogo(), testing::IsEmpty());
}

TEST_F(MotsTrucs, Controles) {
  OuvreEtParcourt();
  AttendControles(
      {{"ComboTrucs", "Les termes, trucs et astuces",
        "Choisir dans la liste un terme, truc ou astuce pour en afficher ci-dessous "
        "son détail"},
       {"txtTruc", "Le terme, truc ou astuce", ""},
       {"txtSaisieNomTruc", "Le terme, truc ou astuces",
        "Entrez le titre du nouveau terme, truc ou astuce"},
       {"txtSaisieTrucAjouter", "Le texte", "Entrez le texte du nouveau terme, truc ou astuce"},
       {"txtSaisieNomTrucModifier", "Le titre du terme, truc ou astuce", "Entrez la modification"},
       {"txtSaisieTrucModifier", "Le texte", "Entrez vos éventuelles modifications"},
       {"txtSaisieNomSupprimer", "Le titre du terme, truc ou astuce", casTrucs.protegee},
       {"txtSaisieTrucSupprimer", "Le texte", casTrucs.protegee}});
}

TEST_F(MotsTrucs, Boutons) {
  OuvreEtParcourt();
  AttendInfobulles({{"cmdValideAjouter", "Valider les saisies"},
                    {"cmdEffacerAjouter", "Effacer toutes les saisies"},
                    {"cmdValideModifier", "Valider les saisies"},
                    {"cmdEffacerModifier", "Réinitialiser"},
                    {"cmdSupprimer", "Supprimer le teme, truc ou astuce affiché"},
                    {"cmdAideListe", "Aide"},
                    {"cmdAideAjouter", "Aide"},
                    {"cmdAideModifier", "Aide"},
                    {"cmdAideSupprimer", "Aide"}});
}

}  // namespace
}  // namespace gastrelle::essai
