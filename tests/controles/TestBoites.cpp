// The message boxes and the pointer of the real screen.

#include <array>
#include <optional>

#include <QMessageBox>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Boites.h"
#include "data/Texte1252.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

using testing::UnorderedElementsAre;

class MessagesAffiches : public testing::Test {
 protected:
  static QMessageBox& Boite(QDialog& dialogue) { return dynamic_cast<QMessageBox&>(dialogue); }

  static QStringList Titres(const QMessageBox& boite) {
    QStringList titres;
    for (const QAbstractButton* bouton : boite.buttons()) {
      titres << bouton->text().remove(u'&');
    }
    return titres;
  }

  static void Presse(QDialog& boite, const QString& titre) {
    for (QAbstractButton* bouton : Boite(boite).buttons()) {
      if (bouton->text().remove(u'&') == titre) {
        Clique(*bouton);
        return;
      }
    }
    ADD_FAILURE() << "pas de bouton " << titre.toStdString();
  }

  /// The answer to a question, which `repond` gives on its box.
  Reponse Demande(Choix choix, const std::function<void(QDialog&)>& repond) {
    std::optional<Reponse> reponse;
    AvecDialogue([&] { reponse = messages.Demande("Effacer ?", choix); }, repond);
    return *reponse;
  }

  static void Touche(QDialog& boite, Qt::Key touche) { QTest::keyClick(&boite, touche); }

  MessagesEcran messages;
};

TEST_F(MessagesAffiches, ChaqueIconeEstLaSienne) {
  constexpr std::array<std::pair<Icone, QMessageBox::Icon>, 4> icones{{
      {Icone::aucune, QMessageBox::NoIcon},
      {Icone::information, QMessageBox::Information},
      {Icone::exclamation, QMessageBox::Warning},
      {Icone::critique, QMessageBox::Critical},
  }};
  for (const auto& [icone, attendue] : icones) {
    AvecDialogue([&] { messages.Informe("Terminé"_1252, icone); },
                 [&](QDialog& boite) { EXPECT_EQ(Boite(boite).icon(), attendue); });
  }
}

TEST_F(MessagesAffiches, UneInformationALeTitreDeLApplicationEtUnBoutonOk) {
  AvecDialogue([&] { messages.Informe("Terminé"_1252, Icone::information); },
               [](QDialog& boite) {
                 EXPECT_EQ(boite.windowTitle(), "Gastrelle 2005");
                 EXPECT_EQ(Boite(boite).text(), Fr("Terminé"));
                 EXPECT_EQ(Titres(Boite(boite)), QStringList{"OK"});
               });
}

TEST_F(MessagesAffiches, UneInformationPeutAvoirSonTitre) {
  AvecDialogue(
      [&] {
        messages.Informe("Terminé"_1252, Icone::information, "Gastrelle 2005 - Préférences"_1252);
      },
      [](QDialog& boite) { EXPECT_EQ(boite.windowTitle(), Fr("Gastrelle 2005 - Préférences")); });
}

TEST_F(MessagesAffiches, UneFinDeLigneEnDeuxCaracteresEnFaitUne) {
  AvecDialogue(
      [&] { messages.Informe("Fichier\r\n/a.png\r\nnon trouvé."_1252, Icone::critique); },
      [](QDialog& boite) { EXPECT_EQ(Boite(boite).text(), Fr("Fichier\n/a.png\nnon trouvé.")); });
}

