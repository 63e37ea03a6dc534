// The end of the program: what closing the frame does, in which order, and the backup that may be
// its last step.

#include <algorithm>
#include <ostream>

#include <QCloseEvent>
#include <QTest>

#include "doublures/AideVue.h"
#include "doublures/CadreVrai.h"
#include "doublures/EcranVirtuel.h"
#include "shell/GeometrieCadre.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FinDuCadre : public CadreVrai {
 protected:
  static constexpr RecPreferences avecSauvegarde{};

  void Ouvre(RecPreferences preferences = sansSauvegarde) {
    CadreVrai::Ouvre(preferences);
    cadre->surFin = [this] {
      ++fins;
      copieALaFin = b.dossier.A("SAUVE/GLR4.DAT");
    };
  }

  /// Runs `ferme`, which closes the frame, and `regarde` while the backup dialog is up.
  void AvecLaSauvegarde(const std::function<void()>& ferme,
                        const std::function<void(QDialog&)>& regarde) {
    AvecDialogue(ferme, [&](QDialog& dialogue) {
      EXPECT_EQ(dialogue.objectName(), "frmSauvegarde");
      regarde(dialogue);
      QWidget& ok = Trouve(dialogue, "cmdOk");
      EXPECT_TRUE(QTest::qWaitFor([&] { return ok.isVisible(); }));
      Clique(ok);
    });
  }

  int fins = 0;
  bool copieALaFin = false;
};

TEST_F(FinDuCadre, RangeLaGeometrieEtRecritLesRayons) {
  Ouvre();
  b.module->texteRayon[14] = "Sel";
  cadre->setGeometry(30, 45, 700, 500);
  const QPoint place = cadre->pos();
  cadre->close();
  const QSettings reglages(QSettings::UserScope, "Gastrelle 2005");
  EXPECT_EQ(reglages.value("Settings/MainLeft").toString(), QString::number(place.x() * 15));
  EXPECT_EQ(reglages.value("Settings/MainTop").toString(), QString::number(place.y() * 15));
  EXPECT_EQ(reglages.value("Settings/MainWidth").toString(), "10500");
  EXPECT_EQ(reglages.value("Settings/MainHeight").toString(), "7500");
  EXPECT_FALSE(cadre->isVisible());
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
  EXPECT_EQ(b.module->contexteActif, 0);
}

TEST_F(FinDuCadre, RecritLesRayonsAvantLaSauvegarde) {
  Ouvre(avecSauvegarde);
  b.module->texteRayon[14] = "Sel";
  AvecLaSauvegarde([&] { cadre->close(); }, [](QDialog&) {});
  std::vector<std::string> verbes;
  for (const std::string& ligne : b.disque.changements()) {
    verbes.push_back(ligne.substr(0, ligne.find(' ', ligne.find(' ') + 1)));
  }
  verbes.erase(std::unique(verbes.begin(), verbes.end()), verbes.end());
  EXPECT_THAT(verbes,
              ElementsAre("supprime GLMCN.DAT", "écrit GLMCN.DAT", "écrit GLMC.DAT",
                          "écrit GLMCN.DAT", "écrit GLMC.DAT", "crée SAUVE", "copie GLR1.DAT",
                          "copie GLR2.DAT", "copie GLR3.DAT", "copie GLR4.DAT"));
}

TEST_F(FinDuCadre, UnRayonQuiNeSEcritPasNEmpechePasLaSauvegarde) {
  Ouvre(avecSauvegarde);
  b.disque.EchoueSur("écrit GLMC", Panne::disquePlein);
  AvecLaSauvegarde([&] { cadre->close(); }, [](QDialog&) {});
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_TRUE(copieALaFin);
  EXPECT_EQ(fins, 1);
}

TEST_F(FinDuCadre, LaSauvegardeEstLaDerniereChose) {
  Ouvre(avecSauvegarde);
  AvecLaSauvegarde([&] { cadre->close(); }, [&](QDialog&) { EXPECT_EQ(fins, 0); });
  EXPECT_EQ(b.dossier.Lit("SAUVE/GLR3.DAT"), b.dossier.Lit("GLR3.DAT"));
  EXPECT_TRUE(copieALaFin);
  EXPECT_EQ(fins, 1);
}

TEST_F(FinDuCadre, ToutNombreAutreQueZeroSePasseDeSauvegarde) {
  for (const std::int16_t nombre : {std::int16_t{1}, std::int16_t{-1}}) {
    Ouvre({0, 0, nombre});
    cadre->close();
    EXPECT_FALSE(b.dossier.A("SAUVE")) << nombre;
    cadre.reset();
  }
  EXPECT_EQ(fins, 2);
}

TEST_F(FinDuCadre, LeCadreNEstPlusLaPendantLaSauvegarde) {
  Ouvre(avecSauvegarde);
  AvecLaSauvegarde([&] { cadre->close(); }, [&](QDialog&) { EXPECT_FALSE(cadre->isVisible()); });
}

