// The words of the recipes window, and what the keyboard finds on its pages.

#include <QAbstractButton>
#include <QKeySequence>
#include <QTest>

#include "doublures/Mots.h"
#include "recettes/frmRecettes.h"
#include "shell/MenusCadre.h"

namespace gastrelle::essai {
namespace {

class MotsRecettes : public Mots<frmRecettes> {
 protected:
  /// Buttons and options: what stands on them, without the mark of the access key, and the tooltip.
  void AttendBoutons(std::initializer_list<ControleAttendu> boutons) {
    for (const ControleAttendu& bouton : boutons) {
      const QWidget& widget = Le(bouton.nom);
      EXPECT_EQ(Texte(widget).remove(u'&'), Fr(bouton.legende)) << bouton.nom;
      EXPECT_EQ(widget.toolTip(), Fr(bouton.infobulle)) << bouton.nom;
    }
  }

  /// The controls that the key Tab visits, from the strip of tabs on and until it is back there.
  std::vector<QWidget*> TourDuClavier() {
    auto& onglets = Le("TabStrip1");
    onglets.setFocus();
    std::vector<QWidget*> tour;
    for (;;) {
      constexpr std::size_t plusQueTous = 40;
      QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
      QWidget* ici = fenetre->focusWidget();
      if (ici == &onglets || tour.size() > plusQueTous) {
        return tour;
      }
      tour.push_back(ici);
    }
  }
  /// Where a control stands in the window.
  QRect Place(const QWidget& controle) const {
    return {controle.mapTo(fenetre.get(), QPoint()), controle.size()};
  }
  void AttendDeHautEnBas(const std::vector<QWidget*>& tour) {
    for (std::size_t i = 1; i < tour.size(); ++i) {
      const QRect avant = Place(*tour[i - 1]);
      const QRect ici = Place(*tour[i]);
      const bool memeRang = ici.top() < avant.bottom() && avant.top() < ici.bottom();
      EXPECT_TRUE(memeRang ? ici.left() > avant.left() : ici.top() > avant.top())
          << tour[i - 1]->objectName().toStdString() << ", " << tour[i]->objectName().toStdString();
    }
  }
  /// The access keys of a page's buttons and captions.
  static QStringList ClesDe(const QWidget& page) {
    QStringList cles;
    const auto retient = [&](const QString& texte) {
      const QString cle = QKeySequence::mnemonic(texte).toString();
      if (!cle.isEmpty()) {
        cles << cle;
      }
    };
    for (const auto* bouton : page.findChildren<QAbstractButton*>()) {
      retient(bouton->text());
    }
    for (const auto* etiquette : page.findChildren<QLabel*>()) {
      if (etiquette->buddy() != nullptr) {
        retient(etiquette->text());
      }
    }
    return cles;
  }
  static QStringList ClesDuCadre() {
    QStringList cles;
    for (const EntreeMenu& entree : EntreesMenus()) {
      if (entree.rang == Rang::menu) {
        cles << QKeySequence::mnemonic(QString::fromUtf16(entree.titre)).toString();
      }
    }
    return cles;
  }
};

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

TEST_F(MotsRecettes, ChaqueBoutonDAideEnvoieLaToucheF1) {
  Ouvre();
  AttendF1({"cmdAideListe", "cmdAideAjouter", "cmdAideModifier", "cmdAideSupprimer",
            "cmdAideClassement"});
}

TEST_F(MotsRecettes, LaToucheTabVisiteChaquePageDeHautEnBas) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Avec", "texte", "/a.png");
  std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
  b.dossier.Ecrit("IMAGE/a.png", "x");
  Ouvre();
  const std::array<const char*, 5> attendus{
      "ComboFamilles ComboRecettes txtRecette cmdCameraListe cmdAideListe",
      "Option1(0) Option1(1) ComboFamillesAjouter txtSaisieNomRecette txtSaisieRecetteAjouter "
      "txtImageAjouter cmdImageAjouter PictureWeb cmdValideAjouter cmdEffacerAjouter "
      "cmdAideAjouter",
      "Option2(0) Option2(1) ComboFamillesModifier txtSaisieNomRecetteModifier "
      "txtSaisieRecetteModifier txtImageModifier cmdImageModifier cmdValideModifier "
      "cmdEffacerModifier cmdAideModifier",
      "Option3(0) Option3(1) txtTexteRecetteSupprimer cmdSupprimer cmdAideSupprimer",
      "lstRecettesTri cmdValideTri cmdAideClassement"};
  for (int onglet = 1; onglet <= 5; ++onglet) {
    SCOPED_TRACE(onglet);
    CliqueOnglet(*fenetre, onglet);
    const std::vector<QWidget*> tour = TourDuClavier();
    QStringList noms;
    for (const QWidget* controle : tour) {
      noms << controle->objectName();
    }
    EXPECT_EQ(noms.join(u' ').toStdString(), attendus[static_cast<std::size_t>(onglet) - 1]);
    AttendDeHautEnBas(tour);
  }
}

TEST_F(MotsRecettes, LesClesDAccesDUnePageSontUniquesEtLaissentLesMenusDuCadre) {
  OuvreEtParcourt();
  ASSERT_EQ(ClesDuCadre().size(), 5);
  for (int onglet = 1; onglet <= 5; ++onglet) {
    QStringList prises = ClesDuCadre();
    const QStringList cles = ClesDe(Le(("Frame1(" + std::to_string(onglet) + ")").c_str()));
    EXPECT_FALSE(cles.isEmpty());
    for (const QString& cle : cles) {
      EXPECT_FALSE(prises.contains(cle)) << onglet << ' ' << cle.toStdString();
      prises << cle;
    }
  }
}

}  // namespace
}  // namespace gastrelle::essai
