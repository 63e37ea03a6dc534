// The program's closing, killed or failing at any of its calls: notes, shopping list, backup. The
// real frame is closed, in a process of its own where it dies.

#include <array>
#include <csignal>
#include <optional>

#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "accidents/Accident.h"
#include "accidents/EtatRecettes.h"
#include "accidents/Secours.h"
#include "doublures/CadreVrai.h"
#include "doublures/Depart.h"
#include "doublures/EcranVirtuel.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* anciennesNotes = "Vieilles notes\r\n";
constexpr const char* nouvellesNotes = "Notes neuves\r\n";
constexpr std::size_t boucherie = 0;
constexpr std::size_t patisserie = 12;
constexpr std::size_t divers = 14;

/// Aisle texts: those of the evening before, and those that the closing writes.
using Rayons = std::array<std::string, nombreRayons>;

Rayons AnciensRayons() {
  Rayons rayons;
  rayons[boucherie] = "porc";
  rayons[divers] = "du sel";
  return rayons;
}

Rayons NouveauxRayons() {
  Rayons rayons = AnciensRayons();
  rayons[boucherie] = "boeuf";
  rayons[patisserie] = "deux tartes";
  return rayons;
}

/// An evening: a frame with notes and a list that were changed, about to be closed.
class Soiree : public CadreVrai {
 public:
  Soiree() {
    b.Demarre();
    b.dossier.Ecrit("IMAGE/tatin.png", "x");
    b.AjouteRecette(b.AjouteFamille("Desserts"), "Tatin", "Des pommes.", "/tatin.png");
    b.dossier.Ecrit("MesNotes.txt", anciennesNotes);
    for (const std::size_t rayon : {boucherie, divers}) {
      b.AjouteCourses(rayon, AnciensRayons().at(rayon));
    }
    Ouvre({});
    Choisit("mnuViewMesNotes");
    Remplace(Trouve(Le("frmMesNotes"), "txtSaisie"), "Notes neuves");
    Choisit("mnuViewMesCourses");
    Remplace(Trouve(Le("frmCourses"), "txtDetail"), VersQt(NouveauxRayons()[boucherie]));
    b.module->texteRayon[patisserie] = NouveauxRayons()[patisserie];
    avant = LitRecettes(QuatreDe(b.dossier.chemin(), "DAT"));
    b.disque.OublieJournal();
  }

  void TestBody() override {}

  /// Closes the frame, and the backup dialog once it has succeeded.
  void Ferme() {
    QTimer reponse;
    QObject::connect(&reponse, &QTimer::timeout, [] {
      const QWidget* dialogue = QApplication::activeModalWidget();
      auto* ok = dialogue == nullptr ? nullptr : dialogue->findChild<QPushButton*>("cmdOk");
      if (ok != nullptr && ok->isVisible()) {
        Clique(*ok);
      }
    });
    reponse.start(1);
    cadre->close();
  }

  Bibliotheque& bibliotheque() { return b; }
  void Oublie() { cadre.reset(); }

  std::optional<RecettesLues> avant;
};

std::string EtatNotes(const DossierEssai& dossier) {
  if (!dossier.A("MesNotes.txt")) {
    return "aucunes";
  }
  const std::string notes = dossier.Lit("MesNotes.txt");
  if (notes == anciennesNotes) {
    return "anciennes";
  }
  return notes == nouvellesNotes ? "nouvelles" : notes.empty() ? "vides" : "coupées";
}

/// What the next start makes of the aisle files.
std::string EtatRayons(Bibliotheque& b) {
  const Depart depart = Essaie(b);
  if (!depart.cadre) {
    EXPECT_EQ(b.messages.vus, std::vector{TroisLignes(b, "GLMCN.DAT")});
    return "refusés";
  }
  const Rayons& lus = b.module->texteRayon;
  if (lus == AnciensRayons()) {
    return "anciens";
  }
  return lus == NouveauxRayons() ? "nouveaux" : lus == Rayons{} ? "vides" : "mêlés";
}

/// The way back where the start refuses the list: its files go, and come back empty.
void ReprendDeFabrique(const DossierEssai& dossier) {
  dossier.Supprime("GLMC.DAT");
  dossier.Supprime("GLMCN.DAT");
}

class FermetureAccidentee : public testing::Test {
 protected:
  /// What an accident at `coup` left in `b`.
  void Constate(Bibliotheque& b, const RecettesLues& avant, const Coup& coup) {
    const fs::path& dossier = b.dossier.chemin();
    EXPECT_THAT(PlacesTenant(dossier, avant), testing::StartsWith(".DAT"));
    EXPECT_EQ(RetourPour(NomsPresents(dossier)), Retour::datTelsQuels);
    notes.Ajoute(EtatNotes(b.dossier), coup);
    const std::string etat = EtatRayons(b);
    rayons.Ajoute(etat, coup);
    if (etat == "refusés") {
      ReprendDeFabrique(b.dossier);
    }
    b.messages.vus.clear();
    b.Redemarre();
    EXPECT_EQ(LitRecettes(QuatreDe(dossier, "DAT")), avant);
  }

