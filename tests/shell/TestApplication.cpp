// What no operation guards: the program says it and ends.

#include <QEvent>
#include <QMessageBox>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Icones.h"
#include "data/Texte1252.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Ecran.h"
#include "doublures/ServicesEssai.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Fails at every event of one kind.
class Fragile final : public QWidget {
 public:
  bool event(QEvent* evenement) override {
    if (evenement->type() == QEvent::User) {
      throw ErreurExecution(Panne::disquePlein);
    }
    return QWidget::event(evenement);
  }
};

class PanneSansGarde : public testing::Test {
 protected:
  PanneSansGarde() {
    OublieFin();
    EcouteMessages(&messages);
  }
  ~PanneSansGarde() override { EcouteMessages(nullptr); }

  static MessageVu DisquePlein() {
    return {std::string("Erreur d'exécution '61' : Disque plein"_1252), Icone::critique,
            "Gastrelle 2005"};
  }

  MessagesEssai messages;
  Fragile fragile;
};

TEST_F(PanneSansGarde, DUnEvenementSeDitUneFoisEtFinitLeProgramme) {
  QEvent evenement(QEvent::User);
  QApplication::sendEvent(&fragile, &evenement);
  EXPECT_THAT(messages.vus, ElementsAre(DisquePlein()));
  EXPECT_EQ(FinVue(), 1);
}

TEST_F(PanneSansGarde, DUnEvenementAttenduSeDitAussi) {
  QApplication::postEvent(&fragile, new QEvent(QEvent::User));
  QApplication::processEvents();
  EXPECT_THAT(messages.vus, ElementsAre(DisquePlein()));
  EXPECT_EQ(FinVue(), 1);
}

TEST_F(PanneSansGarde, UnEvenementSansPanneNeDitRien) {
  QEvent evenement(QEvent::MaxUser);
  QApplication::sendEvent(&fragile, &evenement);
  EXPECT_THAT(messages.vus, IsEmpty());
  EXPECT_EQ(FinVue(), std::nullopt);
}

/// What shows without the frame: a message at the start, the copy at the end.
TEST(FenetreSansParent, PorteLEmblemeEnPetitesTailles) {
  const QMessageBox boite;
  const QIcon icone = boite.windowIcon();
  EXPECT_EQ(icone.pixmap(32).toImage(), IconeDe("gastrelle").pixmap(32).toImage());
  for (const QSize& taille : icone.availableSizes()) {
    EXPECT_LE(taille.width(), plusGrandeIconeFenetre);
  }
  EXPECT_EQ(QGuiApplication::desktopFileName(), "gastrelle");
}

TEST(FinSurErreur, RendLePointeurAvantDeParlerPuisFinit) {
  MessagesEssai messages;
  PointeurEssai pointeur;
  ProcessusEssai processus;
  pointeur.Sablier();
  messages.pendant = [&] { EXPECT_FALSE(pointeur.sablier); };
  try {
    FinSurErreur(ErreurExecution(Panne::fichierIntrouvable), messages, pointeur, processus);
    ADD_FAILURE() << "le programme continue";
  } catch (const FinDuProgramme& fin) {
    EXPECT_EQ(fin.statut, 1);
  }
  EXPECT_THAT(messages.vus, ElementsAre(MessageVu{
                                std::string("Erreur d'exécution '53' : Fichier introuvable"_1252),
                                Icone::critique, "Gastrelle 2005"}));
  EXPECT_FALSE(pointeur.sablier);
}

}  // namespace
}  // namespace gastrelle::essai