TEST_F(MessagesAffiches, UnMessageDemesurePerdSonMilieuEtGardeSonBouton) {
  AvecDialogue(
      [&] {
        messages.Informe("Le fichier\r\n" + std::string(100'000, 'x') + "\r\nn'a pas",
                         Icone::exclamation);
      },
      [](QDialog& boite) {
        const QString texte = Boite(boite).text();
        EXPECT_TRUE(texte.startsWith("Le fichier\nxxx")) << texte.left(20).toStdString();
        EXPECT_TRUE(texte.endsWith("xxx\nn'a pas"));
        EXPECT_TRUE(texte.contains(Fr("xxx…xxx")));
        EXPECT_LT(boite.height(), 2000);
      });
}

TEST_F(MessagesAffiches, UnCheminAussiLongQueLeSystemeEnPermetSeLitEntier) {
  const std::string chemin(4095, 'x');
  AvecDialogue([&] { messages.Informe("Fichier\r\n" + chemin, Icone::critique); },
               [&](QDialog& boite) {
                 EXPECT_EQ(Boite(boite).text(), "Fichier\n" + QString::fromStdString(chemin));
               });
}

TEST_F(MessagesAffiches, UnTexteSeLitTelQuel) {
  AvecDialogue([&] { messages.Informe("<b>gras</b>", Icone::critique); },
               [](QDialog& boite) {
                 EXPECT_EQ(Boite(boite).textFormat(), Qt::PlainText);
                 EXPECT_EQ(Boite(boite).text(), "<b>gras</b>");
               });
}

TEST_F(MessagesAffiches, EntreeEtEchappeFermentUneInformation) {
  for (const Qt::Key touche : {Qt::Key_Return, Qt::Key_Escape}) {
    AvecDialogue([&] { messages.Informe("x", Icone::information); },
                 [&](QDialog& boite) {
                   Touche(boite, touche);
                   EXPECT_FALSE(boite.isVisible()) << touche;
                 });
  }
}

TEST_F(MessagesAffiches, UneBoiteAppartientALaFenetreActive) {
  QWidget fenetre;
  fenetre.show();
  const auto verifie = [&](QDialog& boite) { EXPECT_EQ(boite.parentWidget(), &fenetre); };
  QApplication::setActiveWindow(&fenetre);
  AvecDialogue([&] { messages.Informe("x", Icone::information); }, verifie);
  QApplication::setActiveWindow(&fenetre);
  AvecDialogue([&] { messages.Demande("x"); }, verifie);
}

TEST_F(MessagesAffiches, UneQuestionALeTitreEtLExclamation) {
  Demande(Choix::ouiNon, [](QDialog& boite) {
    EXPECT_EQ(boite.windowTitle(), "Gastrelle 2005");
    EXPECT_EQ(Boite(boite).icon(), QMessageBox::Warning);
    EXPECT_EQ(Boite(boite).textFormat(), Qt::PlainText);
    EXPECT_EQ(Boite(boite).text(), "Effacer ?");
  });
}

TEST_F(MessagesAffiches, UneQuestionSansAnnulerAOuiEtNonNonParDefaut) {
  Demande(Choix::ouiNon, [](QDialog& boite) {
    EXPECT_THAT(Titres(Boite(boite)), UnorderedElementsAre("Oui", "Non"));
    EXPECT_EQ(Boite(boite).defaultButton()->text(), "&Non");
  });
}

TEST_F(MessagesAffiches, UneQuestionAvecAnnulerEnATroisNonParDefaut) {
  Demande(Choix::ouiNonAnnuler, [](QDialog& boite) {
    EXPECT_THAT(Titres(Boite(boite)), UnorderedElementsAre("Oui", "Non", "Annuler"));
    EXPECT_EQ(Boite(boite).defaultButton()->text(), "&Non");
  });
}

TEST_F(MessagesAffiches, EntreeRepondNon) {
  for (const Choix choix : {Choix::ouiNon, Choix::ouiNonAnnuler}) {
    EXPECT_EQ(Demande(choix, [](QDialog& boite) { Touche(boite, Qt::Key_Return); }), Reponse::non);
  }
}

TEST_F(MessagesAffiches, EchappeRepondNonOuAnnule) {
  const auto echappe = [](QDialog& boite) { Touche(boite, Qt::Key_Escape); };
  EXPECT_EQ(Demande(Choix::ouiNon, echappe), Reponse::non);
  EXPECT_EQ(Demande(Choix::ouiNonAnnuler, echappe), Reponse::annuler);
}

TEST_F(MessagesAffiches, LaCroixRepondCommeEchappe) {
  const auto ferme = [](QDialog& boite) { boite.close(); };
  EXPECT_EQ(Demande(Choix::ouiNon, ferme), Reponse::non);
  EXPECT_EQ(Demande(Choix::ouiNonAnnuler, ferme), Reponse::annuler);
}

TEST_F(MessagesAffiches, ChaqueBoutonRepondCeQuIlDit) {
  const auto presse = [](const char* titre) {
    return [titre](QDialog& boite) { Presse(boite, titre); };
  };
  EXPECT_EQ(Demande(Choix::ouiNon, presse("Oui")), Reponse::oui);
  EXPECT_EQ(Demande(Choix::ouiNon, presse("Non")), Reponse::non);
  EXPECT_EQ(Demande(Choix::ouiNonAnnuler, presse("Oui")), Reponse::oui);
  EXPECT_EQ(Demande(Choix::ouiNonAnnuler, presse("Non")), Reponse::non);
  EXPECT_EQ(Demande(Choix::ouiNonAnnuler, presse("Annuler")), Reponse::annuler);
}

TEST_F(MessagesAffiches, LaLettreDUnBoutonRepondSeuleOuAvecAlt) {
  for (const Qt::KeyboardModifiers avec :
       {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::AltModifier)}) {
    const auto tape = [avec](Qt::Key lettre) {
      return [avec, lettre](QDialog& boite) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&boite));
        Frappe(lettre, avec);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !boite.isVisible(); }));
      };
    };
    EXPECT_EQ(Demande(Choix::ouiNon, tape(Qt::Key_O)), Reponse::oui);
    EXPECT_EQ(Demande(Choix::ouiNonAnnuler, tape(Qt::Key_N)), Reponse::non);
    EXPECT_EQ(Demande(Choix::ouiNonAnnuler, tape(Qt::Key_A)), Reponse::annuler);
    AvecDialogue([&] { messages.Informe("x", Icone::information); }, tape(Qt::Key_O));
  }
}

TEST(PointeurAffiche, LeSablierPoseDeuxFoisSEnleveDUnCoup) {
  PointeurEcran pointeur;
  pointeur.Sablier();
  pointeur.Sablier();
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  pointeur.Normal();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(PointeurAffiche, NormalSansSablierNEnleveRien) {
  QApplication::setOverrideCursor(Qt::CrossCursor);
  PointeurEcran pointeur;
  pointeur.Normal();
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  QApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace gastrelle::essai
