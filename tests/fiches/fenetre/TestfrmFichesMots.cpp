// The words of the windows of menus and tips: tabs, headings, captions, tooltips, help topics.

#include "fiches/fenetre/FenetreFiches.h"

namespace gastrelle::essai {
namespace {

/// A page and what stands on it: heading, tooltip of its tab, tooltip of its logo, help topic.
struct Page {
  const char* onglet;
  const char* infobulle;
  const char* entete;
  const char* logo;
  const char* sujet;
};

/// A control with the caption above it and its tooltip.
struct Controle {
  const char* nom;
  const char* legende;
  const char* infobulle;
};

template <class Fenetre>
class Mots : public FenetreEssai<Fenetre> {
 protected:
  void AttendPages(const char* titre, const std::array<Page, 4>& pages) {
    EXPECT_EQ(this->fenetre->windowTitle(), Fr(titre));
    auto& onglets = this->template Le<QTabBar>("TabStrip1");
    ASSERT_EQ(onglets.count(), 4);
    for (int i = 0; i < 4; ++i) {
      const Page& page = pages[static_cast<std::size_t>(i)];
      SCOPED_TRACE(page.onglet);
      const QWidget& contenu = this->Le(("Frame1(" + std::to_string(i + 1) + ")").c_str());
      EXPECT_EQ(onglets.tabText(i), page.onglet);
      EXPECT_EQ(onglets.tabToolTip(i), Fr(page.infobulle));
      EXPECT_EQ(Texte(Trouve(contenu, "Label1")), Fr(page.entete));
      EXPECT_EQ(Trouve(contenu, "Image1").toolTip(), Fr(page.logo));
      EXPECT_EQ(contenu.property("sujetAide").toString(), page.sujet);
    }
  }

  void AttendControles(std::initializer_list<Controle> controles) {
    for (const Controle& controle : controles) {
      const QWidget& widget = this->Le(controle.nom);
      EXPECT_EQ(LegendeDe(widget), Fr(controle.legende)) << controle.nom;
      EXPECT_EQ(widget.toolTip(), Fr(controle.infobulle)) << controle.nom;
    }
  }

  void AttendInfobulles(std::initializer_list<std::pair<const char*, const char*>> infobulles) {
    for (const auto& [nom, infobulle] : infobulles) {
      EXPECT_EQ(this->Le(nom).toolTip(), Fr(infobulle)) << nom;
    }
  }

 private:
  QString LegendeDe(const QWidget& widget) {
    for (const QLabel* etiquette : this->fenetre->template findChildren<QLabel*>()) {
      if (etiquette->buddy() == &widget) {
        return etiquette->text();
      }
    }
    return {};
  }
};

class MotsMenus : public Mots<frmMenus> {};
class MotsTrucs : public Mots<frmTrucs> {};

TEST_F(MotsMenus, Onglets) {
  OuvreEtParcourt();
  AttendPages("Les menus",
              {{{"Liste", "Les recettes mémorisées", "Liste des menus mémorisés",
                 "Faites votre choix !", "menus-liste"},
                {"Ajouter", "Ajouter une famille de recettes ou une recette", "Ajout d'un menu", "",
                 "menus-ajouter"},
                {"Modifier", "Modifier le nom de la famille de recettes ou une recette",
                 "Modification d'un menu", "", "menus-modifier"},
                {"Supprimer", "Supprimer la famille de recettes ou la recette",
                 "Suppression d'un menu", "", "menus-supprimer"}}});
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
      {{{"Liste", "Les termes, truc et astuces mémorisés", "Liste des termes, trucs et astuces",
         "Tous les termes, trucs et astuces", "trucs-liste"},
        {"Ajouter", "Ajouter une famille de recettes ou une recette",
         "Ajout d'un terme, truc ou astuce",
         "Vous ajoutez un terme, truc ou astuce à la base de données", "trucs-ajouter"},
        {"Modifier", "Modifier le nom de la famille de recettes ou une recette",
         "Modification d'un terme, truc ou astuce",
         "Vous modifiez le terme, truc ou astuce affiché", "trucs-modifier"},
        {"Supprimer", "Supprimer la famille de recettes ou la recette",
         "Suppression d'un terme, truc ou astuce",
         "Vous supprimez le terme, truc ou astuce affiché", "trucs-supprimer"}}});
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
