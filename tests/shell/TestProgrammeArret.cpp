// The running program, ended by the system and not by its user: what is on the disk afterwards.

#include <csignal>

#include <QDeadlineTimer>
#include <gmock/gmock.h>

#include "doublures/Limites.h"
#include "doublures/ProgrammeEssai.h"
#include "doublures/SessionEssai.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

constexpr const char* refus = "Il faut donner un titre à la nouvelle recette.";
constexpr const char* liste = "GLMCN.DAT";
constexpr std::size_t patisserie = 12;
constexpr int unInstant = 300;  // milliseconds: for what the keys do
constexpr const char* signature = "GLMCN.DAT";

/// The preference asks for the backup at the end. The aisle "Boucherie" holds "Sel", behind a hole:
/// who writes the list closes it.
class ProgrammeArrete : public ProgrammeEssai {
 protected:
  void SetUp() override {
    ProgrammeEssai::SetUp();
    if (IsSkipped()) {
      return;
    }
    b.Demarre();
    b.dossier.Ecrit("GLPREF.DAT", Octets(RecPreferences{}));
    b.dossier.Ecrit(liste, std::string(signature) + "un trou Sel");
    b.dossier.Ecrit("GLMC.DAT", Octets(LigneRayon{18, 3}) + std::string(112, '\0'));
  }

  /// Nothing was written yet, or all was.
  void AttendEcrit(bool ecrit) const {
    EXPECT_EQ(b.dossier.Lit(liste), std::string(signature) + (ecrit ? "Sel" : "un trou Sel"));
    EXPECT_EQ(b.dossier.Lit("GLMC.DAT").substr(0, 8), Octets(LigneRayon{ecrit ? 10 : 18, 3}));
  }
  /// The program is over, without the backup and without a message but those of before.
  void AttendFini(int statut = 0, const std::vector<std::string>& messages = {}) {
    EXPECT_TRUE(programme.state() == QProcess::NotRunning || programme.waitForFinished(patience));
    EXPECT_EQ(programme.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(programme.exitCode(), statut);
    EXPECT_EQ(Messages(programme), messages);
    EXPECT_FALSE(b.dossier.A("SAUVE"));
  }
  /// Types a note, and a purchase that is being typed when the end comes.
  void TapeNoteEtCourse(const QString& cadre) {
    Tape(cadre, {"ctrl+8"});
    Outil({"type", "--delay", "40", "Un"});
    Tape(cadre, {"Return"});
    Outil({"type", "--delay", "40", "Deux"});
    Tape(cadre, {"ctrl+9", "p", "a", "t", "Return"});
    Outil({"type", "--delay", "40", "2 tartes "});
    QTest::qWait(unInstant);
    EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
    AttendEcrit(false);
  }
  void AttendNoteEtCourse() const {
    EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Un\r\nDeux\r\n");
    EXPECT_EQ(b.dossier.Lit(liste), std::string(signature) + "Sel2 tartes");
    EXPECT_EQ(b.dossier.Lit("GLMC.DAT").substr(patisserie * 8, 8), Octets(LigneRayon{13, 8}));
  }
  /// A message that waits for its user.
  void ProvoqueUnRefus(const QString& cadre) {
    Tape(cadre, {"ctrl+Next", "ctrl+Return"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Messages(programme).empty(); }, patience));
  }
  void Envoie(int signal) {
    ASSERT_EQ(::kill(static_cast<pid_t>(programme.processId()), signal), 0);
  }
  void Tape(const QString& fenetre, const QStringList& touches) {
    Outil({"windowfocus", "--sync", fenetre});
    for (const QString& touche : touches) {
      Outil({"key", touche});
    }
  }
};

class ProgrammeSignale : public ProgrammeArrete, public testing::WithParamInterface<int> {};

TEST_P(ProgrammeSignale, EcritSaListeEtFinitSansSauvegarde) {
  Lance(programme);
  FenetreDe(programme);
  AttendEcrit(false);
  Envoie(GetParam());
  AttendFini();
  AttendEcrit(true);
  EXPECT_TRUE(fs::exists(reglages.chemin() / "Gastrelle 2005.conf"));
}

