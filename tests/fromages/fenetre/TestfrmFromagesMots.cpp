// The words and pictures of the cheeses window: tabs, headings, captions, tooltips, help topics.

#include <array>

#include "doublures/Mots.h"
#include "fromages/fenetre/FenetreFromages.h"

namespace gastrelle::essai {
namespace {

class MotsFromages : public Mots<frmFromages> {
 protected:
  MotsFromages() { b.GarnitFromages(); }

  /// The captions of a page with the fields of a cheese, each the buddy of its control.
  void AttendLegendes(int onglet, const std::array<const char*, 6>& champs) {
    SCOPED_TRACE(onglet);
    constexpr std::array<const char*, 6> legendes{
        "Le fromage", "Sa région d'origine", "Au lait de ", "de", "à", "Notes"};
    const QWidget& page = Le(("Frame1(" + std::to_string(onglet) + ")").c_str());
    QStringList seules;
    for (std::size_t i = 0; i < champs.size(); ++i) {
      EXPECT_EQ(LegendeDe(Trouve(page, champs[i])), Fr(legendes[i])) << champs[i];
    }
    for (const QLabel* etiquette : page.findChildren<QLabel*>()) {
      if (etiquette->buddy() == nullptr && etiquette->objectName().isEmpty()) {
        seules << etiquette->text();
      }
    }
    EXPECT_EQ(seules, QStringList{Fr("Meilleure période de dégustation ")});
  }
  QImage Image(const char* nom) { return Le<QLabel>(nom).pixmap().toImage(); }
};

TEST_F(MotsFromages, Onglets) {
  OuvreEtParcourt();
  AttendPages("Les fromages", {{"Liste", "Les fromages mémorisées", "Liste des fromages mémorisés",
                                "Bon appétit !", "fromages-liste"},
                               {"Ajouter", "Ajouter un fromage", "Ajout d'un fromage",
                                "Vous ajoutez un fromage à la base de données", "fromages-ajouter"},
                               {"Modifier", "Modifier le fromage", "Modification d'un fromage",
                                "Vous modifiez le fromage affiché", "fromages-modifier"},
                               {"Supprimer", "Supprimer le fromage", "Suppression d'un fromage",
                                "Vous supprimez le fromage affiché", "fromages-supprimer"},
                               {"Trier", "Trier par lait", "Tri des fromages",
                                "Vous triez les fromages par type de lait", "fromages-trier"}});
}

TEST_F(MotsFromages, LaBandeDuLogoDitCeQueLaPageFait) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_EQ(
      LignesDuLogo(),
      (QStringList{Fr("Bon appétit !"), Fr("Vous ajoutez un fromage à la base de données"),
                   Fr("Vous modifiez le fromage affiché"), Fr("Vous supprimez le fromage affiché"),
                   "Vous triez les fromages par type de lait"}));
}

TEST_F(MotsFromages, LaLigneDuLogoSeVoitSurChaquePage) {
  Ouvre();
  for (int onglet = 1; onglet <= 5; ++onglet) {
    CliqueOnglet(*fenetre, onglet);
    const QWidget& page = Le(("Frame1(" + std::to_string(onglet) + ")").c_str());
    EXPECT_TRUE(Trouve(page, "lblLigneLogo").isVisible()) << onglet;
  }
}

TEST_F(MotsFromages, Legendes) {
  OuvreEtParcourt();
  AttendLegendes(
      1, {"ComboFromages", "txtRegion", "txtLait", "txtPremierMois", "txtDernierMois", "txtNotes"});
  AttendLegendes(2, {"txtFromageAjouter", "txtRegionAjouter", "ComboLaitAjouter",
                     "ComboPremierMoisAjouter", "ComboDernierMoisAjouter", "txtNotesAjouter"});
  AttendLegendes(3, {"txtFromageModifier", "txtRegionModifier", "ComboLaitModifier",
                     "ComboPremierMoisModifier", "ComboDernierMoisModifier", "txtNotesModifier"});
  AttendLegendes(4, {"txtFromageSupprimer", "txtRegionSupprimer", "txtLaitSupprimer",
                     "txtPremierMoisSupprimer", "txtDernierMoisSupprimer", "txtNotesSupprimer"});
}

TEST_F(MotsFromages, Boutons) {
  OuvreEtParcourt();
  AttendInfobulles({{"cmdValideAjouter", "Valider la saisie"},
                    {"cmdEffacerAjouter", "Effacer toutes les saisies"},
                    {"cmdValiderModifier", "Valider la saisie"},
                    {"cmdEffacerModifier", "Réinitialiser"},
                    {"cmdSupprimer", "Supprimer le fromage affiché"},
                    {"cmdActiver", "Afficher le fromage sélectionné"},
                    {"cmdAideListe", "Aide"},
                    {"cmdAideAjouter", "Aide"},
                    {"cmdAideModifier", "Aide"},
                    {"cmdAideSupprimer", "Aide"},
                    {"cmdAide", "Aide"}});
}

TEST_F(MotsFromages, LaSourisEtLesTroisAnimauxOntChacunLeurImage) {
  OuvreEtParcourt();
  const std::array<QImage, 4> images{Image("PictureSouris"), Image("PictureAnimal(0)"),
                                     Image("PictureAnimal(1)"), Image("PictureAnimal(2)")};
  for (std::size_t i = 0; i < images.size(); ++i) {
    EXPECT_FALSE(images[i].isNull()) << i;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_NE(images[i], images[j]) << i << " et " << j;
    }
  }
}

}  // namespace
}  // namespace gastrelle::essai
