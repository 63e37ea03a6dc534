// Printing by the real entry and button of the frame: each window prints what its controls show.

#include <cstddef>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>

#include "controles/FenetreOnglets.h"
#include "doublures/CadreVrai.h"
#include "doublures/ToutesFenetres.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ImpressionDuCadre : public CadreVrai {
 protected:
  /// The frame on a filled library, a window of it in front.
  void OuvreSur(const char* entree) {
    OuvreGarni();
    Choisit(entree);
  }
  void OuvreSur(const char* entree, const char* fenetre, int onglet) {
    OuvreSur(entree);
    CliqueOnglet(Le(fenetre), onglet);
  }
  void ChoisitDans(const char* liste, const char* titre) {
    essai::Choisit(Le<QComboBox>(liste), Fr(titre));
  }
  /// The lines of the document printed last, if it was sent.
  QStringList Imprime() const {
    QStringList lignes;
    if (const auto& travaux = b.imprimantes.travaux; !travaux.empty() && travaux.back().envoye) {
      for (const std::string& ligne : travaux.back().ToutesLignes()) {
        lignes << VersQt(ligne);
      }
    }
    return lignes;
  }
  /// The entry and the button both print these lines behind the heading.
  void AttendImprime(const std::vector<const char*>& lignes) {
    QStringList attendu{"Gastrelle 2005 (Edition du 21/11/2026)"};
    for (const char* ligne : lignes) {
      attendu << Fr(ligne);
    }
    const std::size_t avant = b.imprimantes.travaux.size();
    Choisit("mnuFilePrint");
    EXPECT_EQ(Imprime().join(u'\n').toStdString(), attendu.join(u'\n').toStdString());
    Clique(BoutonBarre("Print"));
    EXPECT_EQ(Imprime().join(u'\n').toStdString(), attendu.join(u'\n').toStdString());
    EXPECT_EQ(b.imprimantes.travaux.size(), avant + 2);
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.messages.bips, 0);
  }
  void AttendRienQu(int bips, std::initializer_list<MessageVu> messages) {
    Choisit("mnuFilePrint");
    EXPECT_EQ(b.imprimantes.demandes, 0);
    EXPECT_EQ(b.messages.bips, bips);
    EXPECT_EQ(b.messages.vus, std::vector<MessageVu>(messages));
    EXPECT_FALSE(b.pointeur.sablier);
  }
};

TEST_F(ImpressionDuCadre, LaRecetteChoisie) {
  OuvreGarni();
  ChoisitDans("ComboFamilles", "Potages");
  ChoisitDans("ComboRecettes", "Velouté");
  AttendImprime({"", "Famille de recettes : Potages", "", "Recette : Velouté", "", "Un velouté."});
}

TEST_F(ImpressionDuCadre, LeFromageChoisi) {
  OuvreSur("mnuViewFromages");
  AttendImprime({"", "Fromage : Abondance", "", "Sa région d'origine : Savoie", "",
                 "Au lait de : ?", "", "Meilleure période de dégustation :", "", ". de : ?", "",
                 ". à : ?", "", "Des notes."});
  ChoisitDans("ComboFromages", "Fromage 010");
  AttendImprime({"", "Fromage : Fromage 010", "", "Sa région d'origine : ", "",
                 "Au lait de : Vache", "", "Meilleure période de dégustation :", "", ". de : ?", "",
                 ". à : ?"});
}

TEST_F(ImpressionDuCadre, LesFromagesDuLaitChoisi) {
  RecFromage banon;
  banon.nomFromage = "Banon";
  banon.lait = 2;
  b.Garnit();
  b.AjouteFromage(banon);
  Ouvre();
  Choisit("mnuViewFromages");
  CliqueOnglet(Le("frmFromages"), 5);
  ChoisitDans("ComboLaitTrier", "Chèvre");
  AttendImprime({"", "Fromages au lait de : Chèvre", "Banon"});
}

TEST_F(ImpressionDuCadre, LeLaitDontIlNYAPasDeFromage) {
  OuvreSur("mnuViewFromages", "frmFromages", 5);
  ChoisitDans("ComboLaitTrier", "Brebis");
  b.messages.vus.clear();  // which the choice has told already
  AttendImprime({"", "Fromages au lait de : Brebis"});
}