TEST_P(ProgrammeSignale, EcritCeQuiEstTape) {
  Lance(programme);
  TapeNoteEtCourse(FenetreDe(programme));
  Envoie(GetParam());
  AttendFini();
  AttendNoteEtCourse();
}

TEST_P(ProgrammeSignale, NAttendPasUnDialogue) {
  Lance(programme);
  const QString cadre = FenetreDe(programme);
  Tape(cadre, {"ctrl+comma"});
  ASSERT_FALSE(FenetreDe(programme, cadre).isEmpty());
  Envoie(GetParam());
  AttendFini();
  AttendEcrit(true);
}

INSTANTIATE_TEST_SUITE_P(Signaux, ProgrammeSignale, testing::Values(SIGTERM, SIGHUP, SIGINT),
                         [](const testing::TestParamInfo<int>& cas) {
                           return std::string(::sigabbrev_np(cas.param));
                         });

TEST_F(ProgrammeArrete, EcritAussiUneNoteCachee) {
  Lance(programme);
  const QString cadre = FenetreDe(programme);
  TapeNoteEtCourse(cadre);
  Tape(cadre, {"ctrl+8", "ctrl+w"});
  QTest::qWait(unInstant);
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
  Envoie(SIGTERM);
  AttendFini();
  AttendNoteEtCourse();
}

TEST_F(ProgrammeArrete, DitDeuxFoisDeSuiteEcritTout) {
  Lance(programme);
  TapeNoteEtCourse(FenetreDe(programme));
  for (const int signal : {SIGHUP, SIGHUP, SIGTERM, SIGTERM}) {
    Envoie(signal);
  }
  AttendFini();
  AttendNoteEtCourse();
}

TEST_F(ProgrammeArrete, NAttendPasUnMessage) {
  Lance(programme);
  const QString cadre = FenetreDe(programme);
  ProvoqueUnRefus(cadre);
  Envoie(SIGTERM);
  AttendFini(0, {refus});
  AttendEcrit(true);
}

