// The words of the favourites' window: tabs, headings, captions, tooltips, help topics.

#include "doublures/Mots.h"
#include "favoris/FavorisEssai.h"
#include "favoris/frmFavoris.h"

namespace gastrelle::essai {
namespace {

class MotsFavoris : public Mots<frmFavoris> {
 protected:
  MotsFavoris() { b.GarnitFavoris(); }
};

TEST_F(MotsFavoris, Onglets) {
  OuvreEtParcourt();
  AttendPages("Mes favoris",
              {{"Liste", "Les favoris mémorisés", "Liste de mes favoris", "Tous les favoris",
                "favoris-liste"},
               {"Ajouter", "Ajouter un favori", "Ajout d'une catégorie ou d'un  favori",
                "Vous ajoutez un favori à la base de données", "favoris-ajouter"},
               {"Modifier", "Modifier une catégorie ou le favori",
                "Modification d'une catégorie ou d'un favori", "Vous modifiez le favori affiché",
                "favoris-modifier"},
               {"Supprimer", "Supprimer le favori", "Suppression d'une catégorie ou d'un favori",
                "Vous supprimez le favori affiché", "favoris-supprimer"},
               {"Trier", "Trier par catégorie", "Tri des favoris",
                "Vous triez les favoris par genre", "favoris-trier"}});
}

TEST_F(MotsFavoris, LaBandeDuLogoNaQueSonImage) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_EQ(LignesDuLogo(), QStringList{});
}

TEST_F(MotsFavoris, LaBandeCompteLesFavorisSurChaquePage) {
  OuvreEtParcourt();
  b.module->bufFavori.nbActifs() = 1;
  CliqueOnglet(*fenetre, 2);
  for (int onglet = 0; onglet < 5; ++onglet) {
    EXPECT_EQ(Texte(Le(("txtAnnonce(" + std::to_string(onglet) + ")").c_str())), "1\nfavoris");
  }
}

TEST_F(MotsFavoris, Controles) {
  OuvreEtParcourt();
  AttendControles({{"ComboFavoris", "Les favoris", ""},
                   {"txtCategorie", "Catégorie", ""},
                   {"txtAdresse", "Adresse", ""},
                   {"txtTelephone", "Téléphone", ""},
                   {"txtFax", "Fax", ""},
                   {"txtEmail", "E-mail", ""},
                   {"txtWeb", "Site Web", ""},
                   {"txtNotes", "Notes", ""}});
  AttendControles(
      {{"txtCategorieAjouter", "La nouvelle catégorie",
        "Entrez le nom de la nouvelle catégorie de favoris"},
       {"ComboCategorieAjouter", "sa catégorie",
        "Choisir dans la liste une catégorie pour le nouveau favori"},
       {"txtNomFavoriAjouter", "son nom", "Entrez le nom du nouveau favori"},
       {"txtAdresseAjouter", "son adresse", "Entrez l'adresse du nouveau favori"},
       {"txtTelephoneAjouter", "son téléphone", "Entrez le n° de téléphone du nouveau favori"},
       {"txtFaxAjouter", "son fax", "Entrez le n° de fax du nouveau favori"},
       {"txtEmailAjouter", "son e-mail", "Entrez l'adresse électronique du nouveau favori"},
       {"txtWebAjouter", "son site Web", "Entrez l'URL du nouveau favori"},
       {"txtNoteAjouter", "notes", "Entrez les notes éventuelles liées au nouveau favori"}});
}

TEST_F(MotsFavoris, ControlesDuChangement) {
  constexpr const char* modification = "Entrez  la modification à apporter";
  OuvreEtParcourt();
  AttendControles(
      {{"ComboCategorieModifier", "La catégorie", "Choisir dans la liste la catégorie à modifier"},
       {"txtCategorieModifier", "Nouveau nom", "Entrez le nouveau nom de la catégorie ci-contre"},
       {"ComboCategorie1Modifier", "sa catégorie",
        "Choisir dans la liste une catégorie pour le favori"},
       {"txtNomFavoriModifier", "son nom", modification},
       {"txtAdresseModifier", "son adresse", modification},
       {"txtTelephoneModifier", "son téléphone", modification},
       {"txtFaxModifier", "son fax", modification},
       {"txtEmailModifier", "son e-mail", modification},
       {"txtWebModifier", "son site Web", modification},
       {"txtNoteModifier", "notes", modification}});
}

TEST_F(MotsFavoris, ControlesDeLaSuppressionEtDuTri) {
  OuvreEtParcourt();
  AttendControles(
      {{"ComboCategorieSupprimer", "La catégorie",
        "Choisir dans la liste la catégorie à supprimer"},
       {"txtCategorieFavoriSupprimer", "sa catégorie", ""},
       {"txtNomFavoriSupprimer", "son nom", ""},
       {"txtAdresseSupprimer", "son adresse", ""},
       {"txtTelephoneSupprimer", "son téléphone", ""},
       {"txtFaxSupprimer", "son fax", ""},
       {"txtEmailSupprimer", "son e-mail", ""},
       {"txtWebSupprimer", "son site Web", ""},
       {"txtNoteSupprimer", "notes", ""},
       {"ComboCategorieTrier", "Les catégories", "Choisir une catégorie dans la liste"},
       {"lstTriFavoris", "Les favoris", "Double clic pour afficher le favori sélectionné"}});
}

TEST_F(MotsFavoris, Options) {
  OuvreEtParcourt();
  AttendBoutons(
      {{"Option1(0)", "Une catégorie", "Cliquez ici pour ajouter une catégorie de favoris"},
       {"Option1(1)", "Un favori", "Cliquez ici pour ajouter un favori"},
       {"Option2(0)", "Une catégorie", "Cliquez ici pour modifier une catégorie de favoris"},
       {"Option2(1)", "Le favori", "Cliquez ici pour modifier le favori"},
       {"Option3(0)", "Une catégorie", "Cliquez ici pour modifier une catégorie de favoris"},
       {"Option3(1)", "Le favori", "Cliquez ici pour modifier le favori"}});
}

TEST_F(MotsFavoris, Boutons) {
  OuvreEtParcourt();
  AttendBoutons(
      {{"cmdValideAjouter", "Valider", "Valider la saisie liée au bouton d'option actif"},
       {"cmdEffacerAjouter", "Effacer", "Effacer toutes les saisies"},
       {"cmdValideModifier", "Valider", "Valider la saisie liée au bouton d'option actif"},
       {"cmdEffacerModifier", "Réinitialiser", "Réinitialiser"},
       {"cmdValideSupprimer", "Supprimer", "Valider la suppression liée au bouton d'option actif"},
       {"cmdActiver", "Afficher", "Afficher le favori sélectionné"},
       {"cmdAideListe", "Aide", "Aide"},
       {"cmdAideAjouter", "Aide", "Aide"},
       {"cmdAideModifier", "Aide", "Aide"},
       {"cmdAideSupprimer", "Aide", "Aide"},
       {"cmdAideTrier", "Aide", "Aide"}});
}

}  // namespace
}  // namespace gastrelle::essai
