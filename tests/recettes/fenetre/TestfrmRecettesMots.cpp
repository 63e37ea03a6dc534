// The words of the recipes window: tabs, headings, captions, tooltips.

#include "doublures/Mots.h"
#include "recettes/frmRecettes.h"

namespace gastrelle::essai {
namespace {

class MotsRecettes : public Mots<frmRecettes> {};

TEST_F(MotsRecettes, Onglets) {
  OuvreEtParcourt();
  AttendPages("Les recettes",
              {{"Liste", "Les recettes mémorisées", "Liste des recettes mémorisées",
                "Bon appétit !", "recettes-liste"},
               {"Ajouter", "Ajouter une famille de recettes ou une recette",
                "Ajout d'une famille ou d'une recette",
                "Vous ajoutez une recette à la base de données", "recettes-ajouter"},
               {"Modifier", "Modifier le nom de la famille de recettes ou une recette",
                "Modification d'une famille ou d'une recette",
                "Vous modifiez le nom de la famille ou la recette affichés", "recettes-modifier"},
               {"Supprimer", "Supprimer la famille de recettes ou la recette",
                "Suppression d'une famille ou d'une recette",
                "Vous supprimez la famille ou la recette affichés", "recettes-supprimer"},
               {"Alpha", "Toutes les recettes classées par ordre alphabétique",
                "Classement alphabétique de toutes les recettes",
                "Vous triez les recettes par ordre alphabétique croissant", "recettes-alpha"}});
}

TEST_F(MotsRecettes, Logos) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_EQ(LignesDuLogo(), QStringList{});
}

TEST_F(MotsRecettes, Controles) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte");
  OuvreEtParcourt();
  AttendControles({{"ComboFamilles", "Les familles de recettes", ""},
                   {"ComboRecettes", "Les recettes de la famille", ""},
                   {"txtRecette", "La recette", ""},
                   {"txtSaisieFamille", "La nouvelle famille", ""},
                   {"ComboFamillesAjouter", "La famille de la recette", ""},
                   {"txtSaisieNomRecette", "Le titre de la recette", ""},
                   {"txtSaisieRecetteAjouter", "Le texte de la recette", ""},
                   {"txtImageAjouter", "L'image associée", ""},
                   {"txtSaisieFamilleModifier", "Le nom de la famille", ""},
                   {"ComboFamillesModifier", "La famille de la recette", ""},
                   {"txtSaisieNomRecetteModifier", "Le titre de la recette", ""},
                   {"txtSaisieRecetteModifier", "Le texte de la recette", ""},
                   {"txtImageModifier", "L'image associée", ""},
                   {"lblFamilleSupprimer", "La famille", ""},
                   {"lblFamilleRecetteSupprimer", "La famille de la recette", ""},
                   {"lblTitreRecetteSupprimer", "Le titre de la recette", ""},
                   {"txtTexteRecetteSupprimer", "Le texte de la recette", ""},
                   {"lstRecettesTri", "Les 2 recettes", "Double clic pour afficher la recette"}});
}

TEST_F(MotsRecettes, Boutons) {
  OuvreEtParcourt();
  AttendBoutons(
      {{"cmdCameraListe", "Image", "Cliquez sur ce bouton pour voir l'image associée à la recette"},
       {"cmdImageAjouter", "Image...", "Rechercher une image"},
       {"cmdValideAjouter", "Valider", "Valider les saisies"},
       {"cmdEffacerAjouter", "Effacer", "Effacer toutes les saisies"},
       {"PictureWeb", "", "Cliquez ici pour rechercher de nouvelles recettes"},
       {"cmdImageModifier", "Image...", "Rechercher une image"},
       {"cmdValideModifier", "Valider", "Valider les saisies"},
       {"cmdEffacerModifier", "Réinitialiser", "Réinitialiser"},
       {"cmdSupprimer", "Supprimer", ""},
       {"cmdValideTri", "Afficher", "Afficher la recette sélectionnée"},
       {"cmdAideListe", "Aide", "Aide"},
       {"cmdAideAjouter", "Aide", "Aide"},
       {"cmdAideModifier", "Aide", "Aide"},
       {"cmdAideSupprimer", "Aide", "Aide"},
       {"cmdAideClassement", "Aide", "Aide"}});
}

TEST_F(MotsRecettes, Options) {
  OuvreEtParcourt();
  AttendBoutons({{"Option1(0)", "Une famille de recettes", ""},
                 {"Option1(1)", "Une recette", ""},
                 {"Option2(0)", "Le nom de la famille", ""},
                 {"Option2(1)", "La recette", ""},
                 {"Option3(0)", "La famille de recettes", ""},
                 {"Option3(1)", "La recette", ""}});
}

}  // namespace
}  // namespace gastrelle::essai