  Plages notes;
  Plages rayons;
};

constexpr const char* variableAppel = "ACCIDENT_APPEL";
constexpr const char* variableMoitie = "ACCIDENT_A_MOITIE";

/// Plays the evening once more in a process of its own that dies there; its folder then takes the
/// place of `b`'s.
void TueEnFermant(const Coup& coup, const Bibliotheque& b) {
  const DossierEssai place;
  QProcess enfant;
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
  environnement.insert(variableAppel, QString::number(coup.appel));
  environnement.insert(variableMoitie, coup.aMoitie ? "1" : "0");
  environnement.insert("TMPDIR", QString::fromStdString(place.chemin().string()));
  enfant.setProcessEnvironment(environnement);
  enfant.start(QCoreApplication::applicationFilePath(),
               {"--gtest_filter=FermetureTuee.NePerdQueCeQuElleEcrit"});
  ASSERT_TRUE(enfant.waitForFinished(patience));
  EXPECT_EQ(enfant.exitStatus(), QProcess::CrashExit);
  EXPECT_EQ(enfant.exitCode(), coup.aMoitie ? SIGXFSZ : SIGKILL);
  for (const auto& entree : fs::directory_iterator(place.chemin())) {
    if (fs::exists(entree.path() / "GLR1.stp")) {
      fs::remove_all(b.dossier.chemin());
      fs::copy(entree.path(), b.dossier.chemin(), fs::copy_options::recursive);
    }
  }
}

class FermetureTuee : public FermetureAccidentee {};

TEST_F(FermetureTuee, NePerdQueCeQuElleEcrit) {
  Soiree soiree;
  if (qEnvironmentVariableIsSet(variableAppel)) {
    Arme(soiree.bibliotheque().disque,
         {static_cast<std::size_t>(qEnvironmentVariableIntValue(variableAppel)),
          qEnvironmentVariableIntValue(variableMoitie) != 0,
          {}});
    soiree.Ferme();
    FAIL() << "la fermeture est allée à son terme";
  }
  soiree.Ferme();
  for (const Coup& coup : CoupsDe(soiree.bibliotheque().disque.journal())) {
    SCOPED_TRACE(coup.ligne);
    Bibliotheque b;
    TueEnFermant(coup, b);
    Constate(b, soiree.avant.value(), coup);
  }
  EXPECT_THAT(notes.vues(), ElementsAre("anciennes", "aucunes dès crée MesNotes.txt",
                                        "vides dès écrit MesNotes.txt 0+14",
                                        "coupées dès la moitié de écrit MesNotes.txt 0+14",
                                        "nouvelles dès supprime GLMCN.DAT"));
  EXPECT_THAT(
      rayons.vues(),
      ElementsAre("anciens", "vides dès ouvre GLMCN.DAT", "refusés dès écrit GLMCN.DAT 0+9",
                  "vides dès longueur GLMCN.DAT", "mêlés dès la moitié de écrit GLMCN.DAT 9+5",
                  "nouveaux dès la moitié de écrit GLMC.DAT 112+8"));
}

class FermetureQuiEchoue : public FermetureAccidentee {};

TEST_F(FermetureQuiEchoue, NeDitRienEtNePerdQueCeQuElleEcrit) {
  std::vector<Coup> coups;
  {
    Soiree soiree;
    soiree.Ferme();
    coups = CoupsDe(soiree.bibliotheque().disque.journal());
  }
  for (const Coup& coup : coups) {
    SCOPED_TRACE(coup.ligne);
    Soiree soiree;
    Bibliotheque& b = soiree.bibliotheque();
    b.disque.EchoueALAppel(coup.appel, Panne::disquePlein,
                           coup.aMoitie ? Maniere::moitieEcrite : Maniere::rienFait);
    soiree.Ferme();
    EXPECT_THAT(b.messages.vus, IsEmpty());
    soiree.Oublie();
    Constate(b, soiree.avant.value(), coup);
  }
  EXPECT_THAT(notes.vues(), ElementsAre("nouvelles", "aucunes dès crée MesNotes.txt",
                                        "vides dès écrit MesNotes.txt 0+14",
                                        "coupées dès la moitié de écrit MesNotes.txt 0+14",
                                        "nouvelles dès supprime GLMCN.DAT"));
  EXPECT_THAT(rayons.vues(),
              ElementsAre("nouveaux", "anciens dès supprime GLMCN.DAT", "vides dès ouvre GLMCN.DAT",
                          "refusés dès écrit GLMCN.DAT 0+9", "vides dès longueur GLMCN.DAT",
                          "mêlés dès la moitié de écrit GLMCN.DAT 9+5",
                          "nouveaux dès la moitié de écrit GLMC.DAT 112+8"));
}

}  // namespace
}  // namespace gastrelle::essai
