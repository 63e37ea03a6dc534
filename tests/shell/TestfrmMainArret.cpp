// The end that the system asks for, and what the session's end has written: the frame's own work,
// whatever the program is waiting in.

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <unistd.h>

#include <QTest>
#include <QTimer>

#include "doublures/CadreVrai.h"
#include "doublures/ServicesEssai.h"
#include "shell/EcouteArret.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

class ArretDuCadre : public CadreVrai {
 protected:
  static constexpr RecPreferences avecSauvegarde{};

  void OuvreAvecDuSel(RecPreferences preferences = avecSauvegarde) {
    Ouvre(preferences);
    b.module->texteRayon[14] = "Sel";
  }
  /// Has the frame stopped; the status of the process.
  int Arret() {
    try {
      cadre->Arrete();
    } catch (const FinDuProgramme& fin) {
      return fin.statut;
    }
    return -1;
  }
  [[nodiscard]] static QString LargeurRetenue() {
    return QSettings(QSettings::UserScope, "Gastrelle 2005").value("Settings/MainWidth").toString();
  }
};

TEST_F(ArretDuCadre, EcritCeQueSaFermetureEcrit) {
  OuvreAvecDuSel();
  cadre->resize(700, 500);
  EXPECT_EQ(Arret(), 0);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT").substr(112), Octets(LigneRayon{10, 3}));
  EXPECT_EQ(LargeurRetenue(), "10500");
}

TEST_F(ArretDuCadre, SePasseDeLaSauvegarde) {
  OuvreAvecDuSel();
  EXPECT_EQ(Arret(), 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_FALSE(b.dossier.A("SAUVE"));
}

TEST_F(ArretDuCadre, ReduitIlGardeLaPlaceDAvant) {
  QSettings(QSettings::UserScope, "Gastrelle 2005").setValue("Settings/MainWidth", "10500");
  OuvreAvecDuSel();
  cadre->showMinimized();
  EXPECT_EQ(Arret(), 0);
  EXPECT_EQ(LargeurRetenue(), "10500");
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
}

TEST_F(ArretDuCadre, NAttendPasUnDialogue) {
  for (const char* entree : {"mnuFilePreferences", "mnuHelpAbout"}) {
    OuvreAvecDuSel();
    AvecDialogue([&] { Choisit(entree); }, [&](QDialog&) { EXPECT_EQ(Arret(), 0); });
    EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel") << entree;
    cadre.reset();
  }
}

TEST_F(ArretDuCadre, PendantLaSauvegardeNEcritPasUneSecondeFois) {
  OuvreAvecDuSel();
  AvecDialogue([&] { cadre->close(); },
               [&](QDialog& dialogue) {
                 QWidget& ok = Trouve(dialogue, "cmdOk");
                 ASSERT_TRUE(QTest::qWaitFor([&] { return ok.isVisible(); }));
                 b.disque.OublieJournal();
                 EXPECT_EQ(Arret(), 0);
                 EXPECT_THAT(b.disque.journal(), IsEmpty());
               });
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
}

TEST_F(ArretDuCadre, ApresUnePanneNEcritRienEtLeDit) {
  OuvreAvecDuSel();
  b.module->erreurFatale = true;
  EXPECT_EQ(Arret(), 1);
  cadre->Enregistre();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_EQ(LargeurRetenue(), "");
}

TEST_F(ArretDuCadre, UnRayonQuiNeSEcritPasNeLeRetientPas) {
  OuvreAvecDuSel();
  b.disque.EchoueSur("écrit GLMC", Panne::disquePlein);
  EXPECT_EQ(Arret(), 0);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ArretDuCadre, LaFinDeLaSessionEcritSansRienFermer) {
  OuvreAvecDuSel();
  for (const char* texte : {"Poivre", "Poivre et sel"}) {
    b.module->texteRayon[14] = texte;
    cadre->Enregistre();
    EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), std::string("GLMCN.DAT") + texte);
  }
  EXPECT_TRUE(cadre->isVisible());
  EXPECT_TRUE(Le("frmRecettes").isVisible());
  EXPECT_EQ(b.module->contexteActif, 11);
  EXPECT_EQ(LargeurRetenue(), "");
}