TEST_F(ProgrammeArrete, NAttendPasLaSauvegardeQueSonUsagerRegarde) {
  Lance(programme);
  const QString cadre = FenetreDe(programme);
  Tape(cadre, {"ctrl+q"});
  ASSERT_FALSE(FenetreDe(programme, cadre).isEmpty());
  ASSERT_TRUE(QTest::qWaitFor([&] { return b.dossier.A("SAUVE/GLR4.DAT"); }, patience));
  Envoie(SIGTERM);
  EXPECT_TRUE(programme.waitForFinished(patience));
  EXPECT_EQ(programme.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(programme.exitCode(), 0);
  AttendEcrit(true);
}

TEST_F(ProgrammeArrete, ApresUnePanneNEcritRien) {
  avantDepart = [place = b.dossier.Lit("GLR3.DAT").size() + 5] {
    PoseLimite(RLIMIT_FSIZE, place, place);
  };
  Lance(programme);
  const QString cadre = FenetreDe(programme);
  Tape(cadre, {"ctrl+Next", "alt+t", "a", "alt+x", "b", "c", "d", "e", "f", "g", "ctrl+Return"});
  ASSERT_FALSE(FenetreDe(programme, cadre).isEmpty());
  Envoie(SIGTERM);
  AttendFini(1, {"Erreur fatale. Impossibilité de continuer."});
  AttendEcrit(false);
}

TEST_F(ProgrammeArrete, UnRaccrochageIgnoreAuDepartNeLArretePas) {
  avantDepart = [] { static_cast<void>(::signal(SIGHUP, SIG_IGN)); };
  Lance(programme);
  FenetreDe(programme);
  Envoie(SIGHUP);
  QTest::qWait(500);
  EXPECT_EQ(programme.state(), QProcess::Running);
  AttendEcrit(false);
  Envoie(SIGTERM);
  AttendFini();
  AttendEcrit(true);
}

TEST_F(ProgrammeArrete, UnRefusDeDemarrerSArreteAussi) {
  b.dossier.Ecrit("GLR1.DAT", "abîmé");
  Lance(programme);
  FenetreDe(programme);
  Envoie(SIGTERM);
  AttendFini(1, {TroisLignes("GLR1.DAT")});
  AttendEcrit(false);
}

/// Stopped while it restores a great file, the program first ends its start: every file is there,
/// whole, and the date is in its record.
TEST_F(ProgrammeArrete, PendantSonDepartLaisseTousSesFichiersEntiers) {
  for (const LigneCatalogue& ligne : catalogueFichiers) {
    b.dossier.Supprime(ligne.nom);
  }
  constexpr std::uintmax_t grande = 100'000'000;
  fs::resize_file(b.dossier.chemin() / "GLR3.stp", grande);
  Lance(programme);
  QDeadlineTimer delai(patience);
  while (!b.dossier.A("GLR3.DAT~") && !delai.hasExpired()) {
  }
  Envoie(SIGTERM);
  AttendFini();
  EXPECT_EQ(fs::file_size(b.dossier.chemin() / "GLR3.DAT"), grande);
  for (const LigneCatalogue& ligne : catalogueFichiers) {
    EXPECT_TRUE(b.dossier.A(ligne.nom)) << ligne.nom;
    EXPECT_FALSE(b.dossier.A(std::string(ligne.nom) + "~")) << ligne.nom;
  }
  EXPECT_NE(b.dossier.Lit("GLR2.DAT"), b.dossier.Lit("GLR2.stp"));
}

TEST_F(ProgrammeArrete, SansAffichageSaListeEstEcriteQuandMeme) {
  Lance(programme);
  TapeNoteEtCourse(FenetreDe(programme));
  ecran.reset();
  AttendFini(1);
  AttendNoteEtCourse();
}

TEST_F(ProgrammeArrete, UneFinBrutaleLaisseLaListeDAvant) {
  Lance(programme);
  FenetreDe(programme);
  Envoie(SIGKILL);
  ASSERT_TRUE(programme.waitForFinished(patience));
  AttendEcrit(false);
}

/// A desktop whose session the program belongs to.
class ProgrammeEnSession : public ProgrammeArrete {
 protected:
  void SetUp() override {
    ProgrammeArrete::SetUp();
    if (IsSkipped()) {
      return;
    }
    if (session.adresse().isEmpty()) {
      GTEST_SKIP() << "pas de session possible";
    }
    environnement.insert("SESSION_MANAGER", session.adresse());
    Lance(programme);
    ASSERT_TRUE(QTest::qWaitFor([&] { return session.programmePresent(); }, patience));
    cadre = FenetreDe(programme);
    AttendEcrit(false);
  }

  SessionEssai session;
  QString cadre;
};

TEST_F(ProgrammeEnSession, LaFinAnnonceeEcritSaListe) {
  EXPECT_TRUE(session.AnnonceLaFin());
  AttendEcrit(true);
  EXPECT_EQ(programme.state(), QProcess::Running);
}

TEST_F(ProgrammeEnSession, LaFinVenueLeFinitSansSauvegarde) {
  TapeNoteEtCourse(cadre);
  EXPECT_TRUE(session.AnnonceLaFin());
  AttendNoteEtCourse();
  session.Renvoie();
  AttendFini();
  AttendNoteEtCourse();
}

TEST_F(ProgrammeEnSession, LaFinSansAnnonceEcritAussi) {
  session.Renvoie();
  AttendFini();
  AttendEcrit(true);
}

TEST_F(ProgrammeEnSession, LaFinNAttendPasUnMessage) {
  ProvoqueUnRefus(cadre);
  EXPECT_TRUE(session.AnnonceLaFin());
  AttendEcrit(true);
  session.Renvoie();
  AttendFini(0, {refus});
}

TEST_F(ProgrammeEnSession, LaFinDecommandeeLeLaisseTravailler) {
  EXPECT_TRUE(session.AnnonceLaFin());
  session.RevientSurLaFin();
  QTest::qWait(unInstant);
  Tape(cadre, {"ctrl+8", "n", "ctrl+q"});
  EXPECT_FALSE(FenetreDe(programme, cadre).isEmpty());  // the backup, as ever
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "n\r\n");
}

TEST_F(ProgrammeEnSession, SaFinSansUnMotEcritSaListe) {
  session.Disparait();
  AttendFini(1);
  AttendEcrit(true);
}

}  // namespace
}  // namespace gastrelle::essai