TEST_F(FinDuCadre, FermeDeuxFoisIlNeFinitQuUne) {
  Ouvre(avecSauvegarde);
  const auto fermeEncore = [&] {
    cadre->close();
    QCloseEvent fermeture;
    QApplication::sendEvent(cadre.get(), &fermeture);
  };
  AvecLaSauvegarde([&] { cadre->close(); }, [&](QDialog&) { fermeEncore(); });
  b.disque.OublieJournal();
  fermeEncore();
  EXPECT_EQ(fins, 1);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(FinDuCadre, QuitterFinitLeProgramme) {
  Ouvre();
  Choisit("mnuFileExit");
  EXPECT_FALSE(cadre->isVisible());
  EXPECT_EQ(fins, 1);
}

TEST_F(FinDuCadre, LeBoutonQuitterFinitLeProgramme) {
  Ouvre();
  Clique(BoutonBarre("Exit"));
  EXPECT_FALSE(cadre->isVisible());
  EXPECT_EQ(fins, 1);
}

TEST_F(FinDuCadre, LAideSeFermeAvecLeCadre) {
  Ouvre();
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  Choisit("mnuHelpContents");
  ASSERT_NE(FenetreAide(), nullptr);
  bool aideALaFin = true;
  cadre->surFin = [&] { aideALaFin = FenetreAide() != nullptr; };
  cadre->close();
  EXPECT_FALSE(aideALaFin);
}

// The frame's place on the screen, from one run to the next.

class PlaceDuCadre : public CadreVrai {
 protected:
  PlaceDuCadre() : ecran(QGuiApplication::primaryScreen()->availableGeometry()) {}

  /// The four settings, in pixels, as the last run left them.
  static void Regle(int gauche, int haut, int largeur, int hauteur) {
    QSettings reglages(QSettings::UserScope, "Gastrelle 2005");
    reglages.setValue("Settings/MainLeft", QString::number(gauche * 15));
    reglages.setValue("Settings/MainTop", QString::number(haut * 15));
    reglages.setValue("Settings/MainWidth", QString::number(largeur * 15));
    reglages.setValue("Settings/MainHeight", QString::number(hauteur * 15));
  }

  /// They again, as they are written.
  static QStringList Reglees() {
    const QSettings reglages(QSettings::UserScope, "Gastrelle 2005");
    QStringList valeurs;
    for (const char* cle : {"MainLeft", "MainTop", "MainWidth", "MainHeight"}) {
      valeurs << reglages.value(QLatin1String("Settings/") + QLatin1String(cle)).toString();
    }
    return valeurs;
  }

  const QRect ecran;
};

TEST_F(PlaceDuCadre, LaPremiereOuvertureEstEnHautAGaucheEnHuitCentsSurSixCents) {
  if (ecran.width() <= 800) {
    EXPECT_EQ(RejoueSurUnEcranDe({1280, 1024}, 1,
                                 "PlaceDuCadre.LaPremiereOuvertureEstEnHautAGaucheEnHuitCentsSur"
                                 "SixCents"),
              0);
    return;
  }
  Ouvre();
  EXPECT_EQ(cadre->pos(), QPoint(0, 0));
  EXPECT_EQ(cadre->size(), QSize(800, 600));
}

TEST_F(PlaceDuCadre, ToutEnEstVuMemeSurUnPetitEcran) {
  Ouvre();
  const QRect vu = cadre->frameGeometry();
  EXPECT_TRUE(ecran.contains(vu));
  EXPECT_EQ(vu.width(), std::min(ecran.width(), 800 + vu.width() - cadre->width()));
  EXPECT_EQ(vu.height(), std::min(ecran.height(), 600 + vu.height() - cadre->height()));
  EXPECT_GT(vu.height(), cadre->height());  // there is a border
  CliqueOnglet(Le("frmRecettes"), 2);
  for (const char* nom : {"StatusBar1", "cmdValideAjouter"}) {
    const QWidget& controle = Le(nom);
    EXPECT_TRUE(controle.isVisible()) << nom;
    EXPECT_TRUE(ecran.contains({controle.mapToGlobal(QPoint()), controle.size()})) << nom;
  }
  if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
    const QString nom = "PlaceDuCadre.ToutEnEstVuMemeSurUnPetitEcran";
    EXPECT_EQ(RejoueSurUnEcranDe({1024, 600}, 1, nom), 0);
    EXPECT_EQ(RejoueSurUnEcranDe({1920, 1080}, 2, nom), 0);
  }
}

TEST_F(PlaceDuCadre, UnPetitEcranNeLaRetrecitPasPourToujours) {
  Ouvre();
  ASSERT_LT(cadre->width(), 800);
  cadre->close();
  EXPECT_EQ(Reglees(), (QStringList{"0", "0", "12000", "9000"}));
}