TEST_F(ArretDuCadre, FermeIlNEcritPlusRien) {
  OuvreAvecDuSel(sansSauvegarde);
  cadre->close();
  b.disque.OublieJournal();
  cadre->Enregistre();
  EXPECT_EQ(Arret(), 0);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

/// The windows that hold what is on no disk.
class ArretDesListes : public ArretDuCadre {
 protected:
  void OuvreEtTape() {
    Ouvre(sansSauvegarde);
    Choisit("mnuViewMesNotes");
    Tape(Le("txtSaisie"), "Une note");
    Choisit("mnuViewMesCourses");
    Tape(Le("txtDetail"), "porc ");
    b.disque.OublieJournal();
  }
  void AttendEcrites() const {
    EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Une note\r\n");
    EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc");
  }
};

TEST_F(ArretDesListes, EcritLesNotesPuisLesRayons) {
  OuvreEtTape();
  EXPECT_EQ(Arret(), 0);
  AttendEcrites();
  std::vector<std::string> noms;
  for (const std::string& ligne : b.disque.changements()) {
    const std::string nom = ligne.substr(ligne.find(' ') + 1);
    noms.push_back(nom.substr(0, nom.find(' ')));
  }
  EXPECT_TRUE(std::is_sorted(noms.begin(), noms.end(), std::greater<>()));  // "MesNotes", "GL..."
  EXPECT_THAT(noms, testing::IsSupersetOf({"MesNotes.txt", "GLMCN.DAT", "GLMC.DAT"}));
}

TEST_F(ArretDesListes, EcritDesNotesCachees) {
  OuvreEtTape();
  Sous("frmMesNotes").close();
  QApplication::processEvents();
  ASSERT_FALSE(b.dossier.A("MesNotes.txt"));
  EXPECT_EQ(Arret(), 0);
  AttendEcrites();
}

TEST_F(ArretDesListes, NEcritPasDeNotesQuePersonneNAOuvertes) {
  b.dossier.Ecrit("MesNotes.txt", "Vieux");
  OuvreAvecDuSel();
  EXPECT_EQ(Arret(), 0);
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Vieux");
}

TEST_F(ArretDesListes, LaFinDeLaSessionLesEcritEtLesLaisseOuvertes) {
  OuvreEtTape();
  cadre->Enregistre();
  AttendEcrites();
  EXPECT_TRUE(Le("frmMesNotes").isVisible());
  EXPECT_EQ(b.module->contexteActif, 100);
  Tape(Le("txtDetail"), "frais");
  cadre->Enregistre();
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc frais");
  cadre->close();
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc frais");
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Une note\r\n");
}

TEST_F(ArretDesListes, ApresUnePanneNeLesEcritPas) {
  OuvreEtTape();
  b.module->erreurFatale = true;
  EXPECT_EQ(Arret(), 1);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
}

/// What reaches the program from the system, in the tests' own application.
class EcouteDuSysteme : public ArretDuCadre {
 protected:
  EcouteDuSysteme() {
    const int ouvert = ::pipe(bouts.data());
    EXPECT_EQ(ouvert, 0);
  }
  ~EcouteDuSysteme() override {
    for (const int bout : bouts) {
      ::close(bout);
    }
  }
  void Ecoute() {
    ecoute.emplace(static_cast<Application&>(*qApp), bouts[0]);
    ecoute->surArret = [this] {
      ++arrets;
      cadre->Arrete();
    };
  }
  void Demande() { EXPECT_EQ(::write(bouts[1], "", 1), 1); }

  std::array<int, 2> bouts{};
  std::optional<EcouteArret> ecoute;
  int arrets = 0;
};

TEST_F(EcouteDuSysteme, SaDemandeArreteLeProgramme) {
  OuvreAvecDuSel();
  Ecoute();
  QApplication::processEvents();
  EXPECT_EQ(arrets, 0);
  Demande();
  QApplication::processEvents();
  EXPECT_EQ(FinVue(), 0);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
  Demande();
  QApplication::processEvents();
  EXPECT_EQ(arrets, 1);
}

TEST_F(EcouteDuSysteme, SaDemandeNAttendPasUnDialogue) {
  OuvreAvecDuSel();
  Ecoute();
  AvecDialogue([&] { Choisit("mnuFilePreferences"); },
               [&](QDialog&) {
                 Demande();
                 EXPECT_TRUE(QTest::qWaitFor([] { return FinVue().has_value(); }));
               });
  EXPECT_EQ(FinVue(), 0);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
}

TEST_F(EcouteDuSysteme, LaFinDeLaSessionNAttendPersonne) {
  OuvreAvecDuSel();
  Ecoute();
  AvecDialogue([&] { Choisit("mnuFilePreferences"); },
               [&](QDialog& dialogue) {
                 QEvent fin(QEvent::Quit);
                 QApplication::sendEvent(qApp, &fin);
                 EXPECT_TRUE(fin.isAccepted());
                 EXPECT_EQ(FinVue(), 0);
                 EXPECT_TRUE(dialogue.isVisible());
               });
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATSel");
  EXPECT_FALSE(b.dossier.A("SAUVE"));
}

TEST_F(EcouteDuSysteme, SansEcouteLaBoiteAOutilsFermeElleMeme) {
  Ouvre(sansSauvegarde);
  Ecoute();
  ecoute.reset();
  // Inside the loop that it ends: no other could be run otherwise.
  QTimer::singleShot(0, qApp, [] {
    QEvent fin(QEvent::Quit);
    QApplication::sendEvent(qApp, &fin);
  });
  QApplication::exec();
  EXPECT_EQ(arrets, 0);
  EXPECT_FALSE(cadre->isVisible());
}

}  // namespace
}  // namespace gastrelle::essai
