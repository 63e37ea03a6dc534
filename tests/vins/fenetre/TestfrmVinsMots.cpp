// The words of the wines window: tabs, headings, captions, tooltips, help topics.

#include "doublures/Mots.h"
#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

class MotsVins : public Mots<frmVins> {
 protected:
  MotsVins() { b.GarnitVins(); }
};

TEST_F(MotsVins, Onglets) {
  OuvreEtParcourt();
  AttendPages(
      "Les vins",
      {{"Liste", "Les vins mémorisés", "Liste des vins mémorisés", "Bien sûr, avec modération !",
        "vins-liste"},
       {"Ajouter", "Ajouter une région d'origine ou un vin", "Ajout d'une région ou d'un vin",
        "Vous ajoutez une région ou un vin à la base de données", "vins-ajouter"},
       {"Modifier", "Modifier une région d'origine ou un vin",
        "Modification d'une région ou d'un vin",
        "Vous modifiez le nom de la région ou le vin affichés", "vins-modifier"},
       {"Supprimer", "Supprimer une région d'origine ou un vin",
        "Suppression d'une région ou d'un vin",
        "Vous supprimez le nom de la région ou le vin affichés", "vins-supprimer"},
       {"Trier", "Trier les vins par région d'origine",
        "Tri des vins par région et définir ma cave", "Vous triez les vins par région",
        "vins-trier"},
       {"Mes vins", "Ma cave par cru", "Le contenu de ma cave dans ce vin", "Votre cave par vin",
        "vins-cave"},
       {"Ma cave", "Toute ma cave", "Toute ma cave", "Toute votre cave !", "vins-toute-cave"}});
}

TEST_F(MotsVins, LaBandeDuLogoDitCeQueLaPageFait) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_EQ(LignesDuLogo(),
            (QStringList{Fr("Bien sûr, avec modération !"),
                         Fr("Vous ajoutez une région ou un vin à la base de données"),
                         Fr("Vous modifiez le nom de la région ou le vin affichés"),
                         Fr("Vous supprimez le nom de la région ou le vin affichés"),
                         Fr("Vous triez les vins par région"), "Votre cave par vin",
                         "Toute votre cave !"}));
}

TEST_F(MotsVins, LaBandeCompteLesCrusSurChaquePage) {
  OuvreEtParcourt();
  for (int onglet = 0; onglet < 7; ++onglet) {
    EXPECT_EQ(Texte(Le(("txtAnnonce(" + std::to_string(onglet) + ")").c_str())), "563\ncrus");
  }
  b.module->bufVin.nbActifs() = 1;
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(Texte(Le("txtAnnonce(0)")), "1\ncrus");
}

TEST_F(MotsVins, Controles) {
  OuvreEtParcourt();
  AttendControles({{"ComboVins", "Le vin", ""},
                   {"txtRegion", "Sa région d'origine", ""},
                   {"txtNotes", "Notes", ""},
                   {"txtSaisieRegion", "Le nom de la région", ""},
                   {"txtSaisieNomVin", "Le nom du vin", ""},
                   {"ComboRegionVinAjouter", "Sa région d'origine", ""},
                   {"txtSaisieNoteAjouter", "Notes", ""},
                   {"ComboRegionVinModifier(0)", "La région", ""},
                   {"txtSaisieRegionModifier", "Son nouveau nom", ""},
                   {"txtSaisieNomVinModifier", "Le nom du vin", ""},
                   {"ComboRegionVinModifier(1)", "Sa région d'origine", ""},
                   {"txtSaisieNoteModifier", "Notes", ""},
                   {"ComboRegionSupprimer", "La région", ""},
                   {"txNomVinSupprimer", "Le nom du vin", ""},
                   {"txtRegionVinSupprimer", "Sa région d'origine", ""},
                   {"txtNoteVinSupprimer", "Notes", ""},
                   {"ComboRegionVinTrier", "Les régions", ""},
                   {"lstTriVin", "Les vins", "Double-clic pour afficher la sélection"}});
  EXPECT_EQ(Texte(Le("Label2(10)")).remove(u'&'), Fr("Les régions"));
  EXPECT_EQ(Texte(Le("Label2(11)")).remove(u'&'), "Les vins");
}

TEST_F(MotsVins, Options) {
  OuvreEtParcourt();
  AttendBoutons({{"Option1(0)", "Une région d'origine", ""},
                 {"Option1(1)", "Un vin", ""},
                 {"Option2(0)", "Une région d'origine", ""},
                 {"Option2(1)", "Le vin", ""},
                 {"Option3(0)", "Une région d'origine", ""},
                 {"Option3(1)", "Le vin", ""}});
}

TEST_F(MotsVins, Boutons) {
  OuvreEtParcourt();
  AttendBoutons({{"cmdValideAjouter", "Valider", "Valider la saisie"},
                 {"cmdEffacerAjouter", "Effacer", "Effacer toutes les saisies"},
                 {"cmdValideModifier", "Valider", "Valider la saisie"},
                 {"cmdEffacerModifier", "Réinitialiser", "Réinitialiser"},
                 {"cmdValideSupprimer", "Supprimer", "Supprimer la région ou le vin"},
                 {"cmdActiver", "Afficher", "Afficher le vin sélectionné"},
                 {"cmdMaCave", "Ma cave", "Afficher ma cave en vin sélectionné"},
                 {"cmdAideListe", "Aide", "Aide"},
                 {"cmdAideAjouter", "Aide", "Aide"},
                 {"cmdAideModifier", "Aide", "Aide"},
                 {"cmdAideSupprimer", "Aide", "Aide"},
                 {"cmdAideTrier", "Aide", "Aide"},
                 {"cmdAideCave", "Aide", "Aide"},
                 {"cmdAideTouteMaCave", "Aide", "Aide"}});
}

}  // namespace
}  // namespace gastrelle::essai