TEST_F(ImpressionDuCadre, LeMenuChoisi) {
  OuvreSur("mnuViewMenus");
  AttendImprime({"", "Menu : Agape", "", "Un texte."});
  ChoisitDans("ComboMenus", "Fiche 002");
  AttendImprime({"", "Menu : Fiche 002"});
}

TEST_F(ImpressionDuCadre, LeVinChoisi) {
  OuvreSur("mnuViewVins");
  AttendImprime({"", "Le vin : Abymes", "", "Sa région d'origine : Alpes", "", "Des notes."});
  ChoisitDans("ComboVins", "Vin 002");
  AttendImprime({"", "Le vin : Vin 002", "", "Sa région d'origine : Région 002"});
}

TEST_F(ImpressionDuCadre, LesVinsDeLaRegionChoisie) {
  OuvreSur("mnuViewVins", "frmVins", 5);
  ChoisitDans("ComboRegionVinTrier", "Alpes");
  AttendImprime({"", "La région d'origine : Alpes", "Les vins :", "Abymes"});
}

TEST_F(ImpressionDuCadre, LaRegionSansVinImprimeLaLigneDeSaListe) {
  b.Garnit();
  b.AjouteRegion("Béarn"_1252);
  Ouvre();
  Choisit("mnuViewVins");
  CliqueOnglet(Le("frmVins"), 5);
  ChoisitDans("ComboRegionVinTrier", "Béarn");
  ASSERT_EQ(Textes(Le<QListView>("lstTriVin")), QStringList{Fr("Aucun vin mémorisé")});
  AttendImprime({"", "La région d'origine : Béarn", "Les vins :", "Aucun vin mémorisé"});
}

TEST_F(ImpressionDuCadre, LesBouteillesTellesQuEllesSontDansLesBoites) {
  OuvreSur("mnuViewVins", "frmVins", 6);
  b.disque.OublieJournal();
  Remplace(Le("txtSaisieRouge"), "7");  // not validated
  Remplace(Le("txtSaisieGris"), "12");
  Remplace(Le("txtNotesCave"), "À boire\nvite ");
  AttendImprime({"", "Ma cave", "Le vin : Abymes", "Sa région d'origine : Alpes", "Blanc : 6",
                 "Rouge : 7", "Rosé : 0", "Champagne : 0", "Vin doux naturel : 0", "Jaune : 0",
                 "Paille : 0", "Mousseux : 0", "Gris : 12", "Notes : À boire", "vite "});
  EXPECT_EQ(Texte(Le("txtNotesCave")), Fr("À boire\nvite "));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ImpressionDuCadre, UneBoiteOuRienNeTientSImprimeAussi) {
  OuvreSur("mnuViewVins", "frmVins", 6);
  Remplace(Le("txtSaisieBlanc"), "");
  Choisit("mnuFilePrint");
  EXPECT_EQ(Imprime().mid(5, 2), (QStringList{"Blanc : ", "Rouge : 0"}));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ImpressionDuCadre, TouteLaCaveEnChasseFixe) {
  OuvreSur("mnuViewVins", "frmVins", 7);
  AttendImprime({"", "Toute ma cave", "", "ABYMES - Région d'origine : Alpes",
                 ".. Blanc ........... 6", "... Total .......... 6", " ",
                 "Nombre total de bouteilles dans ma cave", ".. BLANC ........... 6",
                 "... Total .......... 6"});
  EXPECT_THAT(b.imprimantes.travaux.back().polices, ElementsAre(PoliceVue{"Courier New", 10}));
}

TEST_F(ImpressionDuCadre, LAstuceChoisie) {
  OuvreSur("mnuViewTermesTrucsAstuces");
  AttendImprime({"", "Termes, trucs et astuces : Agape", "", "Un texte."});
  ChoisitDans("ComboTrucs", "Fiche 003");
  AttendImprime({"", "Termes, trucs et astuces : Fiche 003"});
}

TEST_F(ImpressionDuCadre, LeFavoriChoisi) {
  OuvreSur("mnuViewFavoris");
  AttendImprime({"", "Favori : Affineur", "Catégorie : Artisans", "Adresse : 1 rue Haute",
                 "Téléphone : 01 02 03 04 05", "Fax : ", "E-mail : a@b.fr",
                 "Site Web : https://b.fr", "Notes : Des notes."});
}

