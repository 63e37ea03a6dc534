// Switching between child windows: what counts as one, and what doesn't.

#include <QDialog>
#include <QMainWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/CadreEssai.h"
#include "doublures/Ecran.h"
#include "shell/SuiviFenetres.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DescriptionFenetre fenetreEssai{
    .nom = "frmEssai", .titre = u"Essai", .vue = EntreeVue::recettes, .logo = ""};

class EnfantEssai final : public FenetreEnfant {
 public:
  EnfantEssai(Module1& module, gastrelle::Cadre& cadre, QString nom, QStringList& journal)
      : FenetreEnfant(module, cadre, fenetreEssai), nom_(std::move(nom)), journal_(journal) {}
  void Active() override { journal_ << "+" + nom_; }
  void Desactive() override { journal_ << "-" + nom_; }
  void QuandReduite() override { journal_ << "_" + nom_; }

 private:
  QString nom_;
  QStringList& journal_;
};

class Suivi : public testing::Test {
 protected:
  Suivi() {
    cadre.setCentralWidget(enfants);
    suivi.emplace(*enfants);
    a = Ajoute("a");
    b = Ajoute("b");
    cadre.show();
    QApplication::setActiveWindow(&cadre);
    QApplication::processEvents();
    enfants->setActiveSubWindow(a);
    journal.clear();
  }

  QMdiSubWindow* Ajoute(const QString& nom) {
    auto* fenetre = new QMdiSubWindow;
    fenetre->setWidget(new EnfantEssai(*bibliotheque.module, cadreEssai, nom, journal));
    fenetre->setAttribute(Qt::WA_DeleteOnClose);
    enfants->addSubWindow(fenetre);
    suivi->Suit(*fenetre);
    return fenetre;
  }

  Bibliotheque bibliotheque;
  CadreEssai cadreEssai{*bibliotheque.module};
  QMainWindow cadre;
  QMdiArea* enfants = new QMdiArea;
  QStringList journal;
  std::optional<SuiviFenetres> suivi;
  QMdiSubWindow* a = nullptr;
  QMdiSubWindow* b = nullptr;
};

TEST_F(Suivi, PasserDUneFenetreALAutreQuitteLUneEtPrendLAutre) {
  enfants->setActiveSubWindow(b);
  EXPECT_EQ(journal, (QStringList{"-a", "+b"}));
}

TEST_F(Suivi, UnDialogueModalNEstPasUnPassage) {
  QDialog dialogue(&cadre);
  dialogue.setModal(true);
  dialogue.show();
  QApplication::processEvents();
  dialogue.close();
  QApplication::processEvents();
  EXPECT_EQ(journal, QStringList{});
}

TEST_F(Suivi, MaximiserEtRestaurerNeSontPasDesPassages) {
  a->showMaximized();
  QApplication::processEvents();
  a->showNormal();
  QApplication::processEvents();
  EXPECT_EQ(journal, QStringList{});
}

TEST_F(Suivi, ReduireLeDitALaFenetreEtLaRetablirLaReprend) {
  a->showMinimized();
  QApplication::processEvents();
  EXPECT_EQ(journal.first(), "_a");
  journal.clear();
  a->showNormal();
  QApplication::processEvents();
  EXPECT_TRUE(journal.contains("+a"));
}

TEST_F(Suivi, CacherLaFenetreActivePrendLaSuivante) {
  a->hide();
  QApplication::processEvents();
  EXPECT_EQ(journal, QStringList{"+b"});
}

TEST_F(Suivi, UneFenetreCacheePuisMontreeRedevientActive) {
  for (const bool maximisee : {false, true}) {
    SCOPED_TRACE(maximisee);
    if (maximisee) {
      a->showMaximized();
    }
    a->hide();
    QApplication::processEvents();
    journal.clear();
    a->show();
    enfants->setActiveSubWindow(a);
    QApplication::processEvents();
    EXPECT_EQ(journal, (QStringList{"-b", "+a"}));
  }
}

TEST_F(Suivi, LaSeuleFenetreCacheePuisMontreeRedevientActive) {
  b->hide();
  a->hide();
  QApplication::processEvents();
  EXPECT_EQ(suivi->active(), nullptr);
  journal.clear();
  a->show();
  enfants->setActiveSubWindow(a);
  EXPECT_EQ(journal, QStringList{"+a"});
}

TEST_F(Suivi, FermerLaFenetreActivePrendLaSuivante) {
  a->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_EQ(journal, (QStringList{"-a", "+b"}));
}

TEST_F(Suivi, SansFenetreAucuneNEstActive) {
  a->close();
  b->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_EQ(suivi->active(), nullptr);
}

}  // namespace
}  // namespace gastrelle::essai