TEST_F(PlaceDuCadre, CelleQueLUtilisateurChoisitSurUnPetitEcranEstLaSienne) {
  Ouvre();
  cadre->resize(700, 500);
  cadre->close();
  EXPECT_EQ(Reglees(), (QStringList{"0", "0", "10500", "7500"}));
}

TEST_F(PlaceDuCadre, DUnEcranPartiRevientQuandIlEstLa) {
  Regle(5000, 10, 710, 505);
  Ouvre();
  cadre->close();
  EXPECT_EQ(Reglees(), (QStringList{"75000", "150", "10650", "7575"}));
}

TEST_F(PlaceDuCadre, EstCelleDeLaFoisDAvant) {
  Regle(30, 40, 710, 505);
  Ouvre();
  EXPECT_EQ(cadre->pos(), QPoint(30, 40));
  EXPECT_EQ(cadre->size(), QSize(710, 505));
}

TEST_F(PlaceDuCadre, HorsDeLEcranRevientOuOnLaVoit) {
  for (const QPoint loin : {QPoint(5000, 10), QPoint(10, 5000), QPoint(-5000, -5000)}) {
    Regle(loin.x(), loin.y(), 710, 505);
    Ouvre();
    EXPECT_EQ(cadre->pos(), ecran.topLeft());
    EXPECT_EQ(cadre->size(), QSize(710, 505));
    cadre.reset();
  }
}

/// A wished place, the screens, what is shown; the border is of 4 pixels, of 30 at the top.
struct CasPlace {
  const char* nom;
  QRect souhait;
  QList<QRect> ecrans;
  QRect montree;
};

void PrintTo(const CasPlace& cas, std::ostream* sortie) {
  *sortie << cas.nom;
}

class PlacesVisibles : public testing::TestWithParam<CasPlace> {};

TEST_P(PlacesVisibles, SontCellesOuRienNeManque) {
  EXPECT_EQ(PlaceVisible(GetParam().souhait, {4, 30, 4, 4}, GetParam().ecrans), GetParam().montree);
}

const QRect grand(0, 0, 1920, 1080);
const QRect netbook(0, 0, 1024, 600);
const QRect sousUnPanneau(0, 27, 1366, 741);

INSTANTIATE_TEST_SUITE_P(
    Cadre, PlacesVisibles,
    testing::Values(
        CasPlace{"Tient", {100, 50, 800, 600}, {grand}, {100, 50, 800, 600}},
        CasPlace{"TropHaute", {0, 0, 800, 600}, {netbook}, {0, 0, 800, 566}},
        CasPlace{"TropGrande", {300, 200, 1600, 900}, {netbook}, {0, 0, 1016, 566}},
        CasPlace{"SousLeBasDeLEcran", {10, 300, 700, 500}, {netbook}, {10, 66, 700, 500}},
        CasPlace{"AuDelaDeLaDroite", {600, 20, 700, 500}, {netbook}, {316, 20, 700, 500}},
        CasPlace{"AuDelaDeLaGauche", {-100, 40, 710, 505}, {netbook}, {-100, 40, 710, 505}},
        CasPlace{"SousUnPanneau", {0, 0, 800, 600}, {sousUnPanneau}, {0, 27, 800, 600}},
        CasPlace{"HorsDeTout", {5000, 10, 710, 505}, {sousUnPanneau}, {0, 27, 710, 505}},
        CasPlace{"SurLeSecondEcran",
                 {2000, 10, 900, 700},
                 {grand, {1920, 0, 1024, 600}},
                 {2000, 0, 900, 566}},
        CasPlace{"SurDeuxEcrans",
                 {1000, 10, 1800, 900},
                 {grand, {1920, 0, 1920, 1080}},
                 {1000, 10, 1800, 900}}),
    testing::PrintToStringParamName());

TEST_F(PlaceDuCadre, ReduitIlGardeCelleDAvant) {
  QSettings(QSettings::UserScope, "Gastrelle 2005").setValue("Settings/MainWidth", "10500");
  Ouvre();
  EXPECT_EQ(cadre->width(), 700);
  cadre->showMinimized();
  cadre->close();
  const QSettings reglages(QSettings::UserScope, "Gastrelle 2005");
  EXPECT_EQ(reglages.value("Settings/MainWidth").toString(), "10500");
  EXPECT_FALSE(reglages.contains("Settings/MainLeft"));
}

TEST_F(PlaceDuCadre, DesReglagesIllisiblesPrennentLeurValeurParDefaut) {
  QSettings reglages(QSettings::UserScope, "Gastrelle 2005");
  reglages.setValue("Settings/MainWidth", "large");
  reglages.setValue("Settings/MainHeight", "");
  reglages.sync();
  Ouvre();
  cadre->close();
  EXPECT_EQ(Reglees(), (QStringList{"0", "0", "12000", "9000"}));
}

}  // namespace
}  // namespace gastrelle::essai