TEST_F(ImpressionDuCadre, LesFavorisDeLaCategorieChoisie) {
  OuvreSur("mnuViewFavoris", "frmFavoris", 5);
  ChoisitDans("ComboCategorieTrier", "Artisans");
  AttendImprime({"", "La catégorie : Artisans", "Les favoris :", "Affineur"});
}

TEST_F(ImpressionDuCadre, LesNotesSansLesBlancsDeLeursBouts) {
  OuvreSur("mnuViewMesNotes");
  Remplace(Le("txtSaisie"), "  Un\n\ndeux  ");
  AttendImprime({"", "Mes notes", "", "Un", "", "deux"});
  EXPECT_EQ(Texte(Le("txtSaisie")), "  Un\n\ndeux  ");
}

TEST_F(ImpressionDuCadre, DesNotesDeBlancsLeDisent) {
  OuvreSur("mnuViewMesNotes");
  Remplace(Le("txtSaisie"), "   ");
  AttendRienQu(0, {{DepuisUtf8("Aucun texte à imprimer"), Icone::information, "Gastrelle 2005"}});
  EXPECT_EQ(Texte(Le("txtSaisie")), "   ");
}

TEST_F(ImpressionDuCadre, UnTriSansChoixSonne) {
  OuvreGarni();
  int bips = 0;
  for (const auto& [entree, fenetre] : {std::pair("mnuViewFromages", "frmFromages"),
                                        {"mnuViewVins", "frmVins"},
                                        {"mnuViewFavoris", "frmFavoris"}}) {
    Choisit(entree);
    CliqueOnglet(Le(fenetre), 5);
    AttendRienQu(++bips, {});
  }
}

TEST_F(ImpressionDuCadre, LesAutresOngletsNImprimentPas) {
  const std::set<int> imprimes{11, 21, 25, 31, 41, 45, 46, 47, 61, 71, 75, 90, 100};
  OuvreGarni();
  for (const LigneEssai& ligne : ToutesLesFenetres()) {
    Choisit(ligne.entree);
    for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
      if (auto* fenetre = dynamic_cast<FenetreOnglets*>(&Le(ligne.nom))) {
        fenetre->MontreOnglet(onglet);
      }
      const int code = ligne.premierContexte + onglet - 1;
      SCOPED_TRACE(code);
      ASSERT_EQ(b.module->contexteActif, code);
      const bool imprime = imprimes.contains(code);
      EXPECT_EQ(Entree("mnuFilePrint").isEnabled(), imprime);
      EXPECT_EQ(BoutonBarre("Print").isEnabled(), imprime);
      if (!imprime) {
        QTest::keyClick(cadre.get(), Qt::Key_P, Qt::ControlModifier);
        QTest::mouseClick(&BoutonBarre("Print"), Qt::LeftButton);
      }
    }
  }
  EXPECT_EQ(b.imprimantes.demandes, 0);
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(ImpressionDuCadre, CtrlPImprime) {
  OuvreGarni();
  QTest::keyClick(cadre.get(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(Imprime().mid(3, 2), (QStringList{"", "Recette : Avec image"}));
}

TEST_F(ImpressionDuCadre, LaPreferenceSertDesQuElleEstValidee) {
  OuvreGarni();
  const auto regle = [&](const char* police, const char* bouton) {
    AvecDialogue([&] { Choisit("mnuFilePreferences"); },
                 [&](QDialog& dialogue) {
                   Clique(Trouve<QRadioButton>(dialogue, police));
                   Clique(Trouve(dialogue, bouton));
                 });
    Choisit("mnuFilePrint");
    return b.imprimantes.travaux.back().polices;
  };
  EXPECT_THAT(regle("OptPolice(1)", "cmdAnnuler"), ElementsAre(PoliceVue{"Times New Roman", 10}));
  EXPECT_THAT(regle("OptPolice(1)", "cmdOk"), ElementsAre(PoliceVue{"Times New Roman", 20}));
  Choisit("mnuViewFromages");
  Choisit("mnuFilePrint");
  EXPECT_THAT(b.imprimantes.travaux.back().polices, ElementsAre(PoliceVue{"Times New Roman", 10}));
  Choisit("mnuViewRecettes");
  EXPECT_THAT(regle("OptPolice(0)", "cmdOk"), ElementsAre(PoliceVue{"Times New Roman", 10}));
}

TEST_F(ImpressionDuCadre, UneFenetreReduiteImprimeTantQueSonCodeTient) {
  OuvreGarni();
  recettes().showMinimized();
  QApplication::processEvents();
  ASSERT_EQ(b.module->contexteActif, 11);
  AttendImprime(
      {"", "Famille de recettes : Desserts", "", "Recette : Avec image", "", "Un texte."});
}

TEST_F(ImpressionDuCadre, LesVinsReduitsNImprimentPlus) {
  OuvreSur("mnuViewVins");
  Sous("frmVins").showMinimized();
  QApplication::processEvents();
  EXPECT_FALSE(Entree("mnuFilePrint").isEnabled());
}

TEST_F(ImpressionDuCadre, SansImprimanteRienNeSeDitNiNeChange) {
  OuvreGarni();
  b.imprimantes.presente = false;
  Choisit("mnuFilePrint");
  EXPECT_EQ(b.imprimantes.demandes, 1);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_FALSE(b.pointeur.sablier);
}

class ImpressionDesCourses : public ImpressionDuCadre {
 protected:
  QPlainTextEdit& detail() { return Le<QPlainTextEdit>("txtDetail"); }
  std::string& Rayon(std::size_t rang) { return b.module->texteRayon.at(rang); }
};

TEST_F(ImpressionDesCourses, LesRayonsRemplisDansLeurOrdre) {
  b.Garnit();
  b.AjouteCourses(4, "Poireaux\r\nThym"_1252);
  Ouvre();
  Choisit("mnuViewMesCourses");
  Tape(detail(), "Rôti");
  AttendImprime({"", "Achats à effectuer", "", "Boucherie", "Rôti", "", "Légumes", "Poireaux",
                 "Thym", "", "Divers", "Du sel."});
}

TEST_F(ImpressionDesCourses, LeRayonChoisiVideNEmpechePasLesAutres) {
  OuvreSur("mnuViewMesCourses");
  ASSERT_EQ(Texte(detail()), "");
  AttendImprime({"", "Achats à effectuer", "", "Divers", "Du sel."});
}

TEST_F(ImpressionDesCourses, LaSaisieEstRogneeEtRangee) {
  OuvreSur("mnuViewMesCourses");
  Tape(detail(), "  porc ");
  AttendImprime({"", "Achats à effectuer", "", "Boucherie", "porc", "", "Divers", "Du sel."});
  EXPECT_EQ(Texte(detail()), "porc");
  EXPECT_EQ(Rayon(0), "porc");
}

TEST_F(ImpressionDesCourses, SansRienAImprimerLaSaisieEstRogneeAussi) {
  OuvreGarni();
  Rayon(14).clear();
  Choisit("mnuViewMesCourses");
  Tape(detail(), "   ");
  AttendRienQu(0, {{"Liste d'achats vide.", Icone::information, "Gastrelle 2005"}});
  EXPECT_EQ(Texte(detail()), "");
  EXPECT_EQ(Rayon(0), "");
}

TEST_F(ImpressionDesCourses, SansImprimanteLaSaisieEstRogneeAussi) {
  OuvreSur("mnuViewMesCourses");
  b.imprimantes.presente = false;
  Tape(detail(), " porc ");
  Choisit("mnuFilePrint");
  EXPECT_EQ(Texte(detail()), "porc");
  EXPECT_EQ(Rayon(0), "porc");
}

TEST_F(ImpressionDesCourses, LeCurseurResteDansSonMot) {
  OuvreSur("mnuViewMesCourses");
  Tape(detail(), "  porc  ");
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(&detail(), Qt::Key_Left);  // behind "po"
  }
  Choisit("mnuFilePrint");
  Tape(detail(), "i");
  EXPECT_EQ(Texte(detail()), "poirc");
}

TEST_F(ImpressionDesCourses, ReduitesEllesSImprimentAussi) {
  OuvreSur("mnuViewMesCourses");
  Tape(detail(), " porc ");
  Sous("frmCourses").showMinimized();
  QApplication::processEvents();
  ASSERT_EQ(b.module->contexteActif, 100);
  AttendImprime({"", "Achats à effectuer", "", "Boucherie", "porc", "", "Divers", "Du sel."});
}

}  // namespace
}  // namespace gastrelle::essai
